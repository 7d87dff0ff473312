// The dialog `Hr` inserts a horizontal line. The person sets alignment, width and shade.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Hr;
}

namespace pelmar {

class Hr : public FragmentDialog<Ui::Hr> {
  Q_OBJECT

 public:
  Hr(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
