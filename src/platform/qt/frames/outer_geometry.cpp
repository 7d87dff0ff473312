#include "platform/qt/frames/outer_geometry.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace pelmar {
namespace {

// Whether the window is shown. False while show() is still in progress.
bool IsShown(const QWidget& window) { return window.windowHandle() != nullptr && window.windowHandle()->isVisible(); }

// Uses QWindow, since the frame that QWidget knows may be outdated after the window is shown.
QMargins Frame(const QWidget& window) { return IsShown(window) ? window.windowHandle()->frameMargins() : QMargins(); }

QRect Outer(const QWidget& window) {
  if (!IsShown(window)) return {window.pos(), window.size()};
  return window.geometry().marginsAdded(Frame(window));
}

void MoveOuter(QWidget& window, QPoint top_left) {
  if (!IsShown(window)) return window.move(top_left);
  // No setFramePosition: some window managers ignore it if the inside of the window already begins at `top_left`.
  const QMargins frame = Frame(window);
  window.windowHandle()->setPosition(top_left + QPoint(frame.left(), frame.top()));
}

}  // namespace

TwipsRect InTwips(const QRect& pixels) {
  return {TwipsOf(pixels.left()), TwipsOf(pixels.top()), TwipsOf(pixels.width()), TwipsOf(pixels.height())};
}

TwipsRect OuterGeometry(const QWidget& window) { return InTwips(Outer(window)); }

void SetOuterPosition(QWidget& window, int left, int top) { MoveOuter(window, {PixelsOf(left), PixelsOf(top)}); }

void SetOuterSize(QWidget& window, int width, int height) {
  window.resize(QSize(PixelsOf(width), PixelsOf(height)).shrunkBy(Frame(window)));
}

void SetOuterPlace(QWidget& window, const TwipsRect& place) {
  const TwipsRect now = OuterGeometry(window);
  if (place.width != now.width || place.height != now.height) SetOuterSize(window, place.width, place.height);
  if (place.left != now.left || place.top != now.top) SetOuterPosition(window, place.left, place.top);
}

TwipsRect ScreenTwips(const QWidget& window) { return InTwips(window.screen()->geometry()); }

TwipsRect ScreenTwips(const TwipsRect& place) {
  const QPoint middle(PixelsOf(place.left + place.width / 2), PixelsOf(place.top + place.height / 2));
  const QScreen* screen = QGuiApplication::screenAt(middle);
  return InTwips((screen != nullptr ? screen : QGuiApplication::primaryScreen())->geometry());
}

QSize RoomOnScreen(const QWidget& window) {
  constexpr QSize kUsualFrame(8, 32);  // the frame of this window is not known yet
  return window.screen()->availableGeometry().size() - kUsualFrame;
}

void MoveAside(QWidget& window, const QRect& place) {
  const QRect outer = Outer(window);
  if (!outer.intersects(place)) return;
  const QRect free = window.screen()->availableGeometry();
  // Try below and above first, since a line of text continues to the left and right of the place.
  const QPoint corners[] = {{outer.left(), place.bottom() + 1},
                            {outer.left(), place.top() - outer.height()},
                            {place.right() + 1, outer.top()},
                            {place.left() - outer.width(), outer.top()}};
  for (const QPoint corner : corners)
    if (free.contains(QRect(corner, outer.size()))) return MoveOuter(window, corner);
}

int WidthOfTitle(const QWidget& window) {
  constexpr int kFrameButtons = 140;
  return window.fontMetrics().horizontalAdvance(window.windowTitle()) + kFrameButtons;
}

void BringToFront(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

void SetAlwaysOnTop(QWidget& window, bool on_top) {
  // QWidget::setWindowFlag hides a visible window; QWindow::setFlag doesn't.
  if (window.windowHandle() != nullptr) return window.windowHandle()->setFlag(Qt::WindowStaysOnTopHint, on_top);
  window.setWindowFlag(Qt::WindowStaysOnTopHint, on_top);
}

}  // namespace pelmar
