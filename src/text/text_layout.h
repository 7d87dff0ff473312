// Where the characters of a text stand: rows, wrapping, and the way between positions and points. Plain additions
// over a table of 256 advances, so that what is painted and what is hit are equal by construction.
// Lengths are in 64ths of a logical pixel, as the font engine counts, so sums are exact and nothing drifts. Rows count
// from 0, positions are byte offsets from 0. A row never holds the CR LF that ends its line.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text/index.h"
#include "text/text_buffer.h"

namespace pelmar {

inline constexpr std::int64_t kUnitsPerPixel = 64;
inline double ExactPixels(std::int64_t units) { return static_cast<double>(units) / kUnitsPerPixel; }
inline int WholePixelsBelow(std::int64_t units) { return static_cast<int>(units / kUnitsPerPixel); }
inline std::int64_t UnitsBelow(double pixels) { return static_cast<std::int64_t>(pixels * kUnitsPerPixel); }
inline std::int64_t NearestUnits(double pixels) { return std::llround(pixels * kUnitsPerPixel); }

// How far each of the 256 codes moves on. TAB goes to the next multiple of `tab_stop`, which is above 0.
struct AdvanceTable {
  std::array<std::int32_t, 256> of{};
  std::int32_t tab_stop = 1;

  // Where a character ends that begins at `x`, both counted from the row's beginning.
  [[nodiscard]] std::int64_t After(std::int64_t x, char ch) const {
    return ch == '\t' ? (x / tab_stop + 1) * tab_stop : x + of[IndexOf(ch)];
  }
};

enum class TextAlign : std::uint8_t { kLeft, kRight, kCentre };

struct LayoutRules {
  AdvanceTable advances;
  std::int64_t width = 0;  // of the window that shows the text
  bool wrap = true;        // at `width`, behind a blank where there is one
  TextAlign align = TextAlign::kLeft;
};

// Rows that a change of the text put in place of others.
struct RowsChange {
  std::size_t first = 0;
  std::size_t removed = 0;
  std::size_t inserted = 0;
};

class TextLayout {
 public:
  // The buffer must outlive the layout. Until the first Lay there is one row, without width.
  explicit TextLayout(const TextBuffer& buffer) : buffer_(&buffer) {}

  // Lays the whole text out.
  void Lay(const LayoutRules& rules);
  // Another width of the window; lays out anew only where the text wraps.
  void SetWidth(std::int64_t width);
  void SetAlign(TextAlign align) { rules_.align = align; }
  // Follows one change of the buffer, told after it. Without a call for each change the layout is void.
  RowsChange Update(const TextChange& change);

  [[nodiscard]] std::size_t RowCount() const { return rows_.size(); }
  [[nodiscard]] std::size_t RowStart(std::size_t row) const { return rows_[row]; }
  [[nodiscard]] std::size_t RowEnd(std::size_t row) const;
  // True where the row ends with its line, false where the text wraps.
  [[nodiscard]] bool EndsLine(std::size_t row) const;
  // A position where the text wraps belongs to the row that begins there, `at_row_end` asks for the one that ends.
  [[nodiscard]] std::size_t RowOf(std::size_t pos, bool at_row_end = false) const;

  // The width of the widest row and of the window, whichever is more; without wrapping it asks for scrolling.
  [[nodiscard]] std::int64_t ContentWidth() const;
  [[nodiscard]] std::int64_t RowWidth(std::size_t row) const { return XOf(row, RowEnd(row)); }
  // Where a row begins, by the alignment.
  [[nodiscard]] std::int64_t RowLeft(std::size_t row) const;

  // The distance of a caret stop from the row's beginning. A blank that hangs over the edge has no width.
  [[nodiscard]] std::int64_t XOf(std::size_t row, std::size_t pos) const;
  // The caret stop nearest to `x`, and the character that covers it (the row's end behind the last one).
  [[nodiscard]] std::size_t StopAt(std::size_t row, std::int64_t x) const;
  [[nodiscard]] std::size_t CharAt(std::size_t row, std::int64_t x) const;

 private:
  // A known place in a long row, so that no question needs more than a short walk.
  struct Mark {
    std::size_t pos = 0;
    std::int64_t x = 0;
  };

  void LayAll();
  [[nodiscard]] std::size_t NextRow(std::size_t start, std::size_t& line) const;
  [[nodiscard]] std::size_t WrapAt(std::size_t start, std::size_t end) const;
  [[nodiscard]] std::int64_t Walk(Mark from, std::size_t to) const;
  [[nodiscard]] std::int64_t MeasureRow(std::size_t row, Mark from, std::vector<Mark>& marks) const;
  void MeasureAll();
  void Remeasure(const RowsChange& rows, const TextChange& change, std::size_t same_from);

  const TextBuffer* buffer_;
  LayoutRules rules_;
  std::vector<std::size_t> rows_{0};
  std::vector<std::int64_t> widths_{0};  // of each row; without wrapping only
  std::vector<Mark> marks_;              // without wrapping only
  std::int64_t widest_ = 0;
};

}  // namespace pelmar
