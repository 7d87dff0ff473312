#include "text/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace pelmar {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

template <typename Number>
std::string GeneralText(Number number, int digits) {
  if (number == 0) return "0";  // without the sign of a negative zero
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, digits).ptr;
  std::replace(buffer, end, '.', ',');
  std::replace(buffer, end, 'e', 'E');
  return {buffer, end};
}

std::size_t DigitsEnd(std::string_view text, std::size_t at) {
  return std::min(text.find_first_not_of("0123456789", at), text.size());
}

// The length of the number at the start of the text, 0 if the text does not begin with a number. A number has an
// optional sign, one or more digits with an optional decimal mark, and an optional exponent.
std::size_t NumberLength(std::string_view text, char mark) {
  const std::size_t start = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  std::size_t end = DigitsEnd(text, start);
  std::size_t digits = end - start;
  if (text.substr(end).starts_with(mark)) {
    const std::size_t decimals_end = DigitsEnd(text, end + 1);
    digits += decimals_end - end - 1;
    end = decimals_end;
  }
  if (digits == 0) return 0;
  if (end < text.size() && (text[end] == 'E' || text[end] == 'e')) {
    std::size_t exponent = end + 1;
    if (exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+')) ++exponent;
    const std::size_t exponent_end = DigitsEnd(text, exponent);
    if (exponent_end > exponent) end = exponent_end;
  }
  return end;
}

// The value of the number at the start of the text. The decimal mark is the point. 0 if the text starts with no number.
// A number that no double can hold is 0 if its exponent is negative, otherwise nothing.
std::optional<double> LeadingValue(std::string_view number) {
  if (number.starts_with('+')) number.remove_prefix(1);
  double value = 0;
  const std::errc error = std::from_chars(number.data(), number.data() + number.size(), value).ec;
  if (error != std::errc::result_out_of_range) return value;
  const bool negative_exponent = number.find('-', 1) != std::string_view::npos;
  return negative_exponent ? std::optional(0.0) : std::nullopt;
}

}  // namespace

std::string NumberText(double number) { return GeneralText(number, 15); }
std::string NumberText(float number) { return GeneralText(number, 7); }

std::string ZeroPadded(std::int64_t number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

std::string FixedText(double number, int decimals) {
  // The binary value of a number that ends in 5 may be slightly lower, so the number is made a little larger.
  const double scale = std::pow(10, decimals);
  double rounded = std::round(number * scale * (1 + 1e-15)) / scale;
  if (rounded == 0) rounded = 0;  // without the sign of a negative zero
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, rounded, std::chars_format::fixed, decimals).ptr;
  std::replace(buffer, end, '.', ',');
  return {buffer, end};
}

double LeadingNumber(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text = text.substr(0, NumberLength(text, '.'));
  if (const auto value = LeadingValue(text)) return *value;
  // No double can hold the number. Take the longest part at its start that fits.
  std::size_t length = 0;
  while (LeadingValue(text.substr(0, length + 1))) ++length;
  return LeadingValue(text.substr(0, length)).value_or(0);
}

std::optional<double> ParseNumber(std::string_view text) {
  const std::size_t start = text.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return std::nullopt;
  text = text.substr(start, text.find_last_not_of(kBlanks) + 1 - start);
  if (NumberLength(text, ',') != text.size()) return std::nullopt;
  std::string with_point(text);
  std::ranges::replace(with_point, ',', '.');
  return LeadingValue(with_point);
}

}  // namespace pelmar
