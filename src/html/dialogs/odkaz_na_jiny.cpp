#include "html/dialogs/odkaz_na_jiny.h"

#include "html/attributes.h"
#include "html/dialogs/form_helpers.h"
#include "platform/qt/convert.h"
#include "ui_odkaz_na_jiny.h"

namespace pelmar {

OdkazNaJiny::OdkazNaJiny(TextBuffer& document, std::function<void(const std::string&)> show_in_browser, QWidget* parent)
    : DialogWindow(parent), document_(document), ui_(std::make_unique<Ui::OdkazNaJiny>()) {
  ui_->setupUi(this);
  LinkFileChoice(Choice(), std::move(show_in_browser));
  EnableWith(ui_->Check1, {ui_->Text2});
  EnableWith(ui_->Check3, {ui_->Combo2});
  AcceptFreeText(ui_->Combo2);  // the toolkit would make "_self" of a frame of one's own that is called "_s"
  connect(ui_->Option1, &QRadioButton::toggled, this, &OdkazNaJiny::Option_Click);
  // A click on the option that is set already counts as well.
  connect(ui_->Option1, &QRadioButton::clicked, this, &OdkazNaJiny::Option_Click);
  connect(ui_->Option2, &QRadioButton::clicked, this, &OdkazNaJiny::Option_Click);
  connect(ui_->Text1, &QLineEdit::textChanged, this, &OdkazNaJiny::Text1_Change);
  connect(ui_->Command1, &QPushButton::clicked, this, &OdkazNaJiny::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &OdkazNaJiny::hide);
}

OdkazNaJiny::~OdkazNaJiny() = default;

FileChoice OdkazNaJiny::Choice() const {
  return {ui_->Drive1, ui_->Dir1, ui_->File1, ui_->Combo1, ui_->Check2, ui_->Label1, ui_->Command1, ui_->Command3};
}

void OdkazNaJiny::Option_Click() {
  const bool file = ui_->Option1->isChecked();
  ui_->Text1->setEnabled(!file);
  ui_->Frame1->setEnabled(file);
  ui_->Command1->setEnabled(!file || HasFile(Choice()));
}

void OdkazNaJiny::Text1_Change() {
  // required: the fragment is looked at, not the address that is being typed
  ui_->Command1->setEnabled(!ui_->Text2->text().isEmpty());
}

LinkSpec OdkazNaJiny::Read() const {
  LinkSpec link;
  if (ui_->Option1->isChecked())
    link.target = FileAddress(TakePath(Choice(), *ui_->Text), ui_->Check2->isChecked());
  else
    link.target = TextFromQString(ui_->Text1->text());
  link.fragment = Written(ui_->Check1, ui_->Text2);
  link.frame = Written(ui_->Check3, ui_->Combo2);
  return link;
}

void OdkazNaJiny::Command1_Click() {
  InsertLink(document_, LinkToDocument(Read()));
  hide();
}

}  // namespace pelmar
