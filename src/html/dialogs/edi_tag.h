// `EdiTag`: the tag around the caret in fields. A fresh one is made for each opening; it blocks the main window, so the
// tag stays selected until it is written over.
#pragma once

#include <functional>
#include <memory>

#include "platform/color.h"
#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class EdiTag;
}

namespace pelmar {

class EdiTag : public DialogWindow {
  Q_OBJECT

 public:
  EdiTag(TextBuffer& document, Platform& platform, std::function<Color(Color)> pick_color, QWidget* parent);
  ~EdiTag() override;

  // Reads the tag, with a message where that fails, and returns when the dialog is closed.
  void Run();

 private:
  void Command3_Click();
  void Command6_Click();
  void SetValue(const QString& value);

  TextBuffer& document_;
  Platform& platform_;
  std::unique_ptr<Ui::EdiTag> ui_;
};

}  // namespace pelmar
