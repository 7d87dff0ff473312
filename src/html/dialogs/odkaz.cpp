#include "html/dialogs/odkaz.h"

#include "html/dialogs/form_helpers.h"
#include "html/link.h"
#include "ui_odkaz.h"

namespace pelmar {

Odkaz::Odkaz(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {}

void Odkaz::AddAnchor(const QString& name) {
  const QString typed = ui_->Combo1->currentText();  // adding a row to an empty list replaces this text
  ui_->Combo1->addItem(name);
  ui_->Combo1->setEditText(typed);
  AcceptFreeText(ui_->Combo1);  // Qt would complete a typed "Kotva1" to "Kotva10"
}

bool Odkaz::Put() {
  const std::string name = FieldText(*ui_->Combo1);
  if (name.empty()) return false;
  WrapSelection(buffer_, LinkToAnchor(name));
  return true;
}

}  // namespace pelmar
