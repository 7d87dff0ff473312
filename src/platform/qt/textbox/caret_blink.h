// The blinking of the caret at the rate of the desktop. About ten seconds after the last Start the blinking stops, so
// that an idle program does nothing. If the desktop turns blinking off, no timer runs.
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <functional>

namespace pelmar {

class CaretBlink : public QObject {
 public:
  // `repaint` is called after each change of Shown.
  explicit CaretBlink(std::function<void()> repaint);

  [[nodiscard]] bool Shown() const { return shown_; }
  // Shows the caret. If `blinks` is false, the caret is steady.
  void Start(bool blinks);
  void Hide();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void SetShown(bool shown);

  std::function<void()> repaint_;
  QBasicTimer timer_;
  int half_periods_left_ = 0;  // until the blinking stops
  bool shown_ = false;
};

}  // namespace pelmar
