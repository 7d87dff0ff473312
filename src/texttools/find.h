// The search of the dialog Hledání without its window, and the primitive search. The dialog searches a copy of the
// document and selects hits in the document at the positions of the copy, even if the document has changed since. Texts
// are Windows-1250, positions count from 0.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

class Finder {
 public:
  Finder(TextBuffer& buffer, Platform& platform);

  // The fields of the dialog. The window writes them before each step and shows them after each step.
  std::string find;
  bool case_sensitive = true;
  std::vector<std::string> history;     // all terms so far
  std::optional<std::size_t> count;     // hits so far
  std::optional<std::size_t> position;  // of the last hit
  // Which controls are enabled.
  bool find_on = true;  // the term and Start
  bool case_on = true;
  bool history_on = true;
  bool next_on = false;

  // Called before a message in the middle of a step, so that the window can show the fields.
  std::function<void()> before_message;

  [[nodiscard]] TextBuffer& Snapshot() { return snapshot_; }

  void Start();
  void Next();
  void New();
  void PickHistory(std::size_t row);

 private:
  void Show(std::size_t hit);
  void GoIdle();
  void ReportNothing();

  TextBuffer& buffer_;
  Platform& platform_;
  TextBuffer snapshot_;
};

// At each hit in the document, asks whether to continue. The search is always case sensitive.
void FindPrimitively(TextBuffer& buffer, Platform& platform);

// The initial search term: the selected text, otherwise "Text".
std::string DefaultTerm(const TextBuffer& buffer);

void ReportNothingFound(Platform& platform);

}  // namespace pelmar
