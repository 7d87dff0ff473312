// `Tagy`: a whole tag of the person's own. Its lists stay from one opening to the next.
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

  // Writes the tag that the fields hold, also while the window is hidden.
  void InsertCustomTag();

 private:
  bool Put() override;
};

}  // namespace pelmar
