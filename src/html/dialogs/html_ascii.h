// The dialog `HTMLAscii` inserts the reference to a character by its code.
#pragma once

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class HTMLAscii;
}

namespace pelmar {

class HTMLAscii : public FragmentDialog<Ui::HTMLAscii> {
  Q_OBJECT

 public:
  HTMLAscii(TextBuffer& buffer, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
