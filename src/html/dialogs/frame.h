// `Frame`: one FRAME tag at the caret, for a file that is chosen from lists.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "html/dialogs/file_choice.h"
#include "html/frames.h"
#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class Frame;
}

namespace pelmar {

class Frame : public DialogWindow {
  Q_OBJECT

 public:
  Frame(TextBuffer& document, std::function<void(const std::string& path)> show_in_browser, QWidget* parent);
  ~Frame() override;

 private:
  [[nodiscard]] FileChoice Choice() const;
  void ShowBorderColor();
  [[nodiscard]] FrameSpec Read() const;
  void Command1_Click();

  TextBuffer& document_;
  std::unique_ptr<Ui::Frame> ui_;
};

}  // namespace pelmar
