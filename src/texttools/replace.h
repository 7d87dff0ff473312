// The replacing of the dialog Záměna without its window. It steps through a snapshot as Hledání does and replaces in
// the snapshot and in the live text alike. Texts are Windows-1250, positions from 0.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

class Replacer {
 public:
  Replacer(TextBuffer& document, Platform& platform);

  // The dialog's fields; the window copies them in before each step and shows them after it.
  std::string find = "Najdi";                 // Find
  std::string change;                         // Chage
  bool case_sensitive = true;                 // Rozlisovat
  bool find_on = true;                        // Find, Command1
  bool change_on = true;                      // Chage
  bool case_on = true;                        // Rozlisovat
  bool lists_on = true;                       // History, List1
  bool step_on = false;                       // Command2, Command5
  bool all_on = false;                        // Command6
  std::vector<std::string> terms, changes;    // History and List1, row for row
  std::optional<std::size_t> found_shown;     // Label3
  std::optional<std::size_t> replaced_shown;  // Label5

  // Told before a message in the middle of a step, for the window to show the fields as they are.
  std::function<void()> before_message;

  [[nodiscard]] TextBuffer& Snapshot() { return snapshot_; }

  void Load();        // when the dialog is first shown
  bool Start();       // Command1; true where the focus goes to Command5
  void Next();        // Command2
  void Replace();     // Command5
  void ReplaceAll();  // Command6
  void New();         // Command4
  void PickRow(std::size_t row);

 private:
  bool Seek();
  void SeekOn();
  void TellNothing();

  TextBuffer& document_;
  Platform& platform_;
  TextBuffer snapshot_;
  std::size_t found_pos_ = 0;
  std::size_t found_count_ = 0;
  std::size_t replaced_count_ = 0;
};

// What Replace all makes of a text. required: each hit first becomes the character of code 255 and those then the
// replacement, so a character 255 of the text is replaced too, and with an empty replacement every second one of a
// run of adjacent hits stays as that character. An empty term leaves the text as it is.
std::string ReplaceAllByMarker(std::string_view text, std::string_view find, std::string_view change);

}  // namespace pelmar
