#include "platform/qt/textbox/text_painter.h"

#include <algorithm>

namespace pelmar {

void TextPainter::OpenGap(std::size_t row, std::size_t pos, qreal width) {
  gap_row_ = row;
  gap_pos_ = pos;
  gap_ = width;
}

qreal TextPainter::X(std::size_t row, std::size_t pos) const { return ExactPixels(layout_.XOf(row, pos)); }

void TextPainter::PaintRow(std::size_t row, QPointF origin, qreal left, qreal right) const {
  const QPointF begin = origin + QPointF(ExactPixels(layout_.RowLeft(row)), 0);
  const qreal gap = row == gap_row_ ? gap_ : 0;
  // Paint one more character on each side, since an italic letter can extend beyond its cell.
  std::size_t from = layout_.CharAt(row, std::max<std::int64_t>(UnitsBelow(left - begin.x() - gap), 0));
  std::size_t to = layout_.CharAt(row, std::max<std::int64_t>(UnitsBelow(right - begin.x()), 0));
  from -= from > layout_.RowStart(row) ? 1 : 0;
  to = std::min(to + 2, layout_.RowEnd(row));

  const TextSpan selected{std::clamp(buffer_.SelStart(), from, to), std::clamp(buffer_.SelEnd(), from, to)};
  PaintSelection(row, selected, begin);
  PaintPart(row, {from, selected.begin}, begin, false);
  PaintPart(row, selected, begin, true);
  PaintPart(row, {selected.end, to}, begin, false);
}

void TextPainter::PaintSelection(std::size_t row, TextSpan selected, QPointF begin) const {
  const std::size_t end = layout_.RowEnd(row);
  // A selected line break is shown as a selected blank after the row.
  const bool with_break =
      layout_.EndsLine(row) && row + 1 < layout_.RowCount() && buffer_.SelStart() <= end && buffer_.SelEnd() > end;
  if (selected.begin == selected.end && !with_break) return;
  qreal left = X(row, selected.begin);
  qreal right = X(row, selected.end);
  if (with_break) {
    if (selected.begin == selected.end) left = X(row, end);
    right = X(row, end) + ExactPixels(glyphs_.Advances().of[' ']);
  }
  painter_.fillRect(
      QRectF(QPointF(begin.x() + left, begin.y()), QPointF(begin.x() + right, begin.y() + glyphs_.RowHeight())),
      colours_.selection);
}

void TextPainter::PaintPart(std::size_t row, TextSpan part, QPointF origin, bool selected) const {
  if (part.begin >= part.end) return;
  if (row == gap_row_ && part.begin < gap_pos_ && gap_pos_ < part.end) {
    PaintPart(row, {part.begin, gap_pos_}, origin, selected);
    PaintPart(row, {gap_pos_, part.end}, origin, selected);
    return;
  }
  if (row == gap_row_ && part.begin >= gap_pos_) origin.rx() += gap_;
  const std::string_view text = std::string_view(buffer_.Text()).substr(part.begin, part.end - part.begin);
  const std::int64_t x = layout_.XOf(row, part.begin);
  glyphs_.Draw(painter_, origin, x, text, selected ? colours_.selected_text : colours_.text);
}

}  // namespace pelmar
