// The welcome dialog `Start`. A menu item shows the dialog. A start of the program without arguments shows the dialog
// too if the setting ShowStart is on. Any key except a modifier, Caps Lock or Num Lock closes the dialog and shows the
// main window.
#pragma once

#include <functional>

#include "platform/qt/controls/dialog_window.h"
#include "shell/settings_record.h"

namespace Ui {
class Start;
}

namespace pelmar {

class Start : public FormDialog<Ui::Start> {
  Q_OBJECT

 public:
  struct Callbacks {
    std::function<void()> show_main;
    std::function<void()> show_open;
    std::function<void()> show_config;  // modal
  };
  Start(SettingsRecord& settings, Callbacks callbacks);

  void reject() override { Leave(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Leave();
  void Command2_Click();
  void Label9_Click();

  SettingsRecord& settings_;
  Callbacks callbacks_;
};

}  // namespace pelmar
