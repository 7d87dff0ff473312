// `DirSetup`: leads the lists of all the dialogs that pick files to one folder. It stores nothing.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class DirSetup;
}

namespace pelmar {

class DriveList;
class FolderList;

class DirSetup : public DialogWindow {
  Q_OBJECT

 public:
  // The lists of one dialog, which is made when they are asked for.
  struct Lists {
    DriveList* Drive1;
    FolderList* Dir1;
  };

  DirSetup(std::vector<std::function<Lists()>> dialogs, QWidget* parent);
  ~DirSetup() override;

 private:
  void Command1_Click();

  std::vector<std::function<Lists()>> dialogs_;
  std::unique_ptr<Ui::DirSetup> ui_;
};

}  // namespace pelmar
