// `CHT`: replaces the letters of the whole document by characters that look like them.
#pragma once

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class CHT;
}

namespace pelmar {

class CHT : public FormDialog<Ui::CHT> {
  Q_OBJECT

 public:
  CHT(TextBuffer& buffer, Platform& platform, QWidget* parent);
};

}  // namespace pelmar
