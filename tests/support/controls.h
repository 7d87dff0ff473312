// Finds the controls of a window by their names, and operates them.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <string>

namespace pelmar {

template <class Type>
Type* Find(const QWidget& window, const char* name) {
  return window.findChild<Type*>(QString::fromUtf8(name));
}

// Turns the mouse wheel over the widget. True if the widget accepts the event.
inline bool RollWheel(QWidget& widget, QPoint pixels, QPoint angle, Qt::KeyboardModifiers modifiers = {}) {
  QWheelEvent wheel(QPointF(1, 1), widget.mapToGlobal(QPointF(1, 1)), pixels, angle, {}, modifiers, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&widget, &wheel);
  return wheel.isAccepted();
}

// Runs `act` in the next event loop. Call this before a function that waits in a modal dialog.
inline void Inside(std::function<void()> act) { QTimer::singleShot(0, qApp, std::move(act)); }

// Like Inside, with the open modal dialog as argument. A dialog of another type is a failure.
template <class Dialog>
void InDialog(std::function<void(Dialog&)> act) {
  Inside([act = std::move(act)] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

}  // namespace pelmar
