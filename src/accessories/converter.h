// The number converter behind `Prev`: whole numbers in decimal, hexadecimal, octal and Roman.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// Decimal text, or hexadecimal behind "&H" and octal behind "&O". Up to 4 hexadecimal or 6 octal digits are a signed
// 16-bit value, longer ones a signed 32-bit one. Nothing where the digits don't fit 32 bits.
std::optional<double> ReadNumber(std::string_view text);

// In two's complement; upper case, no leading zeros.
std::string ToHex(std::int32_t value);
std::string ToOct(std::int32_t value);

// Additive numerals with no upper bound, "0" for what isn't above 0. `go_on` is called after each letter; once it says
// false, nothing is returned.
std::optional<std::string> ToRoman(std::int32_t n, const std::function<bool()>& go_on);
std::string ToRoman(std::int32_t n);

// The fields of the window and what its keys do with them.
struct Converter {
  std::string decimal = "0";  // decimal, 9 characters
  std::string hexadecimal = "0";  // hexadecimal, 9 characters
  std::string octal = "0";  // octal, 11 characters

  // The limits hold after each of these; what is too long loses its last characters.
  void Digit(std::string Converter::*field, char digit);
  void DropLast(std::string Converter::*field);

  // Each fills the other two fields and returns the number whose Roman form is to follow. Nothing, with all fields as
  // they were, where the number doesn't fit 32 bits.
  std::optional<std::int32_t> FromDecimal();
  std::optional<std::int32_t> FromHex();
  std::optional<std::int32_t> FromOct();

 private:
  void Cut();
};

}  // namespace pelmar
