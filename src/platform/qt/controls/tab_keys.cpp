#include "platform/qt/controls/tab_keys.h"

#include <QShortcut>
#include <QTabBar>
#include <algorithm>

namespace pelmar {

void AddTabKeys(QWidget& window, QTabBar& tabs) {
  const auto on = [&](const QKeySequence& keys, auto next) {
    QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window, [&tabs, next] {
      if (!tabs.isHidden()) tabs.setCurrentIndex(next());
    });
  };
  const auto step = [&tabs](int by) {
    return [&tabs, by] { return (tabs.currentIndex() + by + tabs.count()) % tabs.count(); };
  };
  on(QKeySequence(Qt::CTRL | Qt::Key_Tab), step(1));
  on(QKeySequence(Qt::CTRL | Qt::Key_PageDown), step(1));
  on(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), step(-1));
  on(QKeySequence(Qt::CTRL | Qt::Key_PageUp), step(-1));
  for (int tab = 0; tab < std::min(tabs.count(), 9); ++tab)
    on(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + tab)), [tab] { return tab; });
}

}  // namespace pelmar
