#include "files/windows/dir_setup.h"

#include "platform/qt/filelists/file_browser.h"
#include "ui_dir_setup.h"

namespace pelmar {

DirSetup::DirSetup(const std::vector<std::function<FolderBrowser()>>& dialogs, QWidget* parent)
    : FormDialog(parent), dialogs_(dialogs) {
  LinkFolderBrowser(ui_->Drive1, ui_->Dir1);
  connect(ui_->Command1, &QPushButton::clicked, this, &DirSetup::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &DirSetup::hide);
}

void DirSetup::Command1_Click() {
  for (const auto& browser : dialogs_) browser().drives->SetDrive(ui_->Drive1->Drive());
  for (const auto& browser : dialogs_) browser().folders->SetPath(ui_->Dir1->Path());
  hide();
}

}  // namespace pelmar
