// `Confeld`: letters moved by the digits of a password, over the document or over a pair of fields for quick text.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class Confeld;
}

namespace pelmar {

class Confeld : public DialogWindow {
  Q_OBJECT

 public:
  Confeld(TextBuffer& document, Platform& platform, QWidget* parent);
  ~Confeld() override;

 private:
  void Apply(std::string (*cipher)(std::string_view text, std::string_view password));
  void Command4_Click();

  TextBuffer& document_;
  Platform& platform_;
  std::unique_ptr<Ui::Confeld> ui_;
};

}  // namespace pelmar
