#include "platform/qt/key_router.h"

#include <QKeyEvent>
#include <QMenu>
#include <algorithm>
#include <utility>

namespace pelmar {
namespace {

bool IsBareInsert(const QKeyEvent& event) {
  return event.key() == Qt::Key_Insert && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

// Whether the key edits text in the widget: Enter can break a line, Delete can erase, the space bar types a blank.
bool EditsTextWith(int key, const QWidget& receiver) {
  if (receiver.inputMethodQuery(Qt::ImReadOnly).toBool()) return false;
  const bool has_caret = receiver.inputMethodQuery(Qt::ImCursorPosition).isValid();
  const bool has_lines = (receiver.inputMethodQuery(Qt::ImHints).toInt() & Qt::ImhMultiLine) != 0;
  return key == Qt::Key_Delete ? has_caret : has_lines || (key == Qt::Key_Space && has_caret);
}

}  // namespace

KeyRouter& KeyRouter::Get() {
  static KeyRouter router;
  return router;
}

void KeyRouter::Add(KeyTurn turn, QWidget& scope, KeyTaker taker) {
  std::erase_if(entries_, [](const Entry& entry) { return entry.scope.isNull(); });
  entries_.insert(std::ranges::upper_bound(entries_, turn, {}, &Entry::turn), Entry{turn, &scope, std::move(taker)});
}

bool KeyRouter::Takes(QWidget& receiver, QKeyEvent& event) {
  // A key event that the program itself sends is never dropped.
  if (event.spontaneous() && DropsRepeat(receiver, event)) {
    event.accept();  // otherwise Qt would look for a shortcut of this key
    return true;
  }
  if (event.type() != QEvent::KeyPress) return false;
  // A QMenu ignores access keys that are typed with AltGr or on the keypad.
  if (qobject_cast<QMenu*>(&receiver) != nullptr)
    event.setModifiers(event.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier));
  if (IsBareInsert(event) && !IsRepeat(event)) insert_on_ = !insert_on_;
  // Copies the entries, since a taker may open a window and so add entries.
  std::vector<Entry> asked;
  std::ranges::copy_if(entries_, std::back_inserter(asked), [&receiver](const Entry& entry) {
    return entry.scope == &receiver || (entry.scope && entry.scope->isAncestorOf(&receiver));
  });
  return std::ranges::any_of(asked, [&](const Entry& entry) { return entry.takes(receiver, event); });
}

// The display server repeats a held key as a release and a press with equal time stamps. Qt marks a press as a repeat
// only if the press has arrived when Qt reads the release, so on a busy machine Qt misses many repeats. Therefore a
// press with the key and the time stamp of the last release counts as a repeat too.
bool KeyRouter::IsRepeat(const QKeyEvent& press) const {
  const bool just_released = press.key() == released_key_ && press.timestamp() == released_at_;
  return press.isAutoRepeat() || (just_released && released_at_ != 0);
}

// Remembers the event for later calls. True for a repeat of Enter, Delete or the space bar in two cases. The first
// press went to another widget, so the first press may have opened or closed a window. Or the key edits no text, so a
// repeat could run an action twice, for instance press a button.
bool KeyRouter::DropsRepeat(const QWidget& receiver, const QKeyEvent& event) {
  const int key = event.key();
  if (event.type() == QEvent::KeyRelease) {
    released_key_ = key;
    released_at_ = event.timestamp();
    return false;
  }
  if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Delete && key != Qt::Key_Space) return false;
  if (IsRepeat(event)) return pressed_in_ != &receiver || !EditsTextWith(key, receiver);
  pressed_in_ = &receiver;
  return false;
}

}  // namespace pelmar
