// `MailTo`: a link that writes an e-mail.
#pragma once

#include <memory>
#include <string>

#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class MailTo;
}

namespace pelmar {

class MailTo : public DialogWindow {
  Q_OBJECT

 public:
  // `address` is what the field begins with, Windows-1250.
  MailTo(TextBuffer& document, const std::string& address, QWidget* parent);
  ~MailTo() override;

 private:
  void Command1_Click();

  TextBuffer& document_;
  std::unique_ptr<Ui::MailTo> ui_;
};

}  // namespace pelmar
