#include "platform/qt/frames/dialog_parent.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "platform/qt/frames/outer_geometry.h"

namespace pelmar {
namespace {

QPointer<QWidget>& Expected() {
  static QPointer<QWidget> expected;
  return expected;
}

// This property marks the windows that PutAboveAll was called for. They don't count as windows on top.
constexpr char kFollowsTop[] = "followsTop";

// Whether a window that stays on top by itself is visible.
bool HasWindowOnTop() {
  return std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget* one) {
    if (!one->isVisible() || one->property(kFollowsTop).toBool()) return false;
    const QWindow* system = one->windowHandle();
    return (system != nullptr ? system->flags() : one->windowFlags()).testFlag(Qt::WindowStaysOnTopHint);
  });
}

}  // namespace

QWidget* DialogParent() {
  if (QWidget* expected = Expected(); expected != nullptr && expected->isVisible()) return expected;
  if (QWidget* active = QApplication::activeWindow()) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto editor = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->objectName() == QLatin1String("Main") && window->isVisible() && !window->isMinimized();
  });
  return editor == windows.end() ? nullptr : *editor;
}

void ExpectActive(QWidget* window) {
  [[maybe_unused]] static const auto forgets =
      QObject::connect(qApp, &QGuiApplication::focusWindowChanged, qApp, [](const QWindow* now) {
        if (now != nullptr) Expected() = nullptr;
      });
  Expected() = window;
  if (window != nullptr && window->isVisible()) window->activateWindow();
}

void PutAboveAll(QWidget& window) {
  window.setProperty(kFollowsTop, true);
  SetAlwaysOnTop(window, HasWindowOnTop());
}

void KeepAboveAll(QWidget& window) {
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &window, [&window](const QWindow* now) {
    if (!window.isVisible()) return;
    const QWindow* own = window.windowHandle();
    const bool has_focus = now != nullptr && (now == own || now->transientParent() == own);
    if (has_focus || !HasWindowOnTop()) return PutAboveAll(window);
    if (now == nullptr || window.parentWidget() != nullptr) return;
    SetAlwaysOnTop(window, false);
    // Some window managers raise a window when it stops staying on top, so the focused window is raised again.
    const_cast<QWindow*>(now)->raise();
  });
}

void ShowOnParentsScreen(QWidget& window) {
  if (const QWidget* parent = DialogParent()) window.setScreen(parent->screen());
}

}  // namespace pelmar
