// The dialog `Label` inserts a heading in the form of a table.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Label;
}

namespace pelmar {

class Label : public FragmentDialog<Ui::Label> {
  Q_OBJECT

 public:
  Label(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
