// Moves the caret over the rows of a layout. The position at which a line wraps belongs to two rows. CaretMover
// remembers which of the two rows shows the caret. For a series of Up, Down, PageUp and PageDown, CaretMover remembers
// the x at which the series began. Each move of the series puts the caret as near to this x as the row allows. The row
// and the x are used only while the caret is at the position that CaretMover set.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "text/text_buffer.h"
#include "text/text_layout.h"

namespace pelmar {

enum class CaretMove : std::uint8_t {
  kLeft,
  kRight,
  kWordLeft,
  kWordRight,
  kRowStart,
  kRowEnd,
  kUp,
  kDown,
  kPageUp,
  kPageDown,
  kTextStart,
  kTextEnd,
};

// A position and the row that shows it.
struct TextPlace {
  std::size_t pos = 0;
  bool at_row_end = false;  // at the end of a wrapped row, not at the start of the next row
};

class CaretMover {
 public:
  explicit CaretMover(const TextLayout& layout) : layout_(&layout) {}

  // Moves the caret. With `select` the anchor of the selection stays. A page has `page_rows` rows.
  void Go(TextBuffer& buffer, CaretMove move, bool select, std::size_t page_rows = 1);
  void Put(TextBuffer& buffer, TextPlace place, bool select);

  [[nodiscard]] std::size_t Row(const TextBuffer& buffer) const;
  // Call after each change of the text, and after a switch to another buffer.
  void Forget();

 private:
  TextPlace Target(const TextBuffer& buffer, CaretMove move, bool select, std::size_t page_rows);
  TextPlace InRow(const TextBuffer& buffer, std::size_t row);
  [[nodiscard]] TextPlace RowEndPlace(std::size_t row) const;

  const TextLayout* layout_;
  std::optional<std::size_t> row_end_caret_;  // the caret position that is shown at the end of a row
  std::optional<std::size_t> aim_valid_at_;   // the caret position for which `aim_x_` is valid
  std::int64_t aim_x_ = 0;
};

// Of the places in this row where the caret can stand, the one nearest to `x`. `x` counts from the left edge of the
// content, in units of the layout.
TextPlace PlaceInRow(const TextLayout& layout, std::size_t row, std::int64_t x);

}  // namespace pelmar
