// The dialog `SeznamDef` inserts a list of terms and definitions. The dialog keeps the list for the next opening.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class SeznamDef;
}

namespace pelmar {

class PairedLists;

class SeznamDef : public FragmentDialog<Ui::SeznamDef> {
  Q_OBJECT

 public:
  SeznamDef(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;

  PairedLists* lists_;
};

}  // namespace pelmar
