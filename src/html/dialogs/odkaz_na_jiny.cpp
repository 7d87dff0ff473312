#include "html/dialogs/odkaz_na_jiny.h"

#include "html/attributes.h"
#include "html/dialogs/form_helpers.h"
#include "ui_odkaz_na_jiny.h"

namespace pelmar {

OdkazNaJiny::OdkazNaJiny(TextBuffer& buffer, std::function<void(const std::string&)> show_in_browser, QWidget* parent)
    : FragmentDialog(buffer, parent), choice_(FileChoice::Of(*ui_, ui_->Check2, ui_->Label1)) {
  setObjectName(QStringLiteral("OdkazNaJiný"));
  choice_.Link(std::move(show_in_browser));
  EnableWith(ui_->Check1, {ui_->Text2});
  EnableWith(ui_->Check3, {ui_->Combo2});
  AcceptFreeText(ui_->Combo2);  // Qt would complete the name "_s" of a frame to "_self"
  connect(ui_->Option1, &QRadioButton::toggled, this, &OdkazNaJiny::Option_Click);
  // A click on an option that is already set counts too.
  connect(ui_->Option1, &QRadioButton::clicked, this, &OdkazNaJiny::Option_Click);
  connect(ui_->Option2, &QRadioButton::clicked, this, &OdkazNaJiny::Option_Click);
  connect(ui_->Text1, &QLineEdit::textChanged, this, &OdkazNaJiny::Text1_Change);
}

void OdkazNaJiny::Option_Click() {
  const bool file = ui_->Option1->isChecked();
  ui_->Text1->setEnabled(!file);
  ui_->Frame1->setEnabled(file);
  ui_->Command1->setEnabled(!file || choice_.HasFile());
}

void OdkazNaJiny::Text1_Change() {
  // required: the fragment, not the typed address, decides whether Ok is enabled
  ui_->Command1->setEnabled(!ui_->Text2->text().isEmpty());
}

LinkSpec OdkazNaJiny::Read() const {
  LinkSpec link;
  if (ui_->Option1->isChecked())
    link.target = FileAddress(choice_.TakePath(*ui_->Text), ui_->Check2->isChecked());
  else
    link.target = FieldText(*ui_->Text1);
  link.fragment = TextIfChecked(ui_->Check1, ui_->Text2);
  link.frame = TextIfChecked(ui_->Check3, ui_->Combo2);
  return link;
}

bool OdkazNaJiny::Put() {
  WrapSelection(buffer_, LinkToDocument(Read()));
  return true;
}

}  // namespace pelmar
