#include "platform/qt/textbox/text_box.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethod>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QScroller>
#include <QStyle>
#include <algorithm>

#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/textbox/text_box_accessible.h"

namespace pelmar {
namespace {

std::size_t Position(int value) { return static_cast<std::size_t>(std::max(value, 0)); }

// A span that covers all text that belongs to only one of the two spans.
TextSpan Difference(TextSpan a, TextSpan b) {
  if (a.begin == b.begin) return {std::min(a.end, b.end), std::max(a.end, b.end)};
  if (a.end == b.end) return {std::min(a.begin, b.begin), std::max(a.begin, b.begin)};
  return {std::min(a.begin, b.begin), std::max(a.end, b.end)};
}

// The interface for screen readers.
QAccessibleInterface* MakeFace(const QString&, QObject* object) {
  auto* box = qobject_cast<TextBox*>(object);
  return box == nullptr ? nullptr : new TextBoxAccessible(*box);
}

}  // namespace

TextBox::TextBox(QWidget* parent)
    : QAbstractScrollArea(parent),
      own_buffer_(std::make_unique<TextBuffer>()),
      view_(std::make_unique<TextView>(*own_buffer_, [this] { return viewport()->width(); })),
      mover_(view_->RawLayout()),
      blink_([this] { viewport()->update(shown_caret_); }),
      mouse_(*this),
      drop_(*this),
      notifier_(std::make_unique<TextBoxNotifier>(*this)) {
  QAccessible::installFactory(&MakeFace);
  setFocusPolicy(Qt::WheelFocus);
  setAttribute(Qt::WA_InputMethodEnabled);
  setInputMethodHints(Qt::ImhMultiLine);
  setAcceptDrops(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  viewport()->setCursor(Qt::IBeamCursor);
  viewport()->setMouseTracking(true);
  QScroller::grabGesture(viewport(), QScroller::TouchGesture);
  view_->SetFont(font());
  UseBuffer(*own_buffer_);
}

TextBox::~TextBox() = default;

void TextBox::UseBuffer(TextBuffer& buffer) {
  if (buffer_ == &buffer) return;
  buffer_ = &buffer;
  changes_ = buffer.OnChange([this](const TextChange& change) { FollowChange(change); });
  moves_ = buffer.OnSelection([this] { FollowSelection(); });
  mover_.Forget();
  composer_.Clear();
  notifier_->Forget();
  shown_selection_ = {buffer.SelStart(), buffer.SelEnd()};
  shown_revision_ = buffer.Revision();
  view_->Show(buffer);
  Relayout();
  RevealCaret();
}

QByteArray TextBox::Text() const { return ToBytes(buffer_->Text()); }
void TextBox::SetText(const QByteArray& text) { buffer_->SetText(text.toStdString()); }
void TextBox::SetSelStart(int start) { buffer_->SetSelStart(Position(start)); }
void TextBox::SetSelLength(int length) { buffer_->SetSelLength(Position(length)); }
QByteArray TextBox::SelText() const { return ToBytes(buffer_->SelText()); }
void TextBox::SetSelText(const QByteArray& text) { buffer_->ReplaceSelection(ViewOf(text)); }

void TextBox::setReadOnly(bool read_only) {
  if (read_only_ == read_only) return;
  read_only_ = read_only;
  composer_.Clear();
  setAttribute(Qt::WA_InputMethodEnabled, !read_only);
  if (hasFocus()) ShowCaretAnew();
  viewport()->update();
}

Qt::Alignment TextBox::Alignment() const {
  switch (view_->Align()) {
    case TextAlign::kRight:
      return Qt::AlignRight;
    case TextAlign::kCentre:
      return Qt::AlignHCenter;
    default:
      return Qt::AlignLeft;
  }
}

void TextBox::setAlignment(Qt::Alignment alignment) {
  view_->SetAlign(alignment.testFlag(Qt::AlignRight)     ? TextAlign::kRight
                  : alignment.testFlag(Qt::AlignHCenter) ? TextAlign::kCentre
                                                         : TextAlign::kLeft);
  mover_.Forget();
  Relayout();
}

void TextBox::setTextColor(const QColor& color) {
  text_color_ = color;
  viewport()->update();
}

void TextBox::setBackgroundColor(const QColor& color) {
  background_color_ = color;
  viewport()->update();
}

// ---- following the buffer

void TextBox::FollowChange(const TextChange& change) {
  if (shown_revision_ != buffer_->Revision()) ShowChange(change);
  Q_EMIT TextChanged();
  Q_EMIT SelectionChanged();
}

void TextBox::ShowChange(const TextChange& change) {
  if (shown_revision_ + 1 != buffer_->Revision()) {
    view_->Invalidate();
    notifier_->Forget();
  }
  shown_revision_ = buffer_->Revision();
  mover_.Forget();
  if (change.whole && composer_.Active()) {
    composer_.Clear();
    // Some input methods type the composed text when they are reset, but that text belongs to the replaced text.
    const QScopedValueRollback<bool> ignoring(resetting_input_, true);
    QGuiApplication::inputMethod()->reset();
  }
  const bool selected = shown_selection_.begin != shown_selection_.end || buffer_->HasSelection();
  shown_selection_ = {buffer_->SelStart(), buffer_->SelEnd()};
  notifier_->Changed(change);
  if (!Showing()) return view_->Invalidate();

  if (const auto rows = view_->Follow(change)) {
    UpdateRows(*rows);
    if (selected) viewport()->update();
    UpdateScrollBar();
  } else {
    Relayout();
  }
  RevealCaret();
  ShowCaretAnew();
}

void TextBox::FollowSelection() {
  const TextSpan selection{buffer_->SelStart(), buffer_->SelEnd()};
  if (Showing()) {
    const TextSpan old = shown_selection_;
    if (old.begin != old.end || selection.begin != selection.end) UpdateRowsOf(Difference(old, selection));
    RevealCaret();
  }
  shown_selection_ = selection;
  ShowCaretAnew();
  notifier_->CaretMoved();
  Q_EMIT SelectionChanged();
}

void TextBox::UpdateRows(const RowsChange& rows) {
  const int top = view_->RowTop(rows.first) - Scrolled() - TextView::kOverhang;
  const int end = view_->RowTop(rows.first + rows.inserted) - Scrolled() + TextView::kOverhang;
  const int bottom = rows.removed != rows.inserted ? viewport()->height() : end;
  viewport()->update(0, top, viewport()->width(), bottom - top);
}

void TextBox::UpdateRowsOf(TextSpan span) {
  const TextLayout& layout = view_->Layout();
  const std::size_t first = layout.RowOf(std::min(span.begin, buffer_->Size()), true);
  const std::size_t last = layout.RowOf(std::min(span.end, buffer_->Size()));
  const std::size_t count = last - first + 1;
  UpdateRows({first, count, count});
}

// ---- geometry

void TextBox::Relayout() {
  if (!Showing()) return;
  UpdateScrollBar();
  viewport()->update();
}

// A scroll bar that appears or disappears changes the width of the viewport, and the new width changes the rows. So the
// range is set until the size of the viewport stays the same, at most three times.
void TextBox::UpdateScrollBar() {
  if (updating_bar_) return;
  updating_bar_ = true;
  for (int round = 0; round < 3; ++round) {
    const QSize window = viewport()->size();
    view_->SetViewportWidth(window.width());
    verticalScrollBar()->setSingleStep(view_->Glyphs().RowHeight());
    verticalScrollBar()->setPageStep(window.height());
    const int most = std::max(view_->ContentHeight() - window.height(), 0);
    // With the policy "as needed" Qt would show the bar later, and the caret could be out of sight by then.
    setVerticalScrollBarPolicy(most > 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setRange(0, most);
    if (viewport()->size() == window) break;
  }
  updating_bar_ = false;
}

// Keeps the text of the top row in place while `change` changes the rows.
void TextBox::KeepTopWhile(const std::function<void()>& change) {
  const int top = Scrolled();
  if (top == 0 || !Showing()) return change();
  const std::size_t row = view_->RowAt(top);
  const std::size_t pos = std::min(view_->RawLayout().RowStart(row), buffer_->Size());
  const int within = top - view_->RowTop(row);
  change();
  verticalScrollBar()->setValue(view_->RowTop(view_->Layout().RowOf(pos)) + within);
}

int TextBox::Scrolled() const { return verticalScrollBar()->value(); }

std::size_t TextBox::PageRows() const {
  const int rows = viewport()->height() / view_->Glyphs().RowHeight();
  return static_cast<std::size_t>(std::max(rows - 1, 1));
}

int TextBox::CaretWidth() const { return std::max(style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this), 1); }

TextPlace TextBox::PlaceAt(QPoint point) const { return view_->PlaceAt(point + QPoint(0, Scrolled())); }

bool TextBox::IsSelectedAt(QPoint point) const {
  if (!buffer_->HasSelection()) return false;
  const std::size_t row = view_->RowAt(point.y() + Scrolled());
  const QRect rows(0, view_->RowTop(row), viewport()->width(), view_->Glyphs().RowHeight());
  if (!rows.contains(0, point.y() + Scrolled())) return false;
  const TextLayout& layout = view_->Layout();
  const std::size_t begin = std::clamp(buffer_->SelStart(), layout.RowStart(row), layout.RowEnd(row));
  const std::size_t end = std::clamp(buffer_->SelEnd(), layout.RowStart(row), layout.RowEnd(row));
  return begin < end && point.x() >= view_->StopX(row, begin) && point.x() < view_->StopX(row, end);
}

QPoint TextBox::CaretPoint() const {
  view_->EnsureLayout();
  const std::size_t row = mover_.Row(*buffer_);
  return {view_->StopX(row, buffer_->Caret()), view_->RowTop(row) - Scrolled()};
}

QPoint TextBox::ComposedPoint() const {
  QPoint at = CaretPoint();
  if (!composer_.Active()) return at;
  const int right = viewport()->width() - TextView::kMargin;
  at.setX(std::min(at.x(), std::max(right - composer_.Width(font()), TextView::kMargin)));
  return at;
}

QRect TextBox::CaretRect() const {
  QPoint at = ComposedPoint();
  at.rx() += composer_.CaretX(font());
  return {at, QSize(CaretWidth(), view_->Glyphs().RowHeight())};
}

QRect TextBox::CharRect(std::size_t pos) const { return view_->CharRect(pos).translated(0, -Scrolled()); }

TextSpan TextBox::RowSpan(std::size_t pos) const {
  const TextLayout& layout = view_->Layout();
  const std::size_t row = layout.RowOf(pos);
  return {layout.RowStart(row), row + 1 < layout.RowCount() ? layout.RowStart(row + 1) : buffer_->Size()};
}

// ---- caret

void TextBox::MoveCaret(TextPlace place, bool select) {
  view_->EnsureLayout();
  mover_.Put(*buffer_, place, select);
  RevealCaret();
  ShowCaretAnew();
}

void TextBox::Select(TextSpan span, bool caret_first) {
  if (caret_first) std::swap(span.begin, span.end);
  buffer_->Select(span.begin, span.end);
}

void TextBox::Reveal(std::size_t pos) { RevealRect(CharRect(pos)); }

void TextBox::RevealCaret() {
  if (Showing()) RevealRect(CaretRect());
}

void TextBox::RevealRect(QRect rect) {
  QScrollBar* bar = verticalScrollBar();
  // The margin is shown only at the two ends of the text. Elsewhere a click on a row at the edge of the box would move
  // another row under the pointer.
  const bool first = rect.top() + bar->value() <= TextView::kMargin;
  const bool last = rect.bottom() + 1 + bar->value() + TextView::kMargin >= view_->ContentHeight();
  const int top = rect.top() - (first ? TextView::kMargin : 0);
  const int below = rect.bottom() + 1 + (last ? TextView::kMargin : 0) - viewport()->height();
  // In a box lower than `rect` the top of `rect` is shown.
  bar->setValue(bar->value() + std::min(std::max(below, 0), top));
}

void TextBox::ShowCaretAnew() {
  if (!Showing()) return;
  if (composer_.Active()) viewport()->update();  // composed text moves with the caret
  const QRect caret = CaretRect();
  if (caret != shown_caret_) {
    viewport()->update(shown_caret_);
    viewport()->update(caret);
    shown_caret_ = caret;
  }
  if (!hasFocus()) return;
  blink_.Start(!read_only_);
  updateMicroFocus();
}

void TextBox::PublishSelection() {
  QClipboard* clipboard = QGuiApplication::clipboard();
  if (!clipboard->supportsSelection() || !buffer_->HasSelection()) return;
  clipboard->setMimeData(MimeFromText(buffer_->SelText()), QClipboard::Selection);
}

void TextBox::ShowDropPlace(std::optional<TextPlace> place) {
  drop_place_ = place;
  viewport()->update();
}

}  // namespace pelmar
