#include "files/windows/otevri.h"

#include <QDir>

#include "platform/qt/convert.h"
#include "ui_otevri.h"

namespace pelmar {

Otevri::Otevri(Opener& opener, Platform& platform, QWidget* parent)
    : DialogWindow(parent), opener_(opener), platform_(platform), ui_(std::make_unique<Ui::Otevri>()) {
  ui_->setupUi(this);
  ui_->Text2->SetText(ToBytes(kNoPreview));
  ui_->File1->setFocus();
  connect(ui_->Drive1, &DriveList::DriveChanged, ui_->Dir1, &FolderList::SetPath);
  connect(ui_->Dir1, &FolderList::PathChanged, ui_->File1, &FileList::SetPath);
  connect(ui_->Dir1, &FolderList::KeyReleased, this, &Otevri::Dir1_KeyUp);
  connect(ui_->Text1, &QComboBox::currentTextChanged, ui_->File1, &FileList::SetPattern);
  connect(ui_->File1, &FileList::FileClicked, this, &Otevri::File1_Click);
  connect(ui_->Command1, &QPushButton::clicked, this, &Otevri::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Otevri::hide);
  ui_->Dir1->SetPath(QDir::currentPath());
  ui_->Drive1->SetDrive(ui_->Dir1->Path());
}

Otevri::~Otevri() = default;

void Otevri::Dir1_KeyUp(int key) {
  ui_->File1->SetPath(ui_->Dir1->HighlightedPath());
  if (key == Qt::Key_Return || key == Qt::Key_Enter) ui_->Dir1->SetPath(ui_->Dir1->HighlightedPath());
}

void Otevri::File1_Click() {
  ui_->Command1->setEnabled(true);
  const std::string path = JoinPath(Utf8FromQString(ui_->File1->Path()), Utf8FromQString(ui_->File1->FileName()));
  ui_->Label1->setText(Utf8ToQString(path));
  ui_->Text2->SetText(ToBytes(opener_.Preview(path)));
}

void Otevri::Command1_Click() {
  if (platform_.Message(MessageType::kYesNoWarning, "Opravdu otevřít soubor ?", "Soubor") != Answer::kYes) return;
  opener_.OpenPath(Utf8FromQString(ui_->Label1->text()));
  hide();
}

}  // namespace pelmar
