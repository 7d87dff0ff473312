#include "platform/qt/frames/placement.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <chrono>

namespace pelmar {
namespace {

// The time that a window manager may need, and the interval between two checks.
constexpr std::chrono::milliseconds kPatience(500);
constexpr std::chrono::milliseconds kPoll(20);
// A window may be in place only for a moment, for instance while the window manager adds the frame. So this many checks
// in a row must find the window in place. For a new window under EndAfter::kOneCheck, one check is enough.
constexpr int kChecksInPlace = 20;

// The frame of another window of the program, or empty. A new window most likely gets an equal frame.
QMargins UsualFrame() {
  const QWindowList windows = QGuiApplication::topLevelWindows();
  for (const QWindow* window : windows)
    if (window->isVisible() && !window->frameMargins().isNull()) return window->frameMargins();
  return {};
}

// Whether the frame is complete. Some window managers first use a frame of one pixel, which gives negative margins.
bool IsComplete(const QMargins& frame) {
  return std::min({frame.left(), frame.top(), frame.right(), frame.bottom()}) >= 0;
}

TwipsRect RoundedToPixels(const TwipsRect& place) {
  const auto on_pixel = [](int twips) { return TwipsOf(PixelsOf(twips)); };
  return {on_pixel(place.left), on_pixel(place.top), on_pixel(place.width), on_pixel(place.height)};
}

TwipsRect InTheMiddle(const QWidget& window, const TwipsRect& now) {
  QRect outer(0, 0, PixelsOf(now.width), PixelsOf(now.height));
  outer.moveCenter(window.screen()->geometry().center());
  // The title bar stays visible even if the window is larger than the free area of the screen.
  const QRect free = window.screen()->availableGeometry();
  const QPoint last = free.bottomRight() - outer.bottomRight() + outer.topLeft();
  return {TwipsOf(std::max(std::min(outer.left(), last.x()), free.left())),
          TwipsOf(std::max(std::min(outer.top(), last.y()), free.top())), now.width, now.height};
}

}  // namespace

Placement::Placement(QWidget& window, Wish wish, EndAfter end_after)
    : QObject(&window), window_(window), wish_(std::move(wish)), end_after_(end_after) {
  timer_.setInterval(kPoll);
  connect(&timer_, &QTimer::timeout, this, &Placement::Check);
}

void Placement::Begin(const QMargins& old_frame, bool maximised) {
  old_frame_ = old_frame;
  maximised_ = maximised;
  checks_in_place_ = 0;
  deadline_set_ = false;
  window_.installEventFilter(this);
  if (!window_.isVisible()) return;
  timer_.start();
  Check();
}

bool Placement::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Show && !event->spontaneous()) timer_.start();
  if (event->type() == QEvent::Hide && !event->spontaneous() && timer_.isActive()) End();
  return false;
}

void Placement::Check() {
  const QWindow* native = window_.windowHandle();
  if (native == nullptr || !native->isVisible()) return;
  if (!deadline_set_) deadline_.setRemainingTime(kPatience);
  deadline_set_ = true;
  const bool late = deadline_.hasExpired();
  const QMargins frame = native->frameMargins();
  if (!late && (frame == old_frame_ || !IsComplete(frame))) return;
  if (!window_.isMinimized()) Apply();
  if (!frame_known_) {
    frame_known_ = true;
    if (on_frame) on_frame();
  }
  const bool one_check = end_after_ == EndAfter::kOneCheck && old_frame_.isNull();
  if (late || checks_in_place_ >= (one_check ? 1 : kChecksInPlace)) End();
}

void Placement::Apply() {
  const TwipsRect now = OuterGeometry(window_);
  const TwipsRect wanted = RoundedToPixels(wish_(now));
  const bool met = maximised_ ? window_.isMaximized() : now == wanted && !window_.isMaximized();
  checks_in_place_ = met ? checks_in_place_ + 1 : 0;
  if (met) return;
  if (maximised_) return window_.showMaximized();
  if (!window_.isMaximized()) SetOuterPlace(window_, wanted);
}

void Placement::End() {
  timer_.stop();
  window_.removeEventFilter(this);
  if (on_end) on_end();
}

void CentreOnScreen(QWidget& window) {
  const QMargins frame = UsualFrame();
  const QSize expected = window.size().grownBy(frame);
  const TwipsRect place = InTheMiddle(window, {0, 0, TwipsOf(expected.width()), TwipsOf(expected.height())});
  // There is no frame yet. Some window managers put the inner area at `asked`, others put the frame there. The
  // Placement below corrects the difference.
  const QPoint asked(PixelsOf(place.left) + frame.left(), PixelsOf(place.top) + frame.top());
  window.move(asked);
  auto* placement = new Placement(
      window,
      [&window, asked](const TwipsRect& now) {
        const QPoint outer(PixelsOf(now.left), PixelsOf(now.top));
        // If the window is elsewhere, leave the window there: this Placement has already corrected the position, or the
        // person or the window manager has moved the window.
        return outer == asked || window.geometry().topLeft() == asked ? InTheMiddle(window, now) : now;
      },
      Placement::EndAfter::kSeveralChecks);
  placement->on_end = [placement] { placement->deleteLater(); };
  placement->Begin();
}

}  // namespace pelmar
