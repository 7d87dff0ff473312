// The RND cipher. The table gives the code of each symbol. For each digit of the code, the cipher writes a random
// letter from the set for this digit.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "ciphers/cipher_table.h"
#include "platform/random.h"

namespace pelmar {

// Called with the number of characters read so far: at the start, at the end and after every 1,024 characters. In
// RndDecipher 1,024 groups of `depth` letters take the place of 1,024 characters. Must not be empty. Not called if
// RndDecipher gets a table of depth 0.
using Progress = std::function<void(std::size_t done)>;

// The text in upper case and without Czech diacritics. Characters that are no symbols are dropped.
std::string PrepareText(std::string_view text);

// Takes `depth` draws for each character. Each draw writes a letter, or nothing if the set of the digit is empty.
// required: a character that is no symbol gets the code of the previous symbol. If there is no previous symbol, the
// character gets a code of ones.
std::string RndEncipher(std::string_view text, const CipherTable& table, const Draw& draw, const Progress& progress);

// Each group of `depth` letters gives a character. The last group may be shorter. A letter outside the set of zeros is
// a 1. required: the character is the last symbol of the table whose code contains the digits of the group. If there is
// no such symbol, the previous character, if there is one, is repeated. Depth 0 gives "".
std::string RndDecipher(std::string_view text, const CipherTable& table, const Progress& progress);

}  // namespace pelmar
