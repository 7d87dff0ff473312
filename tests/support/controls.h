// Finds and works the controls of a window by their names.
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

// True where the widget takes it.
inline bool RollWheel(QWidget& widget, QPoint pixels, QPoint angle, Qt::KeyboardModifiers modifiers = {}) {
  QWheelEvent wheel(QPointF(1, 1), widget.mapToGlobal(QPointF(1, 1)), pixels, angle, {}, modifiers, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&widget, &wheel);
  return wheel.isAccepted();
}

// Does something in a dialog that the next call waits for.
inline void Inside(std::function<void()> act) { QTimer::singleShot(0, qApp, std::move(act)); }

// The same with the dialog, which has to be of that type.
template <class Dialog>
void InDialog(std::function<void(Dialog&)> act) {
  Inside([act = std::move(act)] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

}  // namespace pelmar
