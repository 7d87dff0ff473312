// Where single steps and steps by words take a caret. Positions are byte offsets from 0. CR LF is one step. A word is a
// run of letters and digits, or a run of other signs. Blanks separate words.
#pragma once

#include <cstddef>
#include <string_view>

namespace pelmar {

// One step forward or back, within the text.
std::size_t NextStop(std::string_view text, std::size_t pos);
std::size_t PreviousStop(std::string_view text, std::size_t pos);

// The start of the next word or of the next line. The start of this word or of the word before.
std::size_t NextWord(std::string_view text, std::size_t pos);
std::size_t PreviousWord(std::string_view text, std::size_t pos);

struct TextSpan {
  std::size_t begin = 0;
  std::size_t end = 0;
};

// The run of characters of one kind around `pos`. At the end of a line the run before `pos`, in an empty line nothing.
TextSpan WordAt(std::string_view text, std::size_t pos);

}  // namespace pelmar
