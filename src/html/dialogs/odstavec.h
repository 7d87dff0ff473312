// The dialog `Odstavec` puts the selection into a paragraph with an alignment.
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
