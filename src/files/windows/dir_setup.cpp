#include "files/windows/dir_setup.h"

#include "platform/qt/controls/file_browser.h"
#include "ui_dir_setup.h"

namespace pelmar {

DirSetup::DirSetup(std::vector<std::function<Lists()>> dialogs, QWidget* parent)
    : DialogWindow(parent), dialogs_(std::move(dialogs)), ui_(std::make_unique<Ui::DirSetup>()) {
  ui_->setupUi(this);
  LinkFolderBrowser(ui_->Drive1, ui_->Dir1);
  connect(ui_->Command1, &QPushButton::clicked, this, &DirSetup::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &DirSetup::hide);
}

DirSetup::~DirSetup() = default;

void DirSetup::Command1_Click() {
  for (const auto& lists : dialogs_) lists().Drive1->SetDrive(ui_->Drive1->Drive());
  for (const auto& lists : dialogs_) {
    FolderList* const folders = lists().Dir1;
    const bool there = folders->Path() == ui_->Dir1->Path();
    folders->SetPath(ui_->Dir1->Path());
    // The choice counts for the dialog also where its list stood there already.
    if (there) Q_EMIT folders->PathChanged(folders->Path());
  }
  hide();
}

}  // namespace pelmar
