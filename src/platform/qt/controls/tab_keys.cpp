#include "platform/qt/controls/tab_keys.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QTabBar>
#include <algorithm>

#include "platform/qt/controls/accessible_face.h"
#include "platform/qt/key_router.h"

namespace pelmar {
namespace {

constexpr int kMostNumbered = 9;
constexpr quint32 kScanCodeOf1 = 10;  // the first key of the number row, on X11 and Wayland

// Handles Alt with a key of the number row. On a Czech keyboard these keys type other characters, so shortcuts such as
// Alt+1 don't match. If a shortcut matches, Qt runs the shortcut, and the key doesn't come here.
bool PickByNumberKey(QTabBar& tabs, const QKeyEvent& press) {
  if (tabs.isHidden() || press.modifiers() != Qt::AltModifier || press.nativeScanCode() < kScanCodeOf1) return false;
  const quint32 tab = press.nativeScanCode() - kScanCodeOf1;
  if (tab >= static_cast<quint32>(std::min(tabs.count(), kMostNumbered))) return false;
  tabs.setCurrentIndex(static_cast<int>(tab));
  return true;
}

}  // namespace

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
  for (int tab = 0; tab < std::min(tabs.count(), kMostNumbered); ++tab)
    on(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + tab)), [tab] { return tab; });
  KeyRouter::Get().Add(KeyTurn::kTabs, window,
                       [&tabs](QWidget&, const QKeyEvent& press) { return PickByNumberKey(tabs, press); });
  QObject::connect(&tabs, &QTabBar::currentChanged, &window, [&] {
    const int tab = tabs.currentIndex();  // a slot called before this one may have gone back
    const QString name = tabs.accessibleTabName(tab);
    Announce(window, name.isEmpty() ? tabs.tabText(tab).remove(u'&') : name);
  });
}

}  // namespace pelmar
