#include "platform/qt/textbox/text_drop.h"

#include <QDrag>
#include <QMimeData>
#include <QPointer>
#include <QScrollBar>
#include <QUrl>
#include <algorithm>
#include <string>

#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/textbox/text_box.h"

namespace pelmar {
namespace {

constexpr int kDragScrollEveryMs = 100;
constexpr int kScrollBorder = 12;  // pixels; a drag this near to the upper or lower edge scrolls

int ScrollSign(int at, int size) {
  if (at < kScrollBorder) return -1;
  return at >= size - kScrollBorder ? 1 : 0;
}

}  // namespace

// Replaces the text from the selection to the target in one step, so that one undo reverts the move.
void MoveSelection(TextBuffer& buffer, std::size_t to, bool copy) {
  const std::size_t begin = buffer.SelStart();
  const std::size_t end = buffer.SelEnd();
  const std::string moved(buffer.SelText());
  const std::string& text = buffer.Text();
  if (copy) {
    buffer.Replace(to, 0, moved);
  } else if (to < begin) {
    buffer.Replace(to, end - to, moved + text.substr(to, begin - to));
  } else if (to > end) {
    buffer.Replace(begin, to - begin, text.substr(end, to - end) + moved);
    to -= end - begin;
  } else {
    return;
  }
  buffer.Select(to, to + moved.size());
}

TextDrop::TextDrop(TextBox& box) : box_(box) {
  scroll_timer_.setInterval(kDragScrollEveryMs);
  QObject::connect(&scroll_timer_, &QTimer::timeout, [this] { ScrollAtEdge(); });
}

void TextDrop::StartDrag(TextBox& box) {
  const QPointer<TextBox> guard(&box);
  const std::string dragged(box.Buffer().SelText());
  const std::size_t start = box.Buffer().SelStart();
  auto* drag = new QDrag(&box);
  drag->setMimeData(MimeFromText(dragged));
  const Qt::DropActions offered = box.IsReadOnly() ? Qt::CopyAction : Qt::CopyAction | Qt::MoveAction;
  // Within this text box Accept chooses the action. Elsewhere a drag copies the text, because a word that is dragged
  // into a search field must stay in the document. With Shift the drag moves the text.
  const Qt::DropAction done = drag->exec(offered, Qt::CopyAction);
  if (guard.isNull() || box.IsReadOnly() || done != Qt::MoveAction) return;
  const QObject* target = drag->target();
  if (target == &box || target == box.viewport()) return;  // Drop() has moved the text
  if (box.Buffer().SelStart() == start && box.Buffer().SelText() == dragged) box.Buffer().ReplaceSelection({});
}

bool TextDrop::IsOwn(const QDropEvent& event) const {
  return event.source() == &box_ || event.source() == box_.viewport();
}

bool TextDrop::Takes(const QDropEvent& event) const {
  if (box_.IsReadOnly() || !HasText(*event.mimeData())) return false;
  // The main window opens dropped files. A link from a browser has a URL too, but is dropped as text.
  return std::ranges::none_of(event.mimeData()->urls(), &QUrl::isLocalFile);
}

void TextDrop::Accept(QDropEvent& event) const {
  if (!IsOwn(event)) return event.acceptProposedAction();
  const bool copy = event.modifiers().testFlag(Qt::ControlModifier);
  event.setDropAction(copy ? Qt::CopyAction : Qt::MoveAction);
  event.accept();
}

void TextDrop::Move(QDragMoveEvent* event) {
  if (!Takes(*event)) return event->ignore();
  at_ = event->position().toPoint();
  if (ScrollSign(at_.y(), box_.viewport()->height()) == 0)
    scroll_timer_.stop();
  else if (!scroll_timer_.isActive())
    scroll_timer_.start();
  box_.ShowDropPlace(box_.PlaceAt(at_));
  Accept(*event);
}

void TextDrop::ScrollAtEdge() {
  QScrollBar* bar = box_.verticalScrollBar();
  bar->setValue(bar->value() + ScrollSign(at_.y(), box_.viewport()->height()) * bar->singleStep());
  box_.ShowDropPlace(box_.PlaceAt(at_));
}

void TextDrop::Leave() {
  scroll_timer_.stop();
  box_.ShowDropPlace(std::nullopt);
}

void TextDrop::Drop(QDropEvent* event) {
  Leave();
  if (!Takes(*event)) return event->ignore();
  Accept(*event);
  const TextPlace place = box_.PlaceAt(event->position().toPoint());
  if (IsOwn(*event)) {
    MoveSelection(box_.Buffer(), place.pos, event->dropAction() == Qt::CopyAction);
  } else {
    box_.PutCaret(place);
    box_.Insert(event->mimeData());
    const std::size_t end = box_.Buffer().Caret();
    box_.Select({place.pos, end});
  }
  box_.setFocus(Qt::MouseFocusReason);
}

}  // namespace pelmar
