// Tools that treat a text as lines or words. The line feed alone ends a line. Texts are Windows-1250.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

// The order that sorts texts, as indexes; equal ones keep theirs.
using SortedOrder = std::function<std::vector<std::size_t>(const std::vector<std::string_view>&)>;

// The lines in rising order. Each line keeps its own end, and lines of CR LF alone are dropped. required: a last line
// without an end runs together with the line that follows it in the result. An empty text stays empty.
std::string SortLines(std::string_view text, const SortedOrder& order);

// Each line behind a number of five digits and a blank. required: the last character is lost.
std::string NumberLines(std::string_view text);

// The words of a text. A word includes the blank at its end, so a second blank is a word of its own. Line ends are
// characters like any others.
std::vector<std::string_view> WordsOf(std::string_view text);

// Each of these words on a line of its own, with its blank. The result ends in a line break. An empty text stays empty.
std::string WordsToLines(std::string_view text);

}  // namespace pelmar
