// The toolbar `Toolbar1`: one action for each key, and the drop-down of recent files behind "Recent".
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

  // Enables every button that has a command by now.
  void Refresh();
  void ShowRecentFiles();
  // All buttons and separators in their order at the start, as after the start whatever was customised since.
  void Reset();
  // The same actions in another order.
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
