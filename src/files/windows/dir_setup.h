// `DirSetup`: leads the lists of all the dialogs that pick files to one folder. It stores nothing.
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
  // The folder browsers of the dialogs, each of which is made when it is asked for.
  DirSetup(const std::vector<std::function<FolderBrowser()>>& dialogs, QWidget* parent);

 private:
  void Command1_Click();

  const std::vector<std::function<FolderBrowser()>>& dialogs_;
};

}  // namespace pelmar
