// `Shift`: rotates the selected text by a number of characters. Each opening of the modal dialog reads the selection.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Shift;
}

namespace pelmar {

class Shift : public FragmentDialog<Ui::Shift> {
  Q_OBJECT

 public:
  Shift(TextBuffer& buffer, QWidget* parent);

 private:
  void HScroll1_Change(int value);
  bool Put() override;
};

}  // namespace pelmar
