// Numbers as the program writes and reads them: the decimal mark of what it writes is the comma, whatever the system's
// locale. There are two ways of reading, and a field uses the one that it was told: `LeadingNumber` knows the point
// alone and takes what it can, `ParseNumber` knows the comma alone and takes all or nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// The shortest form of at most 15 (a float: 7) significant digits, no grouping: "0", "-2,5", "3,14159265358979",
// "1E+15", "1,5E-05". The exponent form begins at 15 (7) digits before the mark and below 0,0001. The number is finite.
std::string NumberText(double number);
std::string NumberText(float number);

// A whole number of at least `width` digits, with zeros in front.
std::string ZeroPadded(std::int64_t number, std::size_t width);

// With exactly `decimals` digits (1 or more) behind the mark, halves away from zero: FixedText(1.015625, 5) is
// "1,01563". Only the first 15 significant digits count. The number is finite and below 1E+15.
std::string FixedText(double number, int decimals);

// The value of the longest leading part that reads as a finite number, blanks before it skipped; 0 where there is none.
// The decimal mark is the point: "12ab" is 12, "1,5" is 1, "1.5E3x" is 1500, "abc" and "" are 0.
double LeadingNumber(std::string_view text);

// The value of a text that is a number as a whole, blanks around it apart. The decimal mark is the comma: "0," and
// ",5" read, "2.718282", "-", "1E+" and "" don't, and neither does what is too large for a double.
std::optional<double> ParseNumber(std::string_view text);

}  // namespace pelmar
