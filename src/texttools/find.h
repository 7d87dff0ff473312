// The search of the dialog Hledání without its window, and the primitive search. The dialog searches a copy of the
// document. A hit is selected in the document at its position in the copy, even if the document has changed since.
// Texts are Windows-1250, positions count from 0.
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

  // What the dialog shows. Before Start, Next and New the window stores `find` and `case_sensitive` here, and
  // afterwards shows all values. After PickHistory the window shows only `find`.
  std::string find;
  bool case_sensitive = true;
  std::vector<std::string> history;     // all terms so far
  std::optional<std::size_t> count;     // hits of this search so far
  std::optional<std::size_t> position;  // of the latest hit
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

// Asks for a term and, at each hit in the document, whether to continue. The search is always case sensitive.
void FindPrimitively(TextBuffer& buffer, Platform& platform);

// The initial search term: the selected text, otherwise "Text".
std::string DefaultTerm(const TextBuffer& buffer);

void ReportNothingFound(Platform& platform);

}  // namespace pelmar
