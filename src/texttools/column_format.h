// The column tool inserts a text into each row, or removes a character, at one distance from the start or the end of
// the row. Texts are Windows-1250, distances count characters.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

using Rows = std::vector<std::string>;

// The lines of the selection without their line ends. `shortest` is the number that the dialog first shows as the
// length of the shortest row.
struct SelectedRows {
  Rows rows;
  std::size_t shortest = 0;
};

// required: if the selection ends in a line with text and CR LF, an extra row repeats this line without its first
// character and with the CR LF; `shortest` counts this row instead of the line. A last line of one character without a
// line end gets no row.
SelectedRows RowsOfSelection(std::string_view selected);

// The length of the shortest row, 0 if there are no rows.
std::size_t ShortestRow(const Rows& rows);

// The insertions change only rows of at least `distance` characters, the removals only longer rows.
void InsertFromStart(Rows& rows, std::size_t distance, std::string_view text);
void InsertFromEnd(Rows& rows, std::size_t distance, std::string_view text);
void RemoveFromStart(Rows& rows, std::size_t distance);
void RemoveFromEnd(Rows& rows, std::size_t distance);

// The rows, separated by CR LF.
std::string JoinRows(const Rows& rows);

}  // namespace pelmar
