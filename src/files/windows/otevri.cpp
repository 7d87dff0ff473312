#include "files/windows/otevri.h"

#include "files/encodings.h"
#include "platform/qt/convert.h"
#include "platform/qt/filelists/file_browser.h"
#include "ui_otevri.h"

namespace pelmar {
Otevri::Otevri(Opener& opener, Platform& platform, QWidget* parent)
    : FormDialog(parent), opener_(opener), platform_(platform) {
  setObjectName(QStringLiteral("Otevři"));
  ui_->Text1->setCurrentText(QStringLiteral("*.*"));
  ui_->Text2->SetText(ToBytes(kNoPreview));
  LinkFileBrowser(ui_->Drive1, ui_->Dir1, ui_->File1, ui_->Text1);
  connect(ui_->File1, &FileList::FileClicked, this, &Otevri::File1_Click);
  connect(ui_->File1, &FileList::FileActivated, ui_->Command1, &QPushButton::click);
  connect(ui_->Command1, &QPushButton::clicked, this, &Otevri::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Otevri::hide);
}

void Otevri::File1_Click() {
  ui_->Command1->setEnabled(true);
  const std::string path = PickedPath(*ui_->File1);
  ShowPath(*ui_->Label1, path);
  const std::string preview = opener_.Preview(path);
  ui_->Text2->SetText(ToBytes(preview));
  const QString hint = Utf8ToQString(FormatHint(preview));
  ui_->Label3->setText(hint);
  ui_->Label3->setToolTip(hint);  // a narrow dialog cuts the text
}

void Otevri::Command1_Click() {
  if (!platform_.Confirmed("Opravdu otevřít soubor ?", "Soubor")) return;
  opener_.OpenPath(PathShownBy(*ui_->Label1));
  hide();
}

}  // namespace pelmar
