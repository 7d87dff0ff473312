#include "html/dialogs/html_ascii.h"

#include "html/blocks.h"
#include "html/dialogs/form_helpers.h"
#include "platform/qt/convert.h"
#include "text/codepage.h"
#include "ui_html_ascii.h"

namespace pelmar {

HTMLAscii::HTMLAscii(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {
  ShowValue(ui_->HScroll1, ui_->Label1);
  ShowValue(ui_->HScroll1, ui_->Label2, [](int value) { return TextToQString(std::string(1, CharOf(value))); });
}

bool HTMLAscii::Put() { return Insert(CharacterReference(ui_->HScroll1->value())); }

}  // namespace pelmar
