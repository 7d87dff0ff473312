// The dialog `Nadpis` puts the selection into a heading with a size and an alignment.
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
