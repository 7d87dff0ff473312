// `ZaKod`: the stream cipher over the whole document. The window lives while it works; what may happen meanwhile
// (typing, a press of any button, another document) is provided for here and in RewriteStream.
#pragma once

#include <functional>

#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class ZaKod;
}

namespace pelmar {

struct Editor;

class ZaKod : public FormDialog<Ui::ZaKod> {
  Q_OBJECT

 public:
  // `closed` tells that the program is ending and the documents are stored already.
  ZaKod(Editor& editor, std::function<bool()> closed, QWidget* parent);

 private:
  void Command1_Click();

  Editor& editor_;
  std::function<bool()> closed_;
  bool running_ = false;
};

}  // namespace pelmar
