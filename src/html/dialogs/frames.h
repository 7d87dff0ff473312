// `Frames`: a frameset page around the document.
#pragma once

#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class Frames;
}

namespace pelmar {

class Frames : public DialogWindow {
  Q_OBJECT

 public:
  Frames(TextBuffer& document, QWidget* parent);
  ~Frames() override;

 private:
  void Command1_Click();

  TextBuffer& document_;
  std::unique_ptr<Ui::Frames> ui_;
};

}  // namespace pelmar
