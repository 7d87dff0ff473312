// `Pass`, the lock: modal and without a close box, so that nothing gets at the documents until the password is right.
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
  // `hide_text` is told true when the lock closes in on the text and false when it opens.
  Pass(const SettingsRecord& settings, Platform& platform, std::function<void(bool)> hide_text, QWidget* parent);

  // Waits until the lock is open.
  void Run();

  // Neither Escape nor the window manager opens the lock.
  void reject() override {}

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Try();

  const SettingsRecord& settings_;
  Platform& platform_;
  std::function<void(bool)> hide_text_;
};

}  // namespace pelmar
