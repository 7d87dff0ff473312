// The mouse in a text box. A click sets the caret. A drag selects characters, words or lines, and scrolls while the
// pointer is outside the box. A drag that begins in the selection moves the text. The middle button pastes the primary
// selection.
#pragma once

#include <QBasicTimer>
#include <QMouseEvent>
#include <QObject>
#include <optional>

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
  // kTapping: a finger touches the box. Moving the finger scrolls the text. Lifting an unmoved finger sets the caret.
  enum class State : std::uint8_t { kIdle, kSelecting, kMayDrag, kTapping };
  enum class Unit : std::uint8_t { kChar, kWord, kLine };

  void PressLeft(QMouseEvent* event);
  void BeginUnit(Unit unit, QPoint at);
  void Extend(QPoint at);
  void ShowPointer(QPoint at);
  [[nodiscard]] TextSpan UnitAt(QPoint at) const;
  [[nodiscard]] bool IsThirdClick(const QMouseEvent& press) const;

  TextBox& box_;
  State state_ = State::kIdle;
  Unit unit_ = Unit::kChar;
  TextSpan origin_;  // the word or line where the selection began
  QPoint pressed_at_;
  QPoint last_at_;
  std::optional<quint64> double_click_at_;  // ms, the time stamp of the event
  QBasicTimer scroll_timer_;
};

}  // namespace pelmar
