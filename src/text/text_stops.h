// The positions to which a step or a word moves the caret. Positions are byte offsets from 0. CR LF is one step. A word
// is a run of letters, digits and "_", or a run of other signs. Blanks separate words.
#pragma once

#include <cstddef>
#include <string_view>

namespace pelmar {

// One step forward or back, within the text.
std::size_t NextStop(std::string_view text, std::size_t pos);
std::size_t PreviousStop(std::string_view text, std::size_t pos);

// The next start of a word or end of a line; from the end of a line, the start of the next line.
std::size_t NextWord(std::string_view text, std::size_t pos);
// The last start of a word or of the line before `pos`; from the start of a line, the end of the line before.
std::size_t PreviousWord(std::string_view text, std::size_t pos);

struct TextSpan {
  std::size_t begin = 0;
  std::size_t end = 0;
};

// The run of characters of one kind around `pos`. At the end of a line the run before `pos`, or an empty span if the
// line is empty.
TextSpan WordAt(std::string_view text, std::size_t pos);

}  // namespace pelmar
