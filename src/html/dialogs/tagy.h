// The dialog `Tagy` inserts a tag with a typed name, or puts the tag around the selection. The lists of attributes are
// kept for the next opening.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Tagy;
}

namespace pelmar {

class Tagy : public FragmentDialog<Ui::Tagy> {
  Q_OBJECT

 public:
  Tagy(TextBuffer& buffer, QWidget* parent);

  // Inserts the tag from the fields, also while the window is hidden.
  void InsertCustomTag();

 private:
  bool Put() override;
};

}  // namespace pelmar
