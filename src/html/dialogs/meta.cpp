#include "html/dialogs/meta.h"

#include "html/dialogs/form_helpers.h"
#include "ui_meta.h"

namespace pelmar {

Meta::Meta(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {
  ui_->Combo1->setCurrentText(QStringLiteral("Vyber meta-tag"));
  AcceptFreeText(ui_->Combo1);
}

bool Meta::Put() { return Insert(FieldText(*ui_->Combo1)); }

}  // namespace pelmar
