// Gives a window the key presses and the composed letters before the focused control gets them. Shortcuts and the keys
// of single controls come earlier (see KeyTurn). Construct the preview at the end of the window's constructor, when the
// window has all its controls.
#pragma once

#include <QObject>
#include <functional>
#include <optional>

class QInputMethodEvent;
class QKeyEvent;
class QWidget;

namespace pelmar {

enum class Preview {
  kPass,   // the window doesn't use the key, and the focused control gets the key as usual
  kTake,   // only the window uses the key
  kShare,  // the window and the focused control use the key
};

class KeyPreview : public QObject {
 public:
  KeyPreview(QWidget& window, std::function<Preview(const QKeyEvent&)> first);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool Takes(QWidget& receiver, QKeyEvent& press);
  [[nodiscard]] bool TakesComposed(const QInputMethodEvent& event);

  std::function<Preview(const QKeyEvent&)> first_;
};

// The character of a key press in Windows-1250, 13 for Enter and 8 for Backspace. Nothing for shortcuts and for other
// keys without a printable character, such as Tab, Escape, Delete and the arrow keys.
std::optional<char> TypedCharacter(const QKeyEvent& event);

}  // namespace pelmar
