#include "platform/qt/textbox/text_box_accessible.h"

#include <algorithm>

#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard_text.h"

namespace pelmar {
namespace {

// Converts an offset from assistive technology. In the protocol -1 means the end and -2 the caret.
std::size_t PosOf(int offset, const TextBuffer& buffer) {
  if (offset == -2) return buffer.Caret();
  if (offset < 0) return buffer.Size();
  return std::min(static_cast<std::size_t>(offset), buffer.Size());
}

}  // namespace

TextBoxAccessible::TextBoxAccessible(TextBox& box) : QAccessibleWidget(&box, QAccessible::EditableText), box_(box) {}

void* TextBoxAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface) return static_cast<QAccessibleEditableTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QAccessible::State TextBoxAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.multiLine = true;
  state.selectableText = true;
  state.editable = !box_.IsReadOnly();
  state.readOnly = box_.IsReadOnly();
  return state;
}

QString TextBoxAccessible::text(QAccessible::Text type) const {
  return type == QAccessible::Value ? TextToQString(box_.Buffer().Text()) : QAccessibleWidget::text(type);
}

void TextBoxAccessible::setText(QAccessible::Text type, const QString& text) {
  if (type != QAccessible::Value) return QAccessibleWidget::setText(type, text);
  if (!box_.IsReadOnly()) box_.Buffer().SetText(PageText(text));
}

void TextBoxAccessible::selection(int index, int* start, int* end) const {
  const bool exists = index == 0 && box_.Buffer().HasSelection();
  *start = exists ? box_.SelStart() : 0;
  *end = exists ? box_.SelStart() + box_.SelLength() : 0;
}

int TextBoxAccessible::selectionCount() const { return box_.Buffer().HasSelection() ? 1 : 0; }
void TextBoxAccessible::addSelection(int start, int end) { setSelection(0, start, end); }

void TextBoxAccessible::removeSelection(int index) {
  if (index == 0) box_.PutCaret({box_.Buffer().Caret()});
}

void TextBoxAccessible::setSelection(int index, int start, int end) {
  if (index == 0) box_.Buffer().Select(PosOf(start, box_.Buffer()), PosOf(end, box_.Buffer()));
}

int TextBoxAccessible::cursorPosition() const { return static_cast<int>(box_.Buffer().Caret()); }
void TextBoxAccessible::setCursorPosition(int position) { box_.PutCaret({PosOf(position, box_.Buffer())}); }
int TextBoxAccessible::characterCount() const { return static_cast<int>(box_.Buffer().Size()); }

QString TextBoxAccessible::text(int start, int end) const {
  const std::size_t from = PosOf(start, box_.Buffer());
  const std::size_t to = std::max(PosOf(end, box_.Buffer()), from);
  return TextToQString(std::string_view(box_.Buffer().Text()).substr(from, to - from));
}

TextSpan TextBoxAccessible::UnitAt(std::size_t pos, QAccessible::TextBoundaryType type) const {
  const TextBuffer& buffer = box_.Buffer();
  const std::size_t line = buffer.LineOf(pos);
  switch (type) {
    case QAccessible::CharBoundary:
      return {pos, std::min(pos + 1, buffer.Size())};
    case QAccessible::WordBoundary:
      return WordAt(buffer.Text(), pos);
    case QAccessible::LineBoundary:
      return box_.RowSpan(pos);
    case QAccessible::SentenceBoundary:
    case QAccessible::ParagraphBoundary:
      return {buffer.LineStart(line), line + 1 < buffer.LineCount() ? buffer.LineStart(line + 1) : buffer.Size()};
    default:
      return {0, buffer.Size()};
  }
}

QString TextBoxAccessible::Answer(TextSpan span, int* start, int* end) const {
  *start = static_cast<int>(span.begin);
  *end = static_cast<int>(span.end);
  return text(*start, *end);
}

QString TextBoxAccessible::textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const {
  return Answer(UnitAt(PosOf(offset, box_.Buffer()), type), start, end);
}

QString TextBoxAccessible::textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                            int* end) const {
  const TextSpan here = UnitAt(PosOf(offset, box_.Buffer()), type);
  if (here.begin == 0) return Answer({0, 0}, start, end);
  return Answer({UnitAt(here.begin - 1, type).begin, here.begin}, start, end);
}

QString TextBoxAccessible::textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const {
  const std::size_t size = box_.Buffer().Size();
  const TextSpan here = UnitAt(PosOf(offset, box_.Buffer()), type);
  if (here.end >= size) return Answer({size, size}, start, end);
  const TextSpan next = UnitAt(here.end, type);
  return Answer({here.end, std::max(next.end, here.end)}, start, end);
}

QRect TextBoxAccessible::characterRect(int offset) const {
  const QRect rect = box_.CharRect(PosOf(offset, box_.Buffer()));
  return {box_.viewport()->mapToGlobal(rect.topLeft()), rect.size()};
}

int TextBoxAccessible::offsetAtPoint(const QPoint& point) const {
  return static_cast<int>(box_.PlaceAt(box_.viewport()->mapFromGlobal(point)).pos);
}

void TextBoxAccessible::scrollToSubstring(int start, int end) {
  box_.Reveal(PosOf(end, box_.Buffer()));
  box_.Reveal(PosOf(start, box_.Buffer()));
}

QString TextBoxAccessible::attributes(int /*offset*/, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  const QFont font = box_.font();
  return QStringLiteral("font-family:\"%1\";font-size:%2pt;").arg(font.family()).arg(font.pointSizeF());
}

void TextBoxAccessible::deleteText(int start, int end) { replaceText(start, end, {}); }
void TextBoxAccessible::insertText(int offset, const QString& text) { replaceText(offset, offset, text); }

void TextBoxAccessible::replaceText(int start, int end, const QString& text) {
  if (box_.IsReadOnly()) return;
  const std::size_t from = PosOf(start, box_.Buffer());
  const std::size_t to = std::max(PosOf(end, box_.Buffer()), from);
  box_.Buffer().Replace(from, to - from, PageText(text));
}

void TextBoxNotifier::Forget() {
  known_text_.clear();
  known_text_.shrink_to_fit();
  knows_text_ = false;
}

void TextBoxNotifier::Changed(const TextChange& change) {
  if (!IsActive()) {
    if (knows_text_) Forget();
    return;
  }
  const std::string_view text = box_.Buffer().Text();
  const std::string_view inserted = text.substr(change.pos, change.inserted);
  if (knows_text_) {
    const std::string_view removed = std::string_view(known_text_).substr(change.pos, change.removed);
    const int pos = static_cast<int>(change.pos);
    QAccessibleTextUpdateEvent event(&box_, pos, TextToQString(removed), TextToQString(inserted));
    event.setCursorPosition(static_cast<int>(box_.Buffer().Caret()));
    Send(event);
    known_text_.replace(change.pos, change.removed, inserted);
  } else {
    known_text_ = text;
    knows_text_ = true;
    // The removed text is unknown, so only the insertion is sent.
    QAccessibleTextInsertEvent event(&box_, static_cast<int>(change.pos), TextToQString(inserted));
    event.setCursorPosition(static_cast<int>(box_.Buffer().Caret()));
    Send(event);
  }
  NotifyCaret();
}

void TextBoxNotifier::CaretMoved() {
  if (!IsActive()) return;
  if (!knows_text_) {
    known_text_ = box_.Buffer().Text();
    knows_text_ = true;
  }
  QAccessibleTextSelectionEvent selection(&box_, box_.SelStart(), box_.SelStart() + box_.SelLength());
  selection.setCursorPosition(static_cast<int>(box_.Buffer().Caret()));
  Send(selection);
  NotifyCaret();
}

// Sends a separate event, since magnifiers and braille displays ignore the caret position in text events.
void TextBoxNotifier::NotifyCaret() {
  QAccessibleTextCursorEvent caret(&box_, static_cast<int>(box_.Buffer().Caret()));
  Send(caret);
}

}  // namespace pelmar
