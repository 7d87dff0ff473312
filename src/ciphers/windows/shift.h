// `Shift`: the selected text rotated by whole characters. Modal; it begins anew with the selection of each opening.
#pragma once

#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class Shift;
}

namespace pelmar {

class Shift : public DialogWindow {
  Q_OBJECT

 public:
  Shift(TextBuffer& document, QWidget* parent);
  ~Shift() override;

 private:
  void HScroll1_Change(int value);
  void Command1_Click();

  TextBuffer& document_;
  std::unique_ptr<Ui::Shift> ui_;
};

}  // namespace pelmar
