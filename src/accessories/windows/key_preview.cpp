#include "accessories/windows/key_preview.h"

#include <QKeyEvent>
#include <QWidget>
#include <utility>

#include "platform/qt/controls/text_keys.h"
#include "platform/qt/convert.h"

namespace pelmar {

KeyPreview::KeyPreview(QWidget& window, std::function<Preview(const QKeyEvent&)> first)
    : QObject(&window), first_(std::move(first)) {
  window.installEventFilter(this);
  const QList<QWidget*> widgets = window.findChildren<QWidget*>();
  for (QWidget* widget : widgets) widget->installEventFilter(this);
}

bool KeyPreview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const Preview preview = first_(*static_cast<QKeyEvent*>(event));
  if (preview == Preview::kPass) return false;
  // Straight to the control, and accepted whatever it says: a key that it refuses would come by here again on its way
  // to the window.
  if (preview == Preview::kShare) watched->event(event);
  event->accept();
  return true;
}

std::optional<char> TypedCharacter(const QKeyEvent& event) {
  const bool plain = (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
  if (plain && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)) return '\r';
  if (plain && event.key() == Qt::Key_Backspace) return '\b';
  const QString typed = TypedText(event);
  if (typed.isEmpty() || typed == QStringLiteral("\t")) return std::nullopt;
  return TextFromQString(typed).front();
}

}  // namespace pelmar
