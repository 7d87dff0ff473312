#include "platform/qt/controls/line_with_signs.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

#include "platform/qt/convert.h"
#include "platform/qt/glyph_table.h"

namespace pelmar {
namespace {

bool IsControlCharacter(QChar ch) { return ch.category() == QChar::Other_Control; }

bool HasControlCharacters(const QString& text) { return std::any_of(text.begin(), text.end(), IsControlCharacter); }

// The text as the line edit lays it out.
QString ControlCharactersAsBlanks(QString text) {
  for (QChar& ch : text)
    if (ch.unicode() < 0x20 && ch != u'\t') ch = u' ';
  return text;
}

}  // namespace

LineWithSigns::LineWithSigns(QWidget* parent) : Field(parent) {
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    setToolTip(HasControlCharacters(text) ? ReadableText(TextFromQString(text)) : QString());
  });
}

void LineWithSigns::paintEvent(QPaintEvent* event) {
  Field::paintEvent(event);
  const QString whole = text();
  if (!HasControlCharacters(whole)) return;
  QTextLayout layout(ControlCharactersAsBlanks(whole), font());
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  // Only the rectangle of the caret shows how far the text is scrolled.
  const QRect caret = cursorRect();
  const qreal origin = caret.center().x() + 1 - line.cursorToX(cursorPosition());
  const int low = caret.bottom() - caret.height() / 4;
  QPainter painter(this);
  painter.setClipRect(rect().adjusted(2, 2, -2, -2));
  painter.setPen(palette().color(QPalette::Text));
  for (int at = 0; at < whole.size(); ++at) {
    if (!IsControlCharacter(whole[at])) continue;
    const int left = qRound(origin + line.cursorToX(at)), right = qRound(origin + line.cursorToX(at + 1));
    painter.drawRect(left + 1, low - 5, std::max(right - left - 3, 2), 5);
  }
}

}  // namespace pelmar
