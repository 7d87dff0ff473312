// The dialog `Frames` puts a frameset page around the document.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Frames;
}

namespace pelmar {

class Frames : public FragmentDialog<Ui::Frames> {
  Q_OBJECT

 public:
  Frames(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
