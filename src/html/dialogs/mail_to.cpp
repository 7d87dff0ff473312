#include "html/dialogs/mail_to.h"

#include "html/link.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "ui_mail_to.h"

namespace pelmar {

MailTo::MailTo(TextBuffer& document, const std::string& address, QWidget* parent) : FragmentDialog(document, parent) {
  ui_->Text1->setText(TextToQString(address));
}

bool MailTo::Put() {
  WrapSelection(document_, LinkToMail(FieldText(*ui_->Text1)));
  return true;
}

}  // namespace pelmar
