#include "files/windows/uloz.h"

#include "platform/qt/controls/file_browser.h"
#include "platform/qt/convert.h"
#include "ui_uloz.h"

namespace pelmar {

Uloz::Uloz(Documents& documents, Saver& saver, QWidget* parent)
    : DialogWindow(parent), documents_(documents), saver_(saver), ui_(std::make_unique<Ui::Uloz>()) {
  ui_->setupUi(this);
  LinkFileBrowser(ui_->Drive1, ui_->Dir1, ui_->File1);
  ui_->Text1->setFocus();
  ui_->Text2->setCompleter(nullptr);  // it would make "html" of a typed "h"
  connect(ui_->Dir1, &FolderList::PathChanged, this, &Uloz::FieldChanged);
  connect(ui_->Text1, &QLineEdit::textChanged, this, &Uloz::FieldChanged);
  connect(ui_->Text2, &QComboBox::currentTextChanged, this, &Uloz::FieldChanged);
  connect(ui_->Text2, &QComboBox::textActivated, this, &Uloz::FieldChanged);  // the same extension again counts too
  connect(ui_->Command1, &QPushButton::clicked, this, &Uloz::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Uloz::hide);
  documents_.Target().on_primed = [this] { TakeTarget(); };
  if (documents_.Target().primed) TakeTarget();
}

Uloz::~Uloz() { documents_.Target().on_primed = nullptr; }

void Uloz::FieldChanged() {
  ui_->Command1->setEnabled(true);
  ui_->Label1->setText(Utf8ToQString(TargetPath(Utf8FromQString(ui_->Dir1->Path()), Utf8FromQString(ui_->Text1->text()),
                                                Utf8FromQString(ui_->Text2->currentText()))));
}

void Uloz::TakeTarget() {
  const SaveTarget& target = documents_.Target();
  ui_->Command1->setEnabled(true);
  ui_->Drive1->SetDrive(Utf8ToQString(target.folder));
  ui_->Dir1->SetPath(Utf8ToQString(target.folder));
  if (!target.complete) return;
  ui_->Text1->setText(Utf8ToQString(target.name));
  ui_->Text2->setCurrentText(Utf8ToQString(target.extension));
  ui_->Label1->setText(Utf8ToQString(target.label));
}

void Uloz::Command1_Click() {
  saver_.SaveToPath(Utf8FromQString(ui_->Label1->text()));
  hide();
}

}  // namespace pelmar
