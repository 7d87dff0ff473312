// The about window `O`: version, user, notes, and the program's name. When the mouse moves over the window, each letter
// of the name becomes upper or lower case at random.
#pragma once

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "shell/settings_record.h"

namespace Ui {
class O;
}

namespace pelmar {

class O : public FormDialog<Ui::O> {
  Q_OBJECT

 public:
  O(const SettingsRecord& settings, Platform& platform, QWidget* parent);

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void MixCase();

  const SettingsRecord& settings_;
  Platform& platform_;
};

}  // namespace pelmar
