#include "files/windows/uloz.h"

#include "platform/qt/convert.h"
#include "platform/qt/filelists/file_browser.h"
#include "ui_uloz.h"

namespace pelmar {

Uloz::Uloz(Documents& documents, Saver& saver, QWidget* parent)
    : FormDialog(parent), documents_(documents), saver_(saver) {
  setObjectName(QStringLiteral("Ulož"));
  LinkFileBrowser(ui_->Drive1, ui_->Dir1, ui_->File1);
  ui_->Text1->setFocus();
  ui_->Text2->setCompleter(nullptr);  // a completer would replace a typed "h" by "html"
  connect(ui_->Dir1, &FolderList::Entered, this, &Uloz::FieldChanged);
  connect(ui_->Text1, &QLineEdit::textChanged, this, &Uloz::FieldChanged);
  connect(ui_->Text2, &QComboBox::currentTextChanged, this, &Uloz::FieldChanged);
  connect(ui_->Text2, &QComboBox::textActivated, this, &Uloz::FieldChanged);  // also if the same extension is chosen
  connect(ui_->Command1, &QPushButton::clicked, this, &Uloz::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Uloz::hide);
  listening_ = documents_.Target().path_set.Add([this] { TakeTarget(); });
  const SaveTarget& target = documents_.Target();
  if (!target.HasPath()) return;
  if (target.HasName()) ShowName(target);  // TakeTarget leaves the name alone for a path without an extension
  TakeTarget();
}

void Uloz::ShowName(const SaveTarget& target) {
  ui_->Text1->setText(Utf8ToQString(target.Name()));
  const QString extension = Utf8ToQString(target.Extension());
  ui_->Text2->setCurrentIndex(ui_->Text2->findText(extension));  // so that the arrow keys start there
  ui_->Text2->setCurrentText(extension);
}

void Uloz::FieldChanged() {
  ui_->Command1->setEnabled(true);
  // An unchanged field stands for the original bytes. A conversion to QString and back might change these bytes.
  const SaveTarget& target = documents_.Target();
  const auto typed = [](const QString& text, const std::string& shown) {
    return text == Utf8ToQString(shown) ? shown : Utf8FromQString(text);
  };
  ShowPath(*ui_->Label1, TargetPath(PathFromQString(ui_->Dir1->Path()), typed(ui_->Text1->text(), target.Name()),
                                    typed(ui_->Text2->currentText(), target.Extension())));
}

void Uloz::TakeTarget() {
  const SaveTarget& target = documents_.Target();
  ui_->Command1->setEnabled(true);
  const QString folder = PathToQString(target.Folder());
  ui_->Drive1->SetDrive(folder);
  ui_->Dir1->SetPath(folder);
  if (!target.Complete()) return FieldChanged();
  ShowName(target);
  ShowPath(*ui_->Label1, target.Path());
}

void Uloz::Command1_Click() {
  saver_.SaveToPath(PathShownBy(*ui_->Label1));
  hide();
}

}  // namespace pelmar
