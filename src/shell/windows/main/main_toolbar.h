// The toolbar `Toolbar1`: one action for each button, and the menu of recent files at the button "Recent".
#pragma once

#include <QToolBar>
#include <array>

#include "files/files.h"
#include "shell/commands.h"

namespace pelmar {

class MainToolbar : public QToolBar {
  Q_OBJECT

 public:
  MainToolbar(const Commands& commands, Files& files, QWidget* parent = nullptr);

  void ShowRecentFiles();
  // Shows all buttons and separators in their original order.
  void Reset();
  // Puts the actions in this order. `order` contains all actions and separators.
  void Arrange(const QList<QAction*>& order);

 Q_SIGNALS:
  void EscapePressed();

 private:
  bool TakesKey(QWidget& receiver, const QKeyEvent& press);
  void AddRecentMenu(QAction* action);

  const Commands& commands_;
  Files& files_;
  QList<QAction*> initial_;
  std::array<QAction*, 10> recent_{};
};

}  // namespace pelmar
