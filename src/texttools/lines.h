// Tools that divide a text into lines or words. Only a line feed ends a line. Texts are Windows-1250.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

// Returns the indexes of the texts in sorted order. Equal texts keep their order.
using SortedOrder = std::function<std::vector<std::size_t>(const std::vector<std::string_view>&)>;

// The lines in ascending order. Each line keeps its own end. Lines of CR LF alone are dropped. required: a last line
// without an end runs into the line that follows in the result.
std::string SortLines(std::string_view text, const SortedOrder& order);

// A number of at least five digits and a blank before each line. required: the last character of the text is lost.
std::string NumberLines(std::string_view text);

// The words of a text. Each blank ends a word and belongs to this word, so a blank after a blank is a word of its own.
// Line ends don't separate words.
std::vector<std::string_view> WordsOf(std::string_view text);

// Each word, with its blank, on a separate line. The last line ends in CR LF too.
std::string WordsToLines(std::string_view text);

}  // namespace pelmar
