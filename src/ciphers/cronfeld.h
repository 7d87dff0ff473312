// The Cronfeld system: letters move by the digits of a password, which repeat along the text. Each character uses up a
// digit, changed or not, so both ways are exact inverses.
#pragma once

#include <string>
#include <string_view>

#include "platform/random.h"

namespace pelmar {

// A character of the password that is no digit counts as 0; an empty password changes nothing.
std::string CronfeldEncipher(std::string_view text, std::string_view password);
std::string CronfeldDecipher(std::string_view text, std::string_view password);

// What the password field shows once somebody has put `typed` into it: the whole number at or below what it reads as.
std::string PasswordText(std::string_view typed);

// 15 digits, the first of them not 0, which would not stay in the field. Takes 15 draws.
std::string RandomPassword(const Draw& draw);

}  // namespace pelmar
