// The dialog `Zlomek` inserts a fraction.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Zlomek;
}

namespace pelmar {

class Zlomek : public FragmentDialog<Ui::Zlomek> {
  Q_OBJECT

 public:
  Zlomek(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
