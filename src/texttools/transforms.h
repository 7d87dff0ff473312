// Changes of the selected text, character by character. Texts are Windows-1250.
#pragma once

#include <string>
#include <string_view>

namespace pelmar {

// The first letter of each word in upper case, all others in lower case. Only blanks and the control characters 0 and 9
// to 13 separate words.
std::string ProperCase(std::string_view text);

// The characters from last to first. A line break becomes LF CR.
std::string Reversed(std::string_view text);

}  // namespace pelmar
