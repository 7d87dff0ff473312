// The program's own dialog `Otevři` opens a file. The dialog has folders, a name mask and a preview.
#pragma once

#include "files/open.h"
#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class Otevri;
}

namespace pelmar {

class Otevri : public FormDialog<Ui::Otevri> {
  Q_OBJECT

 public:
  Otevri(Opener& opener, Platform& platform, QWidget* parent);

 private:
  void File1_Click();
  void Command1_Click();

  Opener& opener_;
  Platform& platform_;
};

}  // namespace pelmar
