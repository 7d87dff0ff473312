// `Hlp`, the help window: the text of pelmar.txt and a search in it.
#pragma once

#include <functional>
#include <memory>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"

namespace Ui {
class Hlp;
}

namespace pelmar {

class Hlp : public DialogWindow {
  Q_OBJECT

 public:
  Hlp(Platform& platform, std::function<void()> show_about, QWidget* parent);
  ~Hlp() override;

 private:
  void Load();
  void Command5_Click();

  Platform& platform_;
  std::function<void()> show_about_;
  std::unique_ptr<Ui::Hlp> ui_;
};

}  // namespace pelmar
