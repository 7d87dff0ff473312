// Finds the controls of a window by their names, and runs code while a modal dialog is open.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <functional>
#include <string>

namespace pelmar {

template <class Type>
Type* Find(const QWidget& window, const char* name) {
  return window.findChild<Type*>(QString::fromUtf8(name));
}

// Runs `act` in the next event loop. Call this before a function that waits in a modal dialog.
inline void Inside(std::function<void()> act) { QTimer::singleShot(0, qApp, std::move(act)); }

// Like Inside, with the open modal dialog as argument. If no dialog of this type is open, the test fails.
template <class Dialog>
void InDialog(std::function<void(Dialog&)> act) {
  Inside([act = std::move(act)] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

}  // namespace pelmar
