// `Ulož`: the program's own dialog for saving, a live preview of the target path. It remembers the last file: each
// open, each save and each switch to a tab with a path primes it.
#pragma once

#include "files/save.h"
#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class Uloz;
}

namespace pelmar {

class Uloz : public FormDialog<Ui::Uloz> {
  Q_OBJECT

 public:
  Uloz(Documents& documents, Saver& saver, QWidget* parent);

 private:
  void FieldChanged();
  void Command1_Click();
  void TakeTarget();

  Documents& documents_;
  Saver& saver_;
  Listening priming_;
};

}  // namespace pelmar
