#include "html/dialogs/mail_to.h"

#include "html/link.h"
#include "platform/qt/convert.h"
#include "ui_mail_to.h"

namespace pelmar {

MailTo::MailTo(TextBuffer& document, const std::string& address, QWidget* parent)
    : DialogWindow(parent), document_(document), ui_(std::make_unique<Ui::MailTo>()) {
  ui_->setupUi(this);
  ui_->Text1->setText(TextToQString(address));
  connect(ui_->Command1, &QPushButton::clicked, this, &MailTo::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &MailTo::hide);
}

MailTo::~MailTo() = default;

void MailTo::Command1_Click() {
  InsertLink(document_, LinkToMail(TextFromQString(ui_->Text1->text())));
  hide();
}

}  // namespace pelmar
