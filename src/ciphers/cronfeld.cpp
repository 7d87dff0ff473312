#include "ciphers/cronfeld.h"

#include <cmath>

#include "ciphers/shift.h"
#include "text/codepage.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

int DigitValue(char ch) { return ch >= '0' && ch <= '9' ? ch - '0' : 0; }

std::string MoveLetters(std::string_view text, std::string_view password, int (*shift_of)(int digit)) {
  std::string result(text);
  std::size_t at = 0;
  for (char& ch : result) {
    if (at >= password.size()) at = 0;
    const int digit = password.empty() ? 0 : DigitValue(password[at++]);
    if (LetterNumber(ch) != 0) ch = ShiftedLetter(ch, shift_of(digit));
  }
  return result;
}

}  // namespace

std::string CronfeldEncipher(std::string_view text, std::string_view password) {
  return MoveLetters(text, password, [](int digit) { return digit; });
}

std::string CronfeldDecipher(std::string_view text, std::string_view password) {
  return MoveLetters(text, password, [](int digit) { return kLetters - digit; });
}

std::string PasswordText(std::string_view typed) {
  std::string text(typed);
  for (std::string next; (next = NumberText(std::floor(LeadingNumber(text)))) != text;) text = std::move(next);
  return text;
}

std::string RandomPassword(const Draw& draw) {
  constexpr int kDigits = 15;
  std::string password(1, CharOf('1' + static_cast<int>(DrawBelow(draw, 9))));
  while (password.size() < kDigits) password += CharOf('0' + static_cast<int>(DrawBelow(draw, 10)));
  return password;
}

}  // namespace pelmar
