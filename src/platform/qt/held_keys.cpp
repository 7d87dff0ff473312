#include "platform/qt/held_keys.h"

#include <QKeyEvent>
#include <QWidget>

namespace pelmar {
namespace {

// A held Enter goes on breaking lines and a held Delete goes on erasing characters.
bool EditsTextWith(int key, const QWidget& receiver) {
  if (receiver.inputMethodQuery(Qt::ImReadOnly).toBool()) return false;
  if (key == Qt::Key_Delete) return receiver.inputMethodQuery(Qt::ImCursorPosition).isValid();
  return (receiver.inputMethodQuery(Qt::ImHints).toInt() & Qt::ImhMultiLine) != 0;
}

}  // namespace

// The display server sends a held key as releases and presses with one time stamp for both. The toolkit marks only
// those presses as repeats that have arrived when it reads the release, and misses many on a busy machine.
bool HeldKeys::IsRepeat(const QKeyEvent& event) const {
  const bool just_released = event.key() == released_key_ && event.timestamp() == released_at_;
  return event.isAutoRepeat() || (just_released && released_at_ != 0);
}

bool HeldKeys::HoldsBack(const QWidget& receiver, const QKeyEvent& event) {
  const int key = event.key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Delete) return false;
  if (event.type() == QEvent::KeyRelease) {
    released_key_ = key;
    released_at_ = event.timestamp();
    return false;
  }
  if (IsRepeat(event)) return pressed_in_ != &receiver || !EditsTextWith(key, receiver);
  pressed_in_ = &receiver;
  return false;
}

}  // namespace pelmar
