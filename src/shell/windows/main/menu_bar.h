// The menus of the main window, made from the menu table. Each item runs the command of its name.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <QPointer>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "shell/commands.h"
#include "shell/menu_table.h"

class QKeyEvent;

namespace pelmar {

class MenuBar : public QMenuBar {
  Q_OBJECT

 public:
  explicit MenuBar(const Commands& commands, QWidget* parent = nullptr);

  // The action of an item or a submenu. Throws std::out_of_range for an unknown name.
  [[nodiscard]] QAction* Action(std::string_view name) const { return actions_.at(std::string(name)); }
  // Null if the item is no submenu.
  [[nodiscard]] QMenu* Submenu(std::string_view name) const { return Action(name)->menu(); }

  // Enables or disables the items that depend on the state. All other items are always enabled.
  void Apply(const MenuState& state);
  // Apply runs only on ticks of the status timer, so an item may still be disabled when the state already allows its
  // command. Runs the command of such an item if `keys` is its shortcut. `now` computes the present state. True if
  // `keys` is the shortcut of such an item.
  bool RunIfNowEnabled(const QKeyEvent& keys, const std::function<MenuState()>& now) const;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool OpenByAccessKey(const QKeySequence& key);
  void CloseMenus();
  bool KeyInMenu(QMenu& menu, const QKeyEvent& key);
  void SetEnabled(std::span<const std::string_view> names, bool enabled);

  const Commands& commands_;
  QPointer<QWidget> before_;  // had the keyboard focus before the menu bar
  bool alt_alone_ = false;    // Alt was pressed in an open menu, and no other key since
  std::map<std::string, QAction*, std::less<>> actions_;
};

}  // namespace pelmar
