// Where a caret goes by single steps and by words. Positions are byte offsets from 0.
// A CR LF pair is one step. A word is a run of letters and digits or a run of other signs; blanks lie between words.
#pragma once

#include <cstddef>
#include <string_view>

namespace pelmar {

// One step on or back; the text's borders stay where they are.
std::size_t NextStop(std::string_view text, std::size_t pos);
std::size_t PreviousStop(std::string_view text, std::size_t pos);

// The beginning of the next word, or the next line; the beginning of this word or the one before it.
std::size_t NextWord(std::string_view text, std::size_t pos);
std::size_t PreviousWord(std::string_view text, std::size_t pos);

struct TextSpan {
  std::size_t begin = 0;
  std::size_t end = 0;
};

// The run of like characters that holds `pos`; at the end of a line the run before it, nothing in an empty line.
TextSpan WordAt(std::string_view text, std::size_t pos);

}  // namespace pelmar
