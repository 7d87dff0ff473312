// The dialog Záměna without its window. The dialog searches a copy of the document, and replaces hits in the copy and
// in the document. Texts are Windows-1250, positions count from 0.
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

  // The fields of the dialog. The window writes them before each step and shows them after each step.
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

  // Called before a message in the middle of a step, so that the window can show the fields.
  std::function<void()> before_message;

  [[nodiscard]] TextBuffer& Snapshot() { return snapshot_; }

  void Load();        // when the dialog is first shown
  bool Start();       // Command1; true if the focus goes to Command5
  void Next();        // Command2
  void Replace();     // Command5
  void ReplaceAll();  // Command6
  void New();         // Command4
  void PickRow(std::size_t row);

 private:
  bool Seek();
  void GoIdle();
  void SeekOn();

  TextBuffer& document_;
  Platform& platform_;
  TextBuffer snapshot_;
  std::size_t found_pos_ = 0;
  std::size_t found_count_ = 0;
  std::size_t replaced_count_ = 0;
};

// The result of Replace all. required: each hit becomes character 255 first, and each character 255 then becomes the
// replacement, even one that was in the text. With an empty replacement every second one of adjacent hits stays as
// character 255.
std::string ReplaceAllByMarker(std::string_view text, std::string_view find, std::string_view change);

}  // namespace pelmar
