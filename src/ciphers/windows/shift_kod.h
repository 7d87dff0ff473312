// `ShiftKod`: shifts letters by 0 to 26, in the document or from one field to another.
#pragma once

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class ShiftKod;
}

namespace pelmar {

class ShiftKod : public FormDialog<Ui::ShiftKod> {
  Q_OBJECT

 public:
  ShiftKod(TextBuffer& buffer, Platform& platform, QWidget* parent);

 private:
  void HScroll1_Change(int value);
  void Command4_Click();
  void Apply(int shift);
  void ShowQuickText(int shift);

  TextBuffer& buffer_;
  Platform& platform_;
};

}  // namespace pelmar
