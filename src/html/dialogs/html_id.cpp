#include "html/dialogs/html_id.h"

#include "html/blocks.h"
#include "platform/qt/controls/field_helpers.h"
#include "ui_html_id.h"

namespace pelmar {

HtmlID::HtmlID(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}

bool HtmlID::Put() {
  PutDoctype(document_, FieldText(*ui_->Combo1));
  return true;
}

}  // namespace pelmar
