// `Klavesnice`: a Czech keyboard on the screen that types into the document. Its keys don't take the keyboard when they
// are clicked, so what is typed on the real one while this window is the active one lands in the document as well.
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
  Klavesnice(TextBuffer& document, QWidget* parent);

 private:
  void ConnectKeys();
  void ConnectShift();
  [[nodiscard]] std::string Shifted(const std::string& text) const;
  Preview PhysicalKey(const QKeyEvent& event);

  TextBuffer& document_;
};

}  // namespace pelmar
