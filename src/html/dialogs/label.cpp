#include "html/dialogs/label.h"

#include "html/blocks.h"
#include "platform/qt/controls/field_helpers.h"
#include "ui_label.h"

namespace pelmar {

Label::Label(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {}

bool Label::Put() { return Insert(TableHeading(FieldText(*ui_->Text1))); }

}  // namespace pelmar
