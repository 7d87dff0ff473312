// Keeps a held Enter or Delete from acting more than once. The key goes on repeating after its first press has opened
// or closed a window, and would press the buttons of the next one.
#pragma once

#include <QPointer>

class QKeyEvent;
class QWidget;

namespace pelmar {

class HeldKeys {
 public:
  // Gets each key event that comes from the keyboard, in order. True when the widget must not get this one: a repeat of
  // Enter or Delete, where the key was pressed in another widget, or where the widget has no text for it to edit.
  bool HoldsBack(const QWidget& receiver, const QKeyEvent& event);

 private:
  [[nodiscard]] bool IsRepeat(const QKeyEvent& event) const;

  int released_key_ = 0;
  quint64 released_at_ = 0;             // ms, on the clock of the events
  QPointer<const QWidget> pressed_in_;  // got the last first press of Enter or Delete
};

}  // namespace pelmar
