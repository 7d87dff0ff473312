#include "ciphers/shift.h"

#include <algorithm>
#include <array>

#include "text/codepage.h"

namespace pelmar {

bool IsUpperChar(std::string_view ch) { return ch.empty() || ToUpper(ch.front()) == ch.front(); }

int LetterNumber(char ch) {
  const char upper = ToUpper(ch);
  return upper < 'A' || upper > 'Z' ? 0 : upper - 'A' + 1;
}

char ShiftedLetter(char letter, int shift) {
  int number = LetterNumber(letter) + shift;
  if (number > kLetters) number -= kLetters;
  const char shifted = CharOf(number + 'A' - 1);
  return IsUpperChar({&letter, 1}) ? ToUpper(shifted) : ToLower(shifted);
}

std::string Shiftp(std::string_view text, std::int16_t shift) {
  std::array<char, 256> shifted{};
  for (int code = 0; code < 256; ++code) {
    const char ch = CharOf(code);
    shifted[static_cast<std::size_t>(code)] = LetterNumber(ch) == 0 ? ch : ShiftedLetter(ch, shift);
  }
  std::string result(text);
  for (char& ch : result) ch = shifted[static_cast<std::size_t>(CodeOf(ch))];
  return result;
}

std::string Rotated(std::string_view text, std::size_t count) {
  std::string result(text);
  const auto front = static_cast<std::ptrdiff_t>(std::min(count, result.size()));
  std::rotate(result.begin(), result.begin() + front, result.end());
  return result;
}

}  // namespace pelmar
