#include "shell/windows/other_windows.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QEvent>
#include <algorithm>

namespace pelmar {
namespace {

constexpr char kAway[] = "PelmarAway";

// Describes a hidden window to assistive technology by its title alone. Qt would also list the widgets in the window.
class EmptyWindow : public QAccessibleObject {
 public:
  using QAccessibleObject::QAccessibleObject;

  [[nodiscard]] QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
  [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  [[nodiscard]] QString text(QAccessible::Text part) const override {
    return part == QAccessible::Name ? static_cast<QWidget*>(object())->windowTitle() : QString();
  }
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Window; }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = true;
    return state;
  }
};

QAccessibleInterface* MakeEmptyWindow(const QString&, QObject* object) {
  return object->isWidgetType() && object->property(kAway).toBool() ? new EmptyWindow(object) : nullptr;
}

// Deletes Qt's cached descriptions of a window and its widgets, so that assistive technology gets new ones.
void ForgetFaces(QWidget& window) {
  QList<QWidget*> widgets = window.findChildren<QWidget*>();
  widgets.append(&window);
  for (QWidget* widget : widgets)
    if (QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget))
      QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(face));
}

}  // namespace

OtherWindowsAway::OtherWindowsAway(const std::vector<const QWidget*>& staying) {
  QAccessible::installFactory(MakeEmptyWindow);
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
  QAccessible::removeFactory(MakeEmptyWindow);
}

void OtherWindowsAway::SetVisible(QWidget& window, bool visible) {
  const bool activates = !window.testAttribute(Qt::WA_ShowWithoutActivating);
  window.setAttribute(Qt::WA_ShowWithoutActivating);
  window.installEventFilter(this);
  window.QWidget::setVisible(visible);  // a dialog's own setVisible would close a modal dialog
  window.removeEventFilter(this);
  window.setAttribute(Qt::WA_ShowWithoutActivating, !activates);
  ForgetFaces(window);
  window.setProperty(kAway, visible ? QVariant() : QVariant(true));
}

bool OtherWindowsAway::eventFilter(QObject*, QEvent* event) {
  return event->type() == QEvent::Show || event->type() == QEvent::Hide;
}

}  // namespace pelmar
