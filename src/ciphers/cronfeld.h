// The Cronfeld system moves letters in the alphabet by the digits of a password. Each character of the text uses the
// next digit. The first digit follows the last. Only the letters A to Z and a to z change.
#pragma once

#include <string>
#include <string_view>

#include "platform/random.h"

namespace pelmar {

// Password characters other than digits count as 0. An empty password changes nothing.
std::string CronfeldEncipher(std::string_view text, std::string_view password);
std::string CronfeldDecipher(std::string_view text, std::string_view password);

// The text that the password field shows after a typed text: the number at the start is read, rounded down and written
// until the text stays the same.
std::string PasswordText(std::string_view typed);

// 15 digits. The first digit is not 0, since the field would drop a 0 at the start. Takes 15 draws.
std::string RandomPassword(const Draw& draw);

}  // namespace pelmar
