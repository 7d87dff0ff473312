#include "platform/qt/controls/dialog_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QShowEvent>
#include <QToolButton>

#include "platform/qt/outer_geometry.h"

namespace pelmar {
namespace {

// The toolkit's scroll bars move against the arrows Left and Right. True when the key was one of them.
bool MoveByArrow(QScrollBar& bar, int key) {
  if (bar.orientation() != Qt::Horizontal || (key != Qt::Key_Left && key != Qt::Key_Right)) return false;
  bar.triggerAction(key == Qt::Key_Left ? QAbstractSlider::SliderSingleStepSub : QAbstractSlider::SliderSingleStepAdd);
  return true;
}

bool IsPlainEnter(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
         (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

}  // namespace

DialogWindow::DialogWindow(QWidget* parent) : QDialog(parent) {}

void DialogWindow::Present() {
  show();
  raise();
  activateWindow();
}

int DialogWindow::exec() {
  const QPointer<QWidget> asker = QApplication::activeWindow();
  const int result = QDialog::exec();
  // The window manager would turn to the parent, the main window, whose text would take the next keys.
  if (asker && asker->isVisible()) asker->activateWindow();
  return result;
}

void DialogWindow::OnEnter(QWidget* field, std::function<void()> act) {
  on_enter_[field] = std::move(act);
  field->installEventFilter(this);
}

bool DialogWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    const auto act = on_enter_.find(watched);
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && act != on_enter_.end()) {
      act->second();
      return true;
    }
    if (auto* bar = qobject_cast<QScrollBar*>(watched); bar != nullptr && MoveByArrow(*bar, key)) return true;
  }
  return QDialog::eventFilter(watched, event);
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
  const QString name = property("cancelButton").toString();
  auto* cancel = name.isEmpty() ? nullptr : findChild<QAbstractButton*>(name);
  if (cancel != nullptr && event->matches(QKeySequence::Cancel)) return cancel->click();
  // The toolkit would press the default button, whichever button the person has gone to.
  QWidget* focus = focusWidget();
  if (IsPlainEnter(*event) && (qobject_cast<QPushButton*>(focus) || qobject_cast<QToolButton*>(focus)))
    return static_cast<QAbstractButton*>(focus)->click();
  QDialog::keyPressEvent(event);
}

void DialogWindow::showEvent(QShowEvent* event) {
  if (!centred_ && !event->spontaneous()) {
    centred_ = true;
    CentreOnScreen(*this);
    for (QScrollBar* bar : findChildren<QScrollBar*>()) bar->installEventFilter(this);
  }
  QDialog::showEvent(event);
}

}  // namespace pelmar
