// `Confeld`: shifts letters by the digits of a password, in the document or from one field to another.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class Confeld;
}

namespace pelmar {

class Confeld : public FormDialog<Ui::Confeld> {
  Q_OBJECT

 public:
  Confeld(TextBuffer& buffer, Platform& platform, QWidget* parent);

 private:
  void Apply(std::string (*cipher)(std::string_view text, std::string_view password));
  void Command4_Click();

  TextBuffer& buffer_;
  Platform& platform_;
};

}  // namespace pelmar
