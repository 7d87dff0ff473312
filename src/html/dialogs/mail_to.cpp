#include "html/dialogs/mail_to.h"

#include "html/link.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "ui_mail_to.h"

namespace pelmar {

MailTo::MailTo(TextBuffer& buffer, const std::string& address, QWidget* parent) : FragmentDialog(buffer, parent) {
  ui_->Text1->setText(TextToQString(address));
}

bool MailTo::Put() {
  WrapSelection(buffer_, LinkToMail(FieldText(*ui_->Text1)));
  return true;
}

}  // namespace pelmar
