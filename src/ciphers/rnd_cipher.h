// The RND cipher. The table gives the code of each symbol. For each digit of the code, the cipher writes a random
// letter from the set for this digit. A damaged table works as far as possible.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "ciphers/cipher_table.h"
#include "platform/random.h"

namespace pelmar {

// Called with the number of processed characters, every 1,024 symbols and at the end. Must not be empty.
using Progress = std::function<void(std::size_t done)>;

// The text in upper case and without diacritics. Characters that are no symbols are dropped.
std::string PrepareText(std::string_view text);

// Takes `depth` draws for each character. Each draw writes a letter, or nothing if the set of the digit is empty.
// required: a character that is no symbol gets the code of the last symbol before it, or a code of ones at the start.
std::string RndEncipher(std::string_view text, const CipherTable& table, const Draw& draw, const Progress& progress);

// Reads a character from each `depth` letters. A letter outside the set of zeros is a 1. required: the character is the
// last symbol whose code contains the digits, so too few digits at the end match any part of a code; if no code
// contains the digits, the previous character is repeated.
std::string RndDecipher(std::string_view text, const CipherTable& table, const Progress& progress);

}  // namespace pelmar
