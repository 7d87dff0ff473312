#include "platform/qt/textbox/text_composer.h"

#include <QtMath>
#include <algorithm>

#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard_text.h"
#include "text/text_stops.h"

namespace pelmar {
namespace {

// Input methods get at most this number of characters before the caret, after the caret and of the selection. Input
// methods need only a few words, and a line may have millions of characters.
constexpr std::size_t kSurrounding = 512;

// The part of the caret's line that is passed to input methods.
TextSpan SurroundingOf(const TextBuffer& buffer) {
  const std::size_t line = buffer.LineOf(buffer.Caret());
  const std::size_t begin = buffer.LineStart(line);
  const std::size_t end = buffer.LineEnd(line);
  const std::size_t caret = std::clamp(buffer.Caret(), begin, end);
  return {std::max(begin, caret - std::min(caret, kSurrounding)), std::min(end, caret + kSurrounding)};
}

// Converts a position to an offset in the surrounding text.
int Inside(TextSpan around, std::size_t pos) {
  return static_cast<int>(std::clamp(pos, around.begin, around.end) - around.begin);
}

QString TextOf(const TextBuffer& buffer, TextSpan span) {
  return TextToQString(std::string_view(buffer.Text()).substr(span.begin, span.end - span.begin));
}

std::size_t Offset(std::size_t pos, int by, std::size_t size) {
  const auto target = static_cast<std::int64_t>(pos) + by;
  return static_cast<std::size_t>(std::clamp<std::int64_t>(target, 0, static_cast<std::int64_t>(size)));
}

}  // namespace

void TextComposer::Handle(const QInputMethodEvent& event, TextBuffer& buffer) {
  const bool replaces = event.replacementLength() > 0 || event.replacementStart() != 0;
  const bool changes = !event.commitString().isEmpty() || event.preeditString() != text_;
  if (replaces) {
    const std::size_t from = Offset(buffer.Caret(), event.replacementStart(), buffer.Size());
    buffer.Select(from, Offset(from, event.replacementLength(), buffer.Size()));
  }
  if (!event.commitString().isEmpty()) {
    buffer.Type(TextInCodePage(event.commitString()));
  } else if (replaces || (changes && buffer.HasSelection())) {
    buffer.ReplaceSelection({});
  }

  text_ = event.preeditString();
  formats_.clear();
  caret_ = static_cast<int>(text_.size());
  shows_caret_ = true;
  for (const QInputMethodEvent::Attribute& attribute : event.attributes()) {
    if (attribute.type == QInputMethodEvent::Selection) {
      const TextSpan around = SurroundingOf(buffer);
      const std::size_t from = Offset(around.begin, attribute.start, buffer.Size());
      buffer.Select(from, Offset(from, attribute.length, buffer.Size()));
    } else if (attribute.type == QInputMethodEvent::Cursor) {
      caret_ = std::clamp(attribute.start, 0, static_cast<int>(text_.size()));
      shows_caret_ = attribute.length != 0;
    } else if (attribute.type == QInputMethodEvent::TextFormat) {
      const QTextCharFormat format = attribute.value.value<QTextFormat>().toCharFormat();
      if (format.isValid()) formats_.append({attribute.start, attribute.length, format});
    }
  }
}

void TextComposer::Clear() {
  text_.clear();
  shows_caret_ = true;
}

void TextComposer::Layout(QTextLayout& layout) const {
  QList<QTextLayout::FormatRange> formats = formats_;
  if (formats.isEmpty()) {
    QTextCharFormat underlined;
    underlined.setFontUnderline(true);
    formats.append({0, static_cast<int>(text_.size()), underlined});
  }
  layout.setFormats(formats);
  layout.setCacheEnabled(true);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
}

int TextComposer::CaretX(const QFont& font) const {
  if (!Active()) return 0;
  QTextLayout layout(text_, font);
  Layout(layout);
  return qRound(layout.lineAt(0).cursorToX(caret_));
}

int TextComposer::Width(const QFont& font) const {
  if (!Active()) return 0;
  QTextLayout layout(text_, font);
  Layout(layout);
  return qCeil(layout.lineAt(0).naturalTextWidth());
}

void TextComposer::Paint(QPainter& painter, QPointF baseline, const QFont& font) const {
  QTextLayout layout(text_, font);
  Layout(layout);
  layout.draw(&painter, baseline - QPointF(0, layout.lineAt(0).ascent()));
}

QVariant TextComposer::AnswerFromText(Qt::InputMethodQuery query, const TextBuffer& buffer) {
  const TextSpan around = SurroundingOf(buffer);
  const std::size_t caret = around.begin + static_cast<std::size_t>(Inside(around, buffer.Caret()));
  switch (query) {
    case Qt::ImSurroundingText:
      return TextOf(buffer, around);
    case Qt::ImCursorPosition:
      return Inside(around, buffer.Caret());
    case Qt::ImAnchorPosition:
      return Inside(around, buffer.Anchor());
    case Qt::ImAbsolutePosition:
      return static_cast<int>(buffer.Caret());
    case Qt::ImCurrentSelection:
      return TextToQString(buffer.SelText().substr(0, kSurrounding));
    case Qt::ImTextBeforeCursor:
      return TextOf(buffer, {around.begin, caret});
    case Qt::ImTextAfterCursor:
      return TextOf(buffer, {caret, around.end});
    default:
      return {};
  }
}

}  // namespace pelmar
