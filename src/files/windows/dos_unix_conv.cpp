#include "files/windows/dos_unix_conv.h"

#include "files/line_ends.h"
#include "platform/qt/controls/file_browser.h"
#include "platform/qt/convert.h"
#include "ui_dos_unix_conv.h"

namespace pelmar {

Dos_Unix_conv::Dos_Unix_conv(Platform& platform, QWidget* parent)
    : DialogWindow(parent), platform_(platform), ui_(std::make_unique<Ui::Dos_Unix_conv>()) {
  ui_->setupUi(this);
  LinkFileBrowser(ui_->Drive1, ui_->Dir1, ui_->File1, ui_->Text1);
  connect(ui_->File1, &FileList::FileClicked, this, &Dos_Unix_conv::File1_Click);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Convert(ConvertToUnix); });
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { Convert(ConvertToDos); });
  connect(ui_->Command3, &QPushButton::clicked, this, &Dos_Unix_conv::hide);
}

Dos_Unix_conv::~Dos_Unix_conv() = default;

void Dos_Unix_conv::File1_Click() {
  ui_->Command1->setEnabled(true);
  ui_->Command2->setEnabled(true);
  ui_->Label2->setText(Utf8ToQString(PickedPath(*ui_->File1)));
}

void Dos_Unix_conv::Convert(void (*convert)(Platform&, const std::string& path)) {
  convert(platform_, Utf8FromQString(ui_->Label2->text()));
  ui_->File1->SetPath(ui_->File1->Path());  // the new file shows
}

}  // namespace pelmar
