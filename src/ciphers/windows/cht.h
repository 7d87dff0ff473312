// `CHT`: the common hacker transcription of the whole document.
#pragma once

#include <memory>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class CHT;
}

namespace pelmar {

class CHT : public DialogWindow {
  Q_OBJECT

 public:
  CHT(TextBuffer& document, Platform& platform, QWidget* parent);
  ~CHT() override;

 private:
  std::unique_ptr<Ui::CHT> ui_;
};

}  // namespace pelmar
