// Writes and reads numbers, whatever the system's locale is. Written numbers have a decimal comma. There are two
// readers. LeadingNumber knows only the decimal point and reads the start of a text. ParseNumber knows only the comma
// and reads a whole text or nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// At most 15 significant digits (a float: 7), without grouping: "0", "-2,5". The number must be finite. An absolute
// value from 1E+15 on (a float: 1E+07) or between 0 and 0,0001 is written with an exponent: "1E+15", "1,5E-05".
std::string NumberText(double number);
std::string NumberText(float number);

// The digits of `number`, with zeros before them if there are fewer than `width` digits. `number` must not be negative.
std::string ZeroPadded(std::int64_t number, std::size_t width);

// Exactly `decimals` digits (1 or more) after the comma. Halves are rounded away from zero: FixedText(1.015625, 5) is
// "1,01563". The number must be finite. With more than 14 digits, the decimals included, the last digits may be wrong.
std::string FixedText(double number, int decimals);

// The value of the longest finite number at the start of the text, after blanks. 0 if the text starts with no number.
// The decimal mark is the point: "12ab" is 12, "1,5" is 1, "1.5E3x" is 1500, "1E999" is 1E+99.
double LeadingNumber(std::string_view text);

// The value of a text that is a number, with or without blanks around. The decimal mark is the comma: "0," and ",5" are
// numbers; "2.718282", "1E+" and numbers too large for a double are not.
std::optional<double> ParseNumber(std::string_view text);

}  // namespace pelmar
