#include "ciphers/shift.h"

#include <algorithm>

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
  std::string result(text);
  for (char& ch : result)
    if (LetterNumber(ch) != 0) ch = ShiftedLetter(ch, shift);
  return result;
}

std::string Rotated(std::string_view text, std::size_t count) {
  std::string result(text);
  const auto front = static_cast<std::ptrdiff_t>(std::min(count, result.size()));
  std::rotate(result.begin(), result.begin() + front, result.end());
  return result;
}

}  // namespace pelmar
