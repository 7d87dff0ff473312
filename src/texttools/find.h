// The search of the dialog Hledání without its window, and the primitive find. The dialog searches a snapshot of the
// document: it doesn't follow edits, and selects in the live text at the snapshot's positions. Texts are Windows-1250,
// positions from 0.
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
  Finder(TextBuffer& document, Platform& platform);

  // The dialog's fields; the window copies them in before each step and shows them after it.
  std::string find;                     // Find
  bool case_sensitive = true;           // Rozlisovat
  bool find_on = true;                  // Find, Command1
  bool case_on = true;                  // Rozlisovat
  bool history_on = true;               // History
  bool next_on = false;                 // Command2
  std::vector<std::string> history;     // History
  std::optional<std::size_t> count;     // Label3
  std::optional<std::size_t> position;  // Label5

  // Told before a message in the middle of a step, for the window to show the fields as they are.
  std::function<void()> before_message;

  [[nodiscard]] TextBuffer& Snapshot() { return snapshot_; }

  void Load();   // when the dialog is first shown
  void Start();  // Command1, and Enter in Find
  void Next();   // Command2
  void New();    // Command4
  void PickHistory(std::size_t row);

 private:
  void TakeDefaultTerm();
  void Show(std::size_t hit);
  void GoIdle();
  void TellNothing();

  TextBuffer& document_;
  Platform& platform_;
  TextBuffer snapshot_;
};

// A loop of questions over the live text, always case sensitive.
void FindPrimitively(TextBuffer& document, Platform& platform);

// The term that a search begins with: the selected text, else "Text".
std::string DefaultTerm(const TextBuffer& document);

void TellNothingFound(Platform& platform);

}  // namespace pelmar
