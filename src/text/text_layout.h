// Divides the lines of a text into rows and computes the place of each character from a table of 256 advances. Painting
// and mouse clicks use the same places. Lengths are whole 64ths of a logical pixel, the unit of the font engine, so
// sums are exact. Rows and positions (bytes) count from 0. The CR LF at the end of a line belongs to no row.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "text/index.h"
#include "text/text_buffer.h"

namespace pelmar {

inline constexpr std::int64_t kUnitsPerPixel = 64;
inline double ExactPixels(std::int64_t units) { return static_cast<double>(units) / kUnitsPerPixel; }
inline int WholePixelsBelow(std::int64_t units) { return static_cast<int>(units / kUnitsPerPixel); }
inline std::int64_t UnitsBelow(double pixels) { return static_cast<std::int64_t>(pixels * kUnitsPerPixel); }
inline std::int64_t NearestUnits(double pixels) { return std::llround(pixels * kUnitsPerPixel); }

// The advance of each of the 256 characters. TAB leads to the next multiple of `tab_stop`, which is positive.
struct AdvanceTable {
  std::array<std::int32_t, 256> of{};
  std::int32_t tab_stop = 1;

  // The right edge of a character with its left edge at `x`. Both count from the start of the row.
  [[nodiscard]] std::int64_t After(std::int64_t x, char ch) const {
    return ch == '\t' ? (x / tab_stop + 1) * tab_stop : x + of[IndexOf(ch)];
  }
};

enum class TextAlign : std::uint8_t { kLeft, kRight, kCentre };

struct LayoutRules {
  AdvanceTable advances;
  std::int64_t width = 0;  // never negative; lines wrap here, after a blank if there is one
  TextAlign align = TextAlign::kLeft;
};

// A change of the rows: from the row `first` on, `inserted` rows replaced `removed` rows.
struct RowsChange {
  std::size_t first = 0;
  std::size_t removed = 0;
  std::size_t inserted = 0;
};

class TextLayout {
 public:
  // The buffer must outlive the layout. Until the first Lay there is one row, and its width is 0.
  explicit TextLayout(const TextBuffer& buffer) : buffer_(&buffer) {}

  void Lay(const LayoutRules& rules);
  // Changes LayoutRules::width and computes all rows again. Does nothing if the width is the same.
  void SetWidth(std::int64_t width);
  void SetAlign(TextAlign align) { rules_.align = align; }
  // Adapts the rows to a change of the text. Call after each change, unless Lay follows.
  RowsChange Update(const TextChange& change);

  [[nodiscard]] std::size_t RowCount() const { return rows_.size(); }
  [[nodiscard]] std::size_t RowStart(std::size_t row) const { return rows_[row]; }
  [[nodiscard]] std::size_t RowEnd(std::size_t row) const;
  // True if the row is the last row of its line.
  [[nodiscard]] bool EndsLine(std::size_t row) const;
  // A position between two rows of one line belongs to the second row, with `at_row_end` to the first.
  [[nodiscard]] std::size_t RowOf(std::size_t pos, bool at_row_end = false) const;

  [[nodiscard]] std::int64_t RowWidth(std::size_t row) const { return XOf(row, RowEnd(row)); }
  // The left edge of a row, which depends on the alignment.
  [[nodiscard]] std::int64_t RowLeft(std::size_t row) const;

  // The distance of a position from the start of the row. The last character of a row may not fit, so the distance is
  // cut to LayoutRules::width.
  [[nodiscard]] std::int64_t XOf(std::size_t row, std::size_t pos) const;
  // StopAt returns the position nearest to `x`. CharAt returns the position of the character at `x`. After the last
  // character both return the row end. `x` counts from the start of the row.
  [[nodiscard]] std::size_t StopAt(std::size_t row, std::int64_t x) const;
  [[nodiscard]] std::size_t CharAt(std::size_t row, std::int64_t x) const;

 private:
  void LayAll();
  [[nodiscard]] std::size_t NextRow(std::size_t start, std::size_t& line) const;
  [[nodiscard]] std::size_t WrapAt(std::size_t start, std::size_t end) const;

  const TextBuffer* buffer_;
  LayoutRules rules_;
  std::vector<std::size_t> rows_{0};
};

}  // namespace pelmar
