// The dialog `Smajl` inserts a smiley of five parts.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Smajl;
}

namespace pelmar {

class Smajl : public FragmentDialog<Ui::Smajl> {
  Q_OBJECT

 public:
  Smajl(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
