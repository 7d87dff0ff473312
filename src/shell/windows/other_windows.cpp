#include "shell/windows/other_windows.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>

namespace pelmar {

OtherWindowsAway::OtherWindowsAway(const std::vector<const QWidget*>& staying) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const bool stays = std::ranges::find(staying, window) != staying.end();
    if (stays || !window->isVisible()) continue;
    away_.emplace_back(window);
    SetVisible(*window, false);
  }
}

OtherWindowsAway::~OtherWindowsAway() {
  for (const QPointer<QWidget>& window : away_)
    if (window) SetVisible(*window, true);
}

void OtherWindowsAway::SetVisible(QWidget& window, bool visible) {
  const bool activates = !window.testAttribute(Qt::WA_ShowWithoutActivating);
  window.setAttribute(Qt::WA_ShowWithoutActivating);
  window.installEventFilter(this);
  window.QWidget::setVisible(visible);  // a dialog's own setVisible would close a modal dialog
  window.removeEventFilter(this);
  window.setAttribute(Qt::WA_ShowWithoutActivating, !activates);
}

bool OtherWindowsAway::eventFilter(QObject*, QEvent* event) {
  return event->type() == QEvent::Show || event->type() == QEvent::Hide;
}

}  // namespace pelmar
