#include "platform/qt/textbox/caret_blink.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <QTimerEvent>
#include <algorithm>
#include <utility>

namespace pelmar {
namespace {

constexpr int kBlinkForMs = 10000;

}  // namespace

CaretBlink::CaretBlink(std::function<void()> repaint) : repaint_(std::move(repaint)) {}

void CaretBlink::Start(bool blinks) {
  SetShown(true);
  const int half = QGuiApplication::styleHints()->cursorFlashTime() / 2;
  if (!blinks || half <= 0) return timer_.stop();
  // An even number, so that the caret is visible at the end.
  half_periods_left_ = std::max(kBlinkForMs / half, 2) / 2 * 2;
  timer_.start(half, this);
}

void CaretBlink::Hide() {
  timer_.stop();
  SetShown(false);
}

void CaretBlink::timerEvent(QTimerEvent* event) {
  if (event->timerId() != timer_.timerId()) return QObject::timerEvent(event);
  SetShown(!shown_);
  if (--half_periods_left_ <= 0) timer_.stop();
}

void CaretBlink::SetShown(bool shown) {
  if (shown == shown_) return;
  shown_ = shown;
  repaint_();
}

}  // namespace pelmar
