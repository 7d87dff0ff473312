// `ZaKod`: the stream cipher over the whole document. The window lives while it works; what may happen meanwhile
// (typing, a press of any button, another tab) is provided for here and in RewriteStream.
#pragma once

#include <functional>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class ZaKod;
}

namespace pelmar {

class ZaKod : public FormDialog<Ui::ZaKod> {
  Q_OBJECT

 public:
  // `selected_tab` tells which document is in the text box, 0 once the program is ending: the result belongs to no
  // other.
  ZaKod(TextBuffer& document, Platform& platform, std::function<int()> selected_tab, QWidget* parent);

 private:
  void Command1_Click();

  TextBuffer& document_;
  Platform& platform_;
  std::function<int()> selected_tab_;
  bool running_ = false;
};

}  // namespace pelmar
