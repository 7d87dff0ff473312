// The dialog `Nadpis` inserts a heading with its size and alignment.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Nadpis;
}

namespace pelmar {

class Nadpis : public FragmentDialog<Ui::Nadpis> {
  Q_OBJECT

 public:
  Nadpis(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
