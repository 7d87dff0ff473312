// The lock `Pass`: a modal dialog without a close box that hides the documents until the password is right.
#pragma once

#include <functional>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "shell/settings_record.h"

namespace Ui {
class Pass;
}

namespace pelmar {

class Pass : public FormDialog<Ui::Pass> {
  Q_OBJECT

 public:
  // `hide_text` is called with true before the dialog appears, and with false after the right password.
  Pass(const SettingsRecord& settings, Platform& platform, std::function<void(bool)> hide_text, QWidget* parent);

  // Shows the lock and waits until the password is right.
  void Run();

  // Neither Escape nor the window manager closes the dialog.
  void reject() override {}

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Try();

  const SettingsRecord& settings_;
  Platform& platform_;
  std::function<void(bool)> hide_text_;
};

}  // namespace pelmar
