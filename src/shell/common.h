// Small text functions that the whole program shares. Texts are Windows-1250.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/random.h"

namespace pelmar {

inline constexpr std::string_view kCrLf = "\r\n";
inline constexpr std::string_view kQuote = "\"";

// Removes the diacritics of Czech letters. All other characters stay.
std::string StripDiacritics(std::string_view text);

// Sets each character to upper or lower case at random. Draws one number for each character.
std::string RandomCase(std::string_view text, const Draw& draw);

// Replaces each exact occurrence of `find`, from the left. `find` must not be empty. required: the next occurrence must
// begin at least one character after the start of the replacement, and must end after the replacement. So "aaaa"
// without "a" is "aa".
std::string ReplaceAllText(std::string_view text, std::string_view find, std::string_view with);

// The number of characters of code 10.
std::int32_t CountLineFeeds(std::string_view text);

// Joins the lines with CR LF.
std::string JoinLines(const std::vector<std::string_view>& lines);

// A number in the format of the status bar: a minus sign or a blank, then the digits.
std::string NumberWithSignBlank(std::int64_t number);

}  // namespace pelmar
