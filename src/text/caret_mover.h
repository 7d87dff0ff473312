// Moves the caret of a buffer over the rows of its layout, as the keyboard asks.
// Remembers two things that a position can't tell: which of two rows the caret is shown on where the text wraps, and
// the x that Up and Down aim at. Both hold for one position only, so any other move of the caret voids them.
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

// A place in the text that a point stands for.
struct TextPlace {
  std::size_t pos = 0;
  bool at_row_end = false;  // shown at the end of the row above, where the text wraps
};

class CaretMover {
 public:
  explicit CaretMover(const TextLayout& layout) : layout_(&layout) {}

  // Moves the caret, with `select` leaving the anchor behind. A page has `page_rows` rows.
  void Go(TextBuffer& buffer, CaretMove move, bool select, std::size_t page_rows = 1);
  void Put(TextBuffer& buffer, TextPlace place, bool select);

  // The row that shows the caret.
  [[nodiscard]] std::size_t Row(const TextBuffer& buffer) const;
  // To be called after each change of content.
  void Forget();

 private:
  TextPlace Target(const TextBuffer& buffer, CaretMove move, bool select, std::size_t page_rows);
  TextPlace InRow(const TextBuffer& buffer, std::size_t row);
  [[nodiscard]] TextPlace RowEndPlace(std::size_t row) const;

  const TextLayout* layout_;
  std::optional<std::size_t> at_row_end_;  // the caret's position that is shown at a row's end
  std::optional<std::size_t> aimed_from_;  // the caret's position for which `aim_` holds
  std::int64_t aim_ = 0;
};

// The place in row `row` nearest to `x`, counted from the left border of the content.
TextPlace PlaceInRow(const TextLayout& layout, std::size_t row, std::int64_t x);

}  // namespace pelmar
