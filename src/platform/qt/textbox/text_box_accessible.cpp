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

QString TextBoxAccessible::textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const {
  const TextSpan unit = UnitAt(PosOf(offset, box_.Buffer()), type);
  *start = static_cast<int>(unit.begin);
  *end = static_cast<int>(unit.end);
  return text(*start, *end);
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
  box_.Buffer().Replace(from, to - from, TextInCodePage(text));
}

void TextBoxNotifier::Changed(const TextChange& change) {
  if (!QAccessible::isActive()) return Forget();
  const std::string_view text = box_.Buffer().Text();
  const std::string_view inserted = text.substr(change.pos, change.inserted);
  if (known_text_) {
    const std::string_view removed = std::string_view(*known_text_).substr(change.pos, change.removed);
    const int pos = static_cast<int>(change.pos);
    QAccessibleTextUpdateEvent event(&box_, pos, TextToQString(removed), TextToQString(inserted));
    event.setCursorPosition(static_cast<int>(box_.Buffer().Caret()));
    QAccessible::updateAccessibility(&event);
    known_text_->replace(change.pos, change.removed, inserted);
  } else {
    known_text_.emplace(text);
    // The removed text is unknown, so only the insertion is sent.
    QAccessibleTextInsertEvent event(&box_, static_cast<int>(change.pos), TextToQString(inserted));
    event.setCursorPosition(static_cast<int>(box_.Buffer().Caret()));
    QAccessible::updateAccessibility(&event);
  }
  NotifyCaret();
}

void TextBoxNotifier::CaretMoved() {
  if (!QAccessible::isActive()) return;
  if (!known_text_) known_text_.emplace(box_.Buffer().Text());
  QAccessibleTextSelectionEvent selection(&box_, box_.SelStart(), box_.SelStart() + box_.SelLength());
  selection.setCursorPosition(static_cast<int>(box_.Buffer().Caret()));
  QAccessible::updateAccessibility(&selection);
  NotifyCaret();
}

// Sends a separate event, since magnifiers and braille displays ignore the caret position in text events.
void TextBoxNotifier::NotifyCaret() {
  QAccessibleTextCursorEvent caret(&box_, static_cast<int>(box_.Buffer().Caret()));
  QAccessible::updateAccessibility(&caret);
}

}  // namespace pelmar
