// The modal dialog `Config` for the person's profile: name, e-mail and the password of the lock.
#pragma once

#include <functional>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "shell/profile.h"

namespace Ui {
class Config;
}

namespace pelmar {

class Config : public FormDialog<Ui::Config> {
  Q_OBJECT

 public:
  // `store` writes the settings file.
  Config(SettingsRecord& settings, Platform& platform, std::function<void()> store, QWidget* parent);

  // Fills in name and e-mail address from the settings, and empties the password fields. Then waits until the dialog is
  // closed.
  void Run();

 private:
  void Command1_Click();
  [[nodiscard]] ProfileFields Fields() const;

  SettingsRecord& settings_;
  Platform& platform_;
  std::function<void()> store_;
};

}  // namespace pelmar
