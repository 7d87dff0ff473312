#include "accessories/converter.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "accessories/calculator.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

constexpr std::size_t kLongestDecimal = 9;
constexpr std::size_t kLongestHex = 9;
constexpr std::size_t kLongestOct = 11;

struct Numeral {
  std::int32_t value;
  char letter;
};
constexpr Numeral kNumerals[] = {{1000, 'M'}, {500, 'D'}, {100, 'C'}, {50, 'L'}, {10, 'X'}, {5, 'V'}, {1, 'I'}};

std::optional<double> ReadPrefixed(std::string_view digits, int base, std::size_t short_length) {
  std::uint32_t value = 0;  // stays 0 if there is no digit
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  if (error == std::errc::result_out_of_range) return std::nullopt;
  const auto length = static_cast<std::size_t>(end - digits.data());
  if (length <= short_length && value <= std::numeric_limits<std::uint16_t>::max())
    return static_cast<std::int16_t>(value);
  return static_cast<std::int32_t>(value);
}

// The nearest whole number. Nothing if the number doesn't fit 32 bits.
std::optional<std::int32_t> Whole(std::optional<double> value) {
  using Limits = std::numeric_limits<std::int32_t>;
  const double whole = std::nearbyint(value.value_or(std::nan("")));
  if (!(whole >= Limits::min() && whole <= Limits::max())) return std::nullopt;
  return static_cast<std::int32_t>(whole);
}

std::string InBase(std::int32_t value, int base) {
  char digits[16];
  const char* const end =
      std::to_chars(std::begin(digits), std::end(digits), static_cast<std::uint32_t>(value), base).ptr;
  return {static_cast<const char*>(digits), end};
}

}  // namespace

std::optional<double> ReadNumber(std::string_view text) {
  if (text.starts_with("&H")) return ReadPrefixed(text.substr(2), 16, 4);
  if (text.starts_with("&O")) return ReadPrefixed(text.substr(2), 8, 6);
  return LeadingNumber(text);
}

std::string ToHex(std::int32_t value) {
  std::string digits = InBase(value, 16);
  for (char& digit : digits)
    if (digit >= 'a') digit = static_cast<char>(digit - 'a' + 'A');
  return digits;
}

std::string ToOct(std::int32_t value) { return InBase(value, 8); }

std::optional<std::string> ToRoman(std::int32_t n, const std::function<bool()>& go_on) {
  if (n <= 0) return "0";
  std::string roman;
  for (const Numeral& numeral : kNumerals) {
    for (; n >= numeral.value; n -= numeral.value) {
      roman += numeral.letter;
      if (!go_on()) return std::nullopt;
    }
  }
  return roman;
}

void Converter::Cut() {
  decimal = decimal.substr(0, kLongestDecimal);
  hexadecimal = hexadecimal.substr(0, kLongestHex);
  octal = octal.substr(0, kLongestOct);
}

void Converter::Digit(std::string Converter::*field, char digit) {
  AppendDigit(this->*field, digit);
  Cut();
}

void Converter::DropLast(std::string Converter::*field) { DropLastDigit(this->*field); }

std::optional<std::int32_t> Converter::FromDecimal() {
  const std::optional<std::int32_t> value = Whole(ReadNumber(decimal));
  if (!value) return std::nullopt;
  hexadecimal = ToHex(*value);
  octal = ToOct(*value);
  Cut();
  return value;
}

std::optional<std::int32_t> Converter::FromHex() {
  const std::optional<std::int32_t> value = Whole(ReadNumber("&H" + hexadecimal));
  if (!value) return std::nullopt;
  decimal = std::to_string(*value);
  octal = ToOct(*value);
  Cut();
  // required: the Roman form uses the decimal field, of which Cut keeps at most 9 characters
  return Whole(LeadingNumber(decimal));
}

std::optional<std::int32_t> Converter::FromOct() {
  const std::optional<std::int32_t> value = Whole(ReadNumber("&O" + octal));
  if (!value) return std::nullopt;
  decimal = std::to_string(*value);
  hexadecimal = ToHex(*value);
  Cut();
  return Whole(LeadingNumber(decimal));
}

}  // namespace pelmar
