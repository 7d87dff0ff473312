// The dialog `Frame` inserts a FRAME tag for a file.
#pragma once

#include "html/dialogs/file_choice.h"
#include "html/frames.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Frame;
}

namespace pelmar {

class Frame : public FragmentDialog<Ui::Frame> {
  Q_OBJECT

 public:
  Frame(TextBuffer& buffer, std::function<void(const std::string& path)> show_in_browser, QWidget* parent);

 private:
  void ShowBorderColor();
  [[nodiscard]] FrameSpec Read() const;
  bool Put() override;

  FileChoice choice_;
};

}  // namespace pelmar
