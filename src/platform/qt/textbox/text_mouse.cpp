#include "platform/qt/textbox/text_mouse.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethod>
#include <QScrollBar>
#include <QTimerEvent>
#include <algorithm>

#include "platform/qt/textbox/text_box.h"

namespace pelmar {
namespace {

constexpr int kScrollEveryMs = 40;

// The distance to scroll for a pointer at `at`: negative if `at` is below 0, positive from `size` on, otherwise 0.
int Overshoot(int at, int size) {
  if (at < 0) return at;
  return at >= size ? at - size + 1 : 0;
}

}  // namespace

void TextMouse::Press(QMouseEvent* event) {
  QScrollBar* bar = box_.verticalScrollBar();
  const int scrolled = bar->value();
  QGuiApplication::inputMethod()->commit();
  bar->setValue(scrolled);  // the commit may have scrolled, but the person clicked on what was visible before
  const QPoint at = event->position().toPoint();
  if (event->button() == Qt::LeftButton) return PressLeft(event);
  // The right button keeps the selection, since the pop-up menu works on the selection.
  if (event->button() == Qt::RightButton && !box_.Buffer().HasSelection()) box_.PutCaret(box_.PlaceAt(at));
  if (event->button() != Qt::RightButton && event->button() != Qt::MiddleButton) event->ignore();
}

void TextMouse::PressLeft(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  const bool third = IsThirdClick(*event);
  pressed_at_ = last_at_ = at;
  unit_ = Unit::kChar;
  if (event->pointerType() == QPointingDevice::PointerType::Finger) {
    state_ = State::kTapping;
    return;
  }
  state_ = State::kSelecting;
  if (event->modifiers().testFlag(Qt::ShiftModifier)) return box_.SelectTo(box_.PlaceAt(at));
  if (third) return BeginUnit(Unit::kLine, at);
  if (box_.IsSelectedAt(at)) {
    state_ = State::kMayDrag;
    return;
  }
  box_.PutCaret(box_.PlaceAt(at));
}

void TextMouse::DoubleClick(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return Press(event);
  const QPoint at = event->position().toPoint();
  pressed_at_ = last_at_ = at;
  BeginUnit(Unit::kWord, at);
  double_click_at_ = event->timestamp();
}

bool TextMouse::IsThirdClick(const QMouseEvent& press) const {
  const auto interval = static_cast<quint64>(QApplication::doubleClickInterval());
  return double_click_at_ && press.timestamp() - *double_click_at_ < interval &&
         (press.position().toPoint() - pressed_at_).manhattanLength() < QApplication::startDragDistance();
}

void TextMouse::BeginUnit(Unit unit, QPoint at) {
  state_ = State::kSelecting;
  unit_ = unit;
  origin_ = UnitAt(at);
  box_.Select(origin_);
}

TextSpan TextMouse::UnitAt(QPoint at) const {
  const TextBuffer& buffer = box_.Buffer();
  const auto [pos, at_row_end] = box_.PlaceAt(at);
  if (unit_ == Unit::kChar) return {pos, pos};
  if (unit_ == Unit::kWord) {
    // Use the character under the pointer, or the last one of the row, not the nearest position between two characters.
    const bool before = pos > 0 && (at_row_end || box_.CharRect(pos - 1).contains(at));
    return WordAt(buffer.Text(), before ? pos - 1 : pos);
  }
  const std::size_t line = buffer.LineOf(pos);
  return {buffer.LineStart(line), buffer.LineEnd(line)};
}

void TextMouse::Move(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (!event->buttons().testFlag(Qt::LeftButton) || state_ == State::kIdle) return ShowPointer(at);
  if (state_ == State::kTapping) return;
  if (state_ == State::kMayDrag) {
    if ((at - pressed_at_).manhattanLength() < QApplication::startDragDistance()) return;
    state_ = State::kIdle;
    return TextDrop::StartDrag(box_);
  }
  last_at_ = at;
  Extend(at);
  if (box_.viewport()->rect().contains(at)) {
    scroll_timer_.stop();
  } else if (!scroll_timer_.isActive()) {
    scroll_timer_.start(kScrollEveryMs, this);
  }
}

void TextMouse::Extend(QPoint at) {
  if (unit_ == Unit::kChar) return box_.SelectTo(box_.PlaceAt(at));
  const TextSpan here = UnitAt(at);
  const TextSpan all{std::min(origin_.begin, here.begin), std::max(origin_.end, here.end)};
  box_.Select(all, here.begin < origin_.begin);
}

void TextMouse::Release(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (event->button() == Qt::LeftButton) {
    scroll_timer_.stop();
    const bool still = (at - pressed_at_).manhattanLength() < QApplication::startDragDistance();
    if (state_ == State::kMayDrag || (state_ == State::kTapping && still)) box_.PutCaret(box_.PlaceAt(at));
    if (state_ == State::kSelecting) box_.PublishSelection();
    state_ = State::kIdle;
    ShowPointer(at);
    return;
  }
  QClipboard* clipboard = QGuiApplication::clipboard();
  if (event->button() != Qt::MiddleButton || box_.IsReadOnly() || !clipboard->supportsSelection())
    return event->ignore();
  if (!box_.viewport()->rect().contains(at)) return;
  box_.PutCaret(box_.PlaceAt(at));
  box_.Insert(clipboard->mimeData(QClipboard::Selection));
}

void TextMouse::ShowPointer(QPoint at) {
  const Qt::CursorShape shape = box_.IsSelectedAt(at) ? Qt::ArrowCursor : Qt::IBeamCursor;
  if (box_.viewport()->cursor().shape() != shape) box_.viewport()->setCursor(shape);
}

void TextMouse::timerEvent(QTimerEvent* event) {
  if (event->timerId() != scroll_timer_.timerId()) return QObject::timerEvent(event);
  // The button may be released in another window or in a pop-up menu.
  if (!box_.isActiveWindow() || QApplication::activePopupWidget() != nullptr) return scroll_timer_.stop();
  QScrollBar* bar = box_.verticalScrollBar();
  bar->setValue(bar->value() + Overshoot(last_at_.y(), box_.viewport()->height()));
  Extend(last_at_);
}

}  // namespace pelmar
