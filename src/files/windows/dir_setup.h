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

struct FolderBrowser;

class DirSetup : public DialogWindow {
  Q_OBJECT

 public:
  // The folder browsers of the dialogs, each of which is made when it is asked for.
  DirSetup(const std::vector<std::function<FolderBrowser()>>& dialogs, QWidget* parent);
  ~DirSetup() override;

 private:
  void Command1_Click();

  const std::vector<std::function<FolderBrowser()>>& dialogs_;
  std::unique_ptr<Ui::DirSetup> ui_;
};

}  // namespace pelmar
