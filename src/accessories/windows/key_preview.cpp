#include "accessories/windows/key_preview.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QWidget>
#include <utility>

#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/key_router.h"
#include "platform/qt/textbox/text_keys.h"

namespace pelmar {

KeyPreview::KeyPreview(QWidget& window, std::function<Preview(const QKeyEvent&)> first)
    : QObject(&window), first_(std::move(first)) {
  KeyRouter::Get().Add(KeyTurn::kWindow, window,
                       [this](QWidget& receiver, QKeyEvent& press) { return Takes(receiver, press); });
  const QList<QWidget*> widgets = window.findChildren<QWidget*>() << &window;
  for (QWidget* widget : widgets) {
    widget->installEventFilter(this);
    // Without this attribute no letters could be composed while a button has the focus.
    widget->setAttribute(Qt::WA_InputMethodEnabled);
    // ImhMultiLine makes KeyRouter let a held Enter or space bar repeat. A button doesn't get this hint, so a held key
    // presses the button only once.
    if (!qobject_cast<QPushButton*>(widget)) widget->setInputMethodHints(widget->inputMethodHints() | Qt::ImhMultiLine);
  }
}

bool KeyPreview::eventFilter(QObject*, QEvent* event) {
  return event->type() == QEvent::InputMethod && TakesComposed(*static_cast<QInputMethodEvent*>(event));
}

bool KeyPreview::Takes(QWidget& receiver, QKeyEvent& press) {
  const Preview preview = first_(press);
  // The control gets the key directly. Otherwise an Enter that the control ignores would reach the dialog and press the
  // default button.
  if (preview == Preview::kShare) static_cast<QObject&>(receiver).event(&press);
  return preview != Preview::kPass;
}

// Letters from dead keys or an input method cause no key press, so this function makes a key press of each letter. The
// control gets the letters too, unless the window takes the last letter.
bool KeyPreview::TakesComposed(const QInputMethodEvent& event) {
  bool taken = false;
  for (const char letter : TextInCodePage(event.commitString())) {
    const QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, TextToQString(std::string(1, letter)));
    taken = first_(key) == Preview::kTake;
  }
  return taken;
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
