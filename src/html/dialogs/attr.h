// The dialog `Attr` adds attributes to a tag in the text. The lists of attributes are kept for the next opening.
#pragma once

#include "platform/platform.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Attr;
}

namespace pelmar {

class Attr : public FragmentDialog<Ui::Attr> {
  Q_OBJECT

 public:
  Attr(TextBuffer& buffer, Platform& platform, QWidget* parent);

 private:
  bool Put() override;

  Platform& platform_;
};

}  // namespace pelmar
