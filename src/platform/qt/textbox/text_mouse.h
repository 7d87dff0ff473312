// What the mouse does in a text box: caret, selection by characters, words and lines, scrolling while it is held
// outside, the start of a drag, pasting with the middle button.
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QObject>

#include "text/text_stops.h"

namespace pelmar {

class TextBox;

class TextMouse : public QObject {
 public:
  explicit TextMouse(TextBox& box) : box_(box) {}

  void Press(QMouseEvent* event);
  void Move(QMouseEvent* event);
  void Release(QMouseEvent* event);
  void DoubleClick(QMouseEvent* event);

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  // A finger scrolls, and puts the caret when it is lifted where it came down.
  enum class State : std::uint8_t { kIdle, kSelecting, kMayDrag, kTapping };
  enum class Unit : std::uint8_t { kChar, kWord, kLine };

  void PressLeft(QMouseEvent* event);
  void BeginUnit(Unit unit, QPoint at);
  void Extend(QPoint at);
  void ShowPointer(QPoint at);
  [[nodiscard]] TextSpan UnitAt(QPoint at) const;
  [[nodiscard]] bool IsThirdClick(QPoint at) const;

  TextBox& box_;
  State state_ = State::kIdle;
  Unit unit_ = Unit::kChar;
  TextSpan origin_;  // the word or line on which the selection began
  QPoint pressed_at_;
  QPoint last_at_;
  QElapsedTimer since_double_click_;
  QBasicTimer scroll_timer_;
};

}  // namespace pelmar
