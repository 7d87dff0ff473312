// `Klavesnice`: a Czech keyboard on the screen that types into the document. A click on a key doesn't move the focus.
// While this window is active, the real keyboard types into the document too.
#pragma once

#include <string>

#include "accessories/windows/key_preview.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class Klavesnice;
}

namespace pelmar {

class Klavesnice : public FormDialog<Ui::Klavesnice> {
  Q_OBJECT

 public:
  Klavesnice(TextBuffer& buffer, QWidget* parent);

 private:
  void ConnectKeys();
  void ConnectShift();
  [[nodiscard]] std::string Shifted(const std::string& text) const;
  Preview PhysicalKey(const QKeyEvent& event);

  TextBuffer& buffer_;
};

}  // namespace pelmar
