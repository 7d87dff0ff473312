#include "text/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace pelmar {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }

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
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

// The length of the number at the start of the text: sign, digits, decimal mark, digits, exponent. 0 if the text does
// not begin with a number.
std::size_t NumberLength(std::string_view text, char mark) {
  const std::size_t start = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  std::size_t end = DigitsEnd(text, start);
  std::size_t digits = end - start;
  if (end < text.size() && text[end] == mark) {
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

// For a number that no double can hold: true if the number is too close to zero, false if the number is too large. The
// decimal mark is the point.
bool IsTiny(std::string_view number) {
  const std::string_view mantissa = number.substr(0, number.find_first_of("eE"));
  std::string_view digits = number.substr(std::min(mantissa.size() + 1, number.size()));
  const bool negative = digits.starts_with('-');
  if (digits.starts_with('-') || digits.starts_with('+')) digits.remove_prefix(1);
  double exponent = 0;  // a double, since the text may have any number of digits
  for (const char digit : digits) exponent = 10 * exponent + (digit - '0');
  const auto point = static_cast<double>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<double>(mantissa.find_first_of("123456789"));
  return point - first + (negative ? -exponent : exponent) < 0;
}

// The value of a number with a decimal point. 0 for a text that is no number, nothing for a number that is too large.
std::optional<double> ValueOf(std::string_view number) {
  if (number.starts_with('+')) number.remove_prefix(1);
  double value = 0;
  const std::errc error = std::from_chars(number.data(), number.data() + number.size(), value).ec;
  if (error == std::errc::result_out_of_range) return IsTiny(number) ? std::optional(0.0) : std::nullopt;
  return value;
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
  // Rounds the decimal digits, because the binary value of a number that ends in 5 may be slightly lower.
  constexpr int kDigits = 15;
  const double size = std::abs(number);
  const int whole = size < 1 ? 1 : static_cast<int>(std::floor(std::log10(size))) + 1;
  char buffer[64];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, size, std::chars_format::fixed, std::max(kDigits - whole, 0)).ptr;
  std::string text(buffer, end);
  std::size_t mark = std::min(text.find('.'), text.size());
  if (mark < text.size()) text.erase(mark, 1);

  const auto wanted = mark + static_cast<std::size_t>(decimals);
  const bool up = wanted < text.size() && text[wanted] >= '5';
  text.resize(wanted, '0');
  for (std::size_t i = text.size(); up;) {
    if (i == 0) {
      text.insert(text.begin(), '1');
      ++mark;
      break;
    }
    if (text[--i] != '9') {
      ++text[i];
      break;
    }
    text[i] = '0';
  }
  const bool negative = number < 0 && text.find_first_not_of('0') != std::string::npos;
  text.insert(mark, 1, ',');
  return negative ? '-' + text : text;
}

double LeadingNumber(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text = text.substr(0, NumberLength(text, '.'));
  if (const auto value = ValueOf(text)) return *value;
  // The number is too large for a double. Take the longest part that fits.
  std::size_t length = 0;
  while (ValueOf(text.substr(0, length + 1))) ++length;
  return ValueOf(text.substr(0, length)).value_or(0);
}

std::optional<double> ParseNumber(std::string_view text) {
  const std::size_t start = text.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return std::nullopt;
  text = text.substr(start, text.find_last_not_of(kBlanks) + 1 - start);
  if (NumberLength(text, ',') != text.size()) return std::nullopt;
  std::string with_point(text);
  std::ranges::replace(with_point, ',', '.');
  return ValueOf(with_point);
}

}  // namespace pelmar
