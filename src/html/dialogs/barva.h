// The dialog `Barva` puts the selection into a FONT tag. Size, face and colour are optional.
#pragma once

#include <functional>

#include "platform/color.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Barva;
}

namespace pelmar {

class Barva : public FragmentDialog<Ui::Barva> {
  Q_OBJECT

 public:
  Barva(TextBuffer& buffer, std::function<Color(Color)> pick_color, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
