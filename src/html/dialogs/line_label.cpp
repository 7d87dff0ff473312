#include "html/dialogs/line_label.h"

#include "html/blocks.h"
#include "platform/qt/controls/field_helpers.h"
#include "ui_line_label.h"

namespace pelmar {

LineLabel::LineLabel(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {}

bool LineLabel::Put() { return Insert(LinedHeading(FieldText(*ui_->Text1))); }

}  // namespace pelmar
