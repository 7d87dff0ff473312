// `O`, the about window: version, user, notes of this version, and a name that plays with its letters under the mouse.
#pragma once

#include <memory>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"
#include "shell/settings_record.h"

namespace Ui {
class O;
}

namespace pelmar {

class O : public DialogWindow {
  Q_OBJECT

 public:
  O(const SettingsRecord& settings, Platform& platform, QWidget* parent);
  ~O() override;

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  const SettingsRecord& settings_;
  Platform& platform_;
  std::unique_ptr<Ui::O> ui_;
};

}  // namespace pelmar
