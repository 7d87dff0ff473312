// The dialog `Odstavec` inserts a paragraph with its alignment.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Odstavec;
}

namespace pelmar {

class Odstavec : public FragmentDialog<Ui::Odstavec> {
  Q_OBJECT

 public:
  Odstavec(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
