// The menus of the main window, made from the table: actions and submenus by their names, each wired to its command.
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

  // The action of an item, the menu's own for a submenu. A name that doesn't exist throws std::out_of_range.
  [[nodiscard]] QAction* Action(std::string_view name) const { return actions_.at(std::string(name)); }
  // Null for an item that is none.
  [[nodiscard]] QMenu* Submenu(std::string_view name) const { return Action(name)->menu(); }

  // Enables every item that has a command or a menu by now.
  void Refresh();
  // Enables the groups of items that follow the state of the text; an item without a command stays disabled.
  void Apply(const MenuState& state);
  // The grey of an item is only as fresh as the last Apply. Runs the command that has these keys and is grey, by itself
  // or by its menu, but that the state `now` allows. Asks for that state only then. False when there is no such
  // command.
  bool RunGrey(const QKeyEvent& keys, const std::function<MenuState()>& now) const;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool OpenByAccessKey(const QKeySequence& key);
  void CloseMenus();
  bool KeyInMenu(QMenu& menu, const QKeyEvent& key);
  void SetEnabled(std::span<const std::string_view> names, bool enabled);
  [[nodiscard]] bool Served(const QAction* action, std::string_view name) const;

  const Commands& commands_;
  QPointer<QWidget> before_;  // had the keyboard before the bar
  bool alt_alone_ = false;    // pressed over an open menu, and nothing since
  std::map<std::string, QAction*, std::less<>> actions_;
};

}  // namespace pelmar
