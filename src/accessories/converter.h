// The number converter in the window Prev: whole numbers in decimal, hexadecimal, octal and Roman form.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// Reads a decimal number, a hexadecimal number after "&H" or an octal number after "&O". Up to 4 hexadecimal or 6 octal
// digits whose value fits 16 bits are a signed 16-bit number. Other hexadecimal or octal digits are a signed 32-bit
// number. Nothing if their value doesn't fit 32 bits.
std::optional<double> ReadNumber(std::string_view text);

// In two's complement, upper case, without leading zeros.
std::string ToHex(std::int32_t value);
std::string ToOct(std::int32_t value);

// A Roman numeral without subtraction: 4 is IIII. "0" for numbers below 1. Calls `go_on` after each letter, and returns
// nothing once `go_on` returns false.
std::optional<std::string> ToRoman(std::int32_t n, const std::function<bool()>& go_on);

// The fields of the window and the effect of its keys. Digit and the From functions truncate a field that is too long.
struct Converter {
  std::string decimal = "0";      // at most 9 characters
  std::string hexadecimal = "0";  // at most 9 characters
  std::string octal = "0";        // at most 11 characters

  void Digit(std::string Converter::*field, char digit);
  void DropLast(std::string Converter::*field);

  // Each fills the other two fields and returns the number for the Roman form. If the number doesn't fit 32 bits, each
  // returns nothing and changes no field.
  std::optional<std::int32_t> FromDecimal();
  std::optional<std::int32_t> FromHex();
  std::optional<std::int32_t> FromOct();

 private:
  void Cut();
};

}  // namespace pelmar
