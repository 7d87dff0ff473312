#include "html/dialogs/zlomek.h"

#include "html/blocks.h"
#include "platform/qt/controls/field_helpers.h"
#include "ui_zlomek.h"

namespace pelmar {

Zlomek::Zlomek(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {}

bool Zlomek::Put() { return Insert(Fraction(FieldText(*ui_->Text1), FieldText(*ui_->Text2))); }

}  // namespace pelmar
