// The positions to which the caret moves by one step (a character or a CR LF) or by one word. Positions are byte
// offsets from 0. A word is a run of characters of one kind. The kinds are: letters, digits and "_"; control characters
// (codes below 32 except TAB and CR LF); other signs. Blanks (space, TAB, no-break space) and CR LF separate words.
#pragma once

#include <cstddef>
#include <string_view>

namespace pelmar {

// One step forward or back, within the text.
std::size_t NextStop(std::string_view text, std::size_t pos);
std::size_t PreviousStop(std::string_view text, std::size_t pos);

// The start of the next word, or the end of the line if no word follows. From the end of a line: the position after the
// blanks at the start of the next line.
std::size_t NextWord(std::string_view text, std::size_t pos);
// The start of the last word that begins before `pos` in the line, or the start of the line if there is no such word.
// From the start of a line: the end of the previous line.
std::size_t PreviousWord(std::string_view text, std::size_t pos);

struct TextSpan {
  std::size_t begin = 0;
  std::size_t end = 0;
};

// The word or the run of blanks that contains the character at `pos`. At the end of a line: the word or the blanks
// before `pos`, or an empty span if the line is empty.
TextSpan WordAt(std::string_view text, std::size_t pos);

}  // namespace pelmar
