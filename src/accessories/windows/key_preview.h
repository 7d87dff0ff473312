// Lets a window have each key press, and each composed letter, before the control that has the keyboard.
// A preview is made last in the window's constructor, when all its controls are there.
#pragma once

#include <QObject>
#include <functional>
#include <optional>

class QInputMethodEvent;
class QKeyEvent;
class QWidget;

namespace pelmar {

enum class Preview {
  kPass,   // not the window's key: it goes on as if there were no preview
  kTake,   // the window had it, nobody else gets it
  kShare,  // the window had it, and the control with the keyboard gets it too
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

// The character of a key press in Windows-1250; 13 for Enter and 8 for Backspace. Nothing for keys that move, for the
// tabulator, for Escape and for shortcuts.
std::optional<char> TypedCharacter(const QKeyEvent& event);

}  // namespace pelmar
