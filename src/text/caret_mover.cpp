#include "text/caret_mover.h"

#include <algorithm>

#include "text/text_stops.h"

namespace pelmar {

TextPlace PlaceInRow(const TextLayout& layout, std::size_t row, std::int64_t x) {
  const std::size_t pos = layout.StopAt(row, x - layout.RowLeft(row));
  return {pos, pos == layout.RowEnd(row) && !layout.EndsLine(row)};
}

void CaretMover::Go(TextBuffer& buffer, CaretMove move, bool select, std::size_t page_rows) {
  const bool aims =
      move == CaretMove::kUp || move == CaretMove::kDown || move == CaretMove::kPageUp || move == CaretMove::kPageDown;
  const TextPlace place = Target(buffer, move, select, page_rows);
  Put(buffer, place, select);
  if (aims) aim_valid_at_ = place.pos;
}

void CaretMover::Put(TextBuffer& buffer, TextPlace place, bool select) {
  aim_valid_at_.reset();
  row_end_caret_.reset();
  if (place.at_row_end) row_end_caret_ = place.pos;
  buffer.Select(select ? buffer.Anchor() : place.pos, place.pos);
}

std::size_t CaretMover::Row(const TextBuffer& buffer) const {
  return layout_->RowOf(buffer.Caret(), row_end_caret_ == buffer.Caret());
}

void CaretMover::Forget() {
  row_end_caret_.reset();
  aim_valid_at_.reset();
}

TextPlace CaretMover::Target(const TextBuffer& buffer, CaretMove move, bool select, std::size_t page_rows) {
  const std::string& text = buffer.Text();
  const std::size_t caret = buffer.Caret();
  const bool collapse = !select && buffer.HasSelection();
  const std::size_t row = Row(buffer);
  const std::size_t last = layout_->RowCount() - 1;
  switch (move) {
    case CaretMove::kLeft:
      return {collapse ? buffer.SelStart() : PreviousStop(text, caret)};
    case CaretMove::kRight:
      return {collapse ? buffer.SelEnd() : NextStop(text, caret)};
    case CaretMove::kWordLeft:
      return {PreviousWord(text, caret)};
    case CaretMove::kWordRight:
      return {NextWord(text, caret)};
    case CaretMove::kRowStart:
      return {layout_->RowStart(row)};
    case CaretMove::kRowEnd:
      return RowEndPlace(row);
    case CaretMove::kTextStart:
      return {0};
    case CaretMove::kTextEnd:
      return {text.size()};
    case CaretMove::kUp:
      return InRow(buffer, row > 0 ? row - 1 : 0);
    case CaretMove::kDown:
      return InRow(buffer, std::min(row + 1, last));
    case CaretMove::kPageUp:
      return InRow(buffer, row - std::min(row, page_rows));
    case CaretMove::kPageDown:
      return InRow(buffer, std::min(row + page_rows, last));
  }
  return {caret};
}

TextPlace CaretMover::InRow(const TextBuffer& buffer, std::size_t row) {
  const std::size_t from = Row(buffer);
  if (aim_valid_at_ != buffer.Caret()) aim_x_ = layout_->RowLeft(from) + layout_->XOf(from, buffer.Caret());
  return PlaceInRow(*layout_, row, aim_x_);
}

TextPlace CaretMover::RowEndPlace(std::size_t row) const { return {layout_->RowEnd(row), !layout_->EndsLine(row)}; }

}  // namespace pelmar
