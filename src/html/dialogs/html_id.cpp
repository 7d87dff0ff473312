#include "html/dialogs/html_id.h"

#include "html/blocks.h"
#include "platform/qt/controls/field_helpers.h"
#include "ui_html_id.h"

namespace pelmar {

HtmlID::HtmlID(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {}

bool HtmlID::Put() {
  PutDoctype(buffer_, FieldText(*ui_->Combo1));
  return true;
}

}  // namespace pelmar
