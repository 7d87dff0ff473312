// The program's own dialog `Ulož` saves the document and shows the target path while the person types. Each open, each
// save and each switch to a tab with a path fills the dialog's fields. A name without an extension isn't filled in.
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
  void ShowName(const SaveTarget& target);

  Documents& documents_;
  Saver& saver_;
  Listening listening_;
};

}  // namespace pelmar
