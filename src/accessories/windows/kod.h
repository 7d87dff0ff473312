// `kod`: the 256 codes as a grid. A click on a cell inserts the character or its HTML reference into the document, or
// the character into a field of this window. The arrow keys mark a cell, and Enter or the space bar chooses the marked
// cell like a click. While the option for characters in the document is set, typed characters, Enter and the space bar
// go to the main window instead. Ctrl+Enter then chooses the marked cell.
#pragma once

#include <functional>

#include "accessories/windows/key_preview.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class kod;
}

namespace pelmar {

class Kod : public FormDialog<Ui::kod> {
  Q_OBJECT

 public:
  // `stroke_main` sends a key stroke to the main window and returns after the stroke was handled.
  Kod(TextBuffer& buffer, std::function<void(const QKeyEvent&)> stroke_main, QWidget* parent);

 private:
  void Combo1_Change(const QString& font_name);
  void HScroll1_Change(int code);
  void Command3_Click();
  void Command4_Click();
  void Point(int code);
  void Choose(int code);
  Preview TypedKey(const QKeyEvent& event);

  TextBuffer& buffer_;
  std::function<void(const QKeyEvent&)> stroke_main_;
};

}  // namespace pelmar
