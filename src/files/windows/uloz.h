// The program's own dialog `Ulož` saves the document and shows the target path while the person types. Each open, each
// save and each switch to another tab fills the dialog's fields, if the document's name has an extension. An open or a
// save of a name without an extension fills in only the folder.
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
