// The help window `Hlp` shows the text of pelmar.txt and searches in it.
#pragma once

#include <functional>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class Hlp;
}

namespace pelmar {

class Hlp : public FormDialog<Ui::Hlp> {
  Q_OBJECT

 public:
  Hlp(Platform& platform, std::function<void()> show_about, QWidget* parent);

 private:
  void Command5_Click();

  Platform& platform_;
  std::function<void()> show_about_;
};

}  // namespace pelmar
