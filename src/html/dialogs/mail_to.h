// The dialog `MailTo` makes the selection a link to an e-mail address.
#pragma once

#include <string>

#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class MailTo;
}

namespace pelmar {

class MailTo : public FragmentDialog<Ui::MailTo> {
  Q_OBJECT

 public:
  // `address` is the initial text of the field, in Windows-1250.
  MailTo(TextBuffer& buffer, const std::string& address, QWidget* parent);

 private:
  bool Put() override;
};

}  // namespace pelmar
