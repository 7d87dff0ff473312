// The column tool inserts a text into each row or removes a character from each row. The place in the row is given by
// its distance from the start or the end of the row. Texts are Windows-1250, distances count characters.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

using Rows = std::vector<std::string>;

// The lines of the selection without their line ends. A line that ends in LF alone gets a row only if the selection
// ends there, and this row includes the LF. `shortest` is the number that the dialog first shows as the length of the
// shortest row.
struct SelectedRows {
  Rows rows;
  std::size_t shortest = 0;
};

// required: if the last line isn't empty and ends in CR LF, an extra row repeats this line. The extra row lacks the
// first character of the line and includes the CR LF; `shortest` counts the extra row instead of the line. A last line
// of one character without a line end gets no row.
SelectedRows RowsOfSelection(std::string_view selected);

// The length of the shortest row, 0 if there are no rows.
std::size_t ShortestRow(const Rows& rows);

// The insertions skip rows shorter than `distance`. The removals also skip rows of exactly `distance` characters.
void InsertFromStart(Rows& rows, std::size_t distance, std::string_view text);
void InsertFromEnd(Rows& rows, std::size_t distance, std::string_view text);
void RemoveFromStart(Rows& rows, std::size_t distance);
void RemoveFromEnd(Rows& rows, std::size_t distance);

// The rows, separated by CR LF.
std::string JoinRows(const Rows& rows);

}  // namespace pelmar
