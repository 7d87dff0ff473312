// Small routines over texts that the whole program shares. Texts are Windows-1250.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/random.h"

namespace pelmar {

inline constexpr std::string_view kCrLf = "\r\n";
inline constexpr std::string_view kQuote = "\"";

// Czech letters without their marks; letters of other languages stay.
std::string StripDiacritics(std::string_view text);

// Each character in upper or lower case as `draw` says, one draw each.
std::string RandomCase(std::string_view text, const Draw& draw);

// Replaces each exact occurrence of `find`, from the left. required: the next occurrence may begin with the second
// character of the replacement, but may not lie wholly in it. `find` is not empty.
std::string ReplaceAllText(std::string_view text, std::string_view find, std::string_view with);

// How many characters of code 10 the text holds.
std::int32_t CountLineFeeds(std::string_view text);

// The lines, separated by CR LF.
std::string JoinLines(const std::vector<std::string_view>& lines);

// A number as the status bar writes it: a blank for the sign of a positive one, then the digits.
std::string NumberWithSignBlank(std::int64_t number);

}  // namespace pelmar
