// The dialog Záměna without its window. The dialog searches a copy of the document. Replace changes the copy and the
// document, ReplaceAll only the document. Texts are Windows-1250, positions count from 0.
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
  Replacer(TextBuffer& buffer, Platform& platform);

  // What the dialog shows. Before each step the window stores `find`, `change` and `case_sensitive` here. After each
  // step the window shows all values. PickRow is no step: after PickRow the window shows only `find` and `change`.
  std::string find = "Najdi";
  std::string change;
  bool case_sensitive = true;
  std::vector<std::string> terms, changes;  // of all searches so far, row by row
  std::optional<std::size_t> found_shown;
  std::optional<std::size_t> replaced_shown;
  // Which controls are enabled.
  bool find_on = true;  // the term and Start
  bool change_on = true;
  bool case_on = true;
  bool lists_on = true;
  bool step_on = false;  // Next and Replace
  bool all_on = false;

  // Called before a message in the middle of a step, so that the window can show the fields.
  std::function<void()> before_message;

  [[nodiscard]] TextBuffer& Snapshot() { return snapshot_; }

  void Start();
  void Next();
  void Replace();
  void ReplaceAll();
  void New();
  void PickRow(std::size_t row);

 private:
  bool Seek();
  void SeekOn();
  void ReportNothing();

  TextBuffer& buffer_;
  Platform& platform_;
  TextBuffer snapshot_;
  std::size_t found_pos_ = 0;
  std::size_t found_count_ = 0;
  std::size_t replaced_count_ = 0;
};

// The result of ReplaceAll. required: each hit becomes character 255 first. Then each character 255 becomes the
// replacement, even one that was in the text. With an empty replacement, the 2nd, 4th, 6th ... of adjacent characters
// 255 stay.
std::string ReplaceAllByMarker(std::string_view text, std::string_view find, std::string_view change);

}  // namespace pelmar
