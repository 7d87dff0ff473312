// `Morse`: a read-only box that collects Morse signs from the menus, from typed keys and from the clipboard.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "platform/qt/controls/dialog_window.h"

class QMenu;
class QMenuBar;

namespace Ui {
class Morse;
}

namespace pelmar {

class Morse : public FormDialog<Ui::Morse> {
  Q_OBJECT

 public:
  Morse(Platform& platform, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddMenus();
  QMenu* AddMenu(QMenuBar* bar, std::string_view name, std::string_view caption);
  void AddItem(QMenu* menu, std::string_view name, std::string_view caption, std::function<void()> run);
  void mnu_clipmorse_Click();
  void mnuMakeMorse_Click();

  Platform& platform_;
};

}  // namespace pelmar
