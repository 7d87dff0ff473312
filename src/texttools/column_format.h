// The column tool: lines as rows that get a text, or lose a character, at the same distance from their start or their
// end. Rows and texts are Windows-1250, distances count characters.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

using Rows = std::vector<std::string>;

// The selected text as rows, and the length of the shortest as the load counts it.
struct SelectedRows {
  Rows rows;
  std::size_t shortest = 0;
};

// required: the walk ends one character before the text does, and what is left then is a row of its own. A text that
// ends in CR LF behind a line that isn't empty thus gets an extra row of that line's last characters and the line end,
// and a last line of one character gets none.
SelectedRows RowsOfSelection(std::string_view selected);

// The length of the shortest row, 0 where there is none.
std::size_t ShortestRow(const Rows& rows);

// The four operations. A row that is shorter than the distance stays as it is; so does one from which a character
// should go where it has none.
void InsertFromStart(Rows& rows, std::size_t distance, std::string_view text);
void InsertFromEnd(Rows& rows, std::size_t distance, std::string_view text);
void RemoveFromStart(Rows& rows, std::size_t distance);
void RemoveFromEnd(Rows& rows, std::size_t distance);

// The rows with CR LF between them.
std::string JoinRows(const Rows& rows);

}  // namespace pelmar
