// Whether the caret is to be seen now: blinks at the desktop's rate while keys come, stands still some ten seconds
// after the last one so that an idle program wakes nobody, and runs no timer at all where it may not blink.
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <functional>

namespace pelmar {

class CaretBlink : public QObject {
 public:
  // `repaint` is called whenever Shown has changed.
  explicit CaretBlink(std::function<void()> repaint);

  [[nodiscard]] bool Shown() const { return shown_; }
  // Shows the caret; `blinks` false leaves it steady.
  void Start(bool blinks);
  void Hide();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void SetShown(bool shown);

  std::function<void()> repaint_;
  QBasicTimer timer_;
  int left_ = 0;  // half periods until it stands still
  bool shown_ = false;
};

}  // namespace pelmar
