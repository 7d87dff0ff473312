#include "files/windows/dos_unix_conv.h"

#include "files/encodings.h"
#include "files/line_ends.h"
#include "platform/qt/filelists/file_browser.h"
#include "ui_dos_unix_conv.h"

namespace pelmar {

Dos_Unix_conv::Dos_Unix_conv(Platform& platform, QWidget* parent) : FormDialog(parent), platform_(platform) {
  ui_->Text1->setCurrentText(QStringLiteral("*.*"));
  LinkFileBrowser(ui_->Drive1, ui_->Dir1, ui_->File1, ui_->Text1);
  connect(ui_->File1, &FileList::FileClicked, this, &Dos_Unix_conv::File1_Click);
  connect(ui_->Command1, &QPushButton::clicked, this,
          [this] { Convert([this](const std::string& path) { ConvertToUnix(platform_, path); }); });
  connect(ui_->Command2, &QPushButton::clicked, this,
          [this] { Convert([this](const std::string& path) { ConvertToDos(platform_, path); }); });
  connect(ui_->Command4, &QPushButton::clicked, this,
          [this] { Convert([this](const std::string& path) { ConvertToPage(platform_, path); }); });
  connect(ui_->Command5, &QPushButton::clicked, this, [this] {
    Convert([this](const std::string& path) { ConvertToUtf8(platform_, path, ui_->Check1->isChecked()); });
  });
  connect(ui_->Command3, &QPushButton::clicked, this, &Dos_Unix_conv::hide);
}

void Dos_Unix_conv::File1_Click() {
  for (QPushButton* convert : {ui_->Command1, ui_->Command2, ui_->Command4, ui_->Command5}) convert->setEnabled(true);
  ShowPath(*ui_->Label2, PickedPath(*ui_->File1));
}

void Dos_Unix_conv::Convert(const std::function<void(const std::string& path)>& convert) {
  convert(PathShownBy(*ui_->Label2));
  ui_->File1->SetPath(ui_->File1->Path());  // shows the new file in the list
}

}  // namespace pelmar
