// The Cronfeld system moves letters by the digits of a password. Each character of the text takes the next digit, and
// after the last digit the first one again. Other characters than letters stay.
#pragma once

#include <string>
#include <string_view>

#include "platform/random.h"

namespace pelmar {

// Password characters other than digits count as 0. An empty password changes nothing.
std::string CronfeldEncipher(std::string_view text, std::string_view password);
std::string CronfeldDecipher(std::string_view text, std::string_view password);

// What the password field makes of a typed text: the whole number at or below its value.
std::string PasswordText(std::string_view typed);

// 15 digits. The first digit is not 0, since the field would drop a 0. Takes 15 draws.
std::string RandomPassword(const Draw& draw);

}  // namespace pelmar
