// The dialog `DirSetup` sets the folder of all the program's own dialogs that pick files. The settings don't store this
// folder.
#pragma once

#include <functional>
#include <vector>

#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class DirSetup;
}

namespace pelmar {

struct FolderBrowser;

class DirSetup : public FormDialog<Ui::DirSetup> {
  Q_OBJECT

 public:
  // Each function of `dialogs` creates its dialog if necessary, and returns the dialog's folder browser.
  DirSetup(const std::vector<std::function<FolderBrowser()>>& dialogs, QWidget* parent);

 private:
  void Command1_Click();

  const std::vector<std::function<FolderBrowser()>>& dialogs_;
};

}  // namespace pelmar
