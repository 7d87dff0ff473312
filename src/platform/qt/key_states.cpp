#include "platform/qt/key_states.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace pelmar {

InsertKey::InsertKey() { QCoreApplication::instance()->installEventFilter(this); }

bool InsertKey::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
  const auto* key = static_cast<const QKeyEvent*>(event);
  if (key->key() != Qt::Key_Insert || key->isAutoRepeat()) return false;
  if (event->type() == QEvent::KeyRelease) {
    counted_ = nullptr;
    return false;
  }
  // One press comes by several times: for the window, the widget in focus and each parent that it is passed on to.
  if (event == counted_ && key->timestamp() == counted_at_) return false;
  counted_ = event;
  counted_at_ = key->timestamp();
  if ((key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) on_ = !on_;
  return false;
}

}  // namespace pelmar
