// `ZaKod`: the stream cipher for the whole document. The program handles events while the cipher runs. During a run the
// person may therefore type, click, or open another document.
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
  // `closed` returns true once the person has closed the program.
  ZaKod(Editor& editor, std::function<bool()> closed, QWidget* parent);

 private:
  void Command1_Click();

  Editor& editor_;
  std::function<bool()> closed_;
  bool running_ = false;
};

}  // namespace pelmar
