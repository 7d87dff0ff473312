// The dialog `HTMLAscii` inserts a character reference, for example "&#160;".
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
