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

// Called with the number of characters read from the input: at the start, after every 1,024 characters (or, in
// RndDecipher, groups of `depth` letters) and at the end. Must not be empty.
using Progress = std::function<void(std::size_t done)>;

// The text in upper case and without diacritics. Characters that are no symbols are dropped.
std::string PrepareText(std::string_view text);

// Takes `depth` draws for each character. Each draw writes a letter, or nothing if the set of the digit is empty.
// required: a character that is no symbol gets the code of the last symbol before it. Before the first symbol, it gets
// a code of ones.
std::string RndEncipher(std::string_view text, const CipherTable& table, const Draw& draw, const Progress& progress);

// Reads a character from each `depth` letters. A letter outside the set of zeros is a 1. required: the character is the
// last symbol of the table whose code contains the digits at any place, so an incomplete group at the end of the text
// also gives a character. If no code contains the digits, the previous character, if there is one, is repeated.
std::string RndDecipher(std::string_view text, const CipherTable& table, const Progress& progress);

}  // namespace pelmar
