// The RND cipher. Each symbol of the text becomes its code from the table, and each digit of the code a random letter
// of the set for this digit. A damaged table works as far as possible.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "ciphers/cipher_table.h"
#include "platform/random.h"

namespace pelmar {

// Called now and then with the number of characters that are done.
using Progress = std::function<void(std::size_t done)>;

// The text as the cipher can take it: A to Z without diacritics, blanks, and the codes 13 and 10. All else is dropped.
std::string PrepareText(std::string_view text);

// Writes `depth` letters for each character, with one draw each. required: a character that is no symbol repeats the
// code of the character before; at the start its code is all ones. An empty set writes no letter.
std::string RndEncipher(std::string_view text, const CipherTable& table, const Draw& draw, const Progress& progress);

// Reads a character from each `depth` letters. Letters outside the set of zeros are ones. required: the last symbol
// whose code holds the digits wins; unknown digits repeat the character before; left over digits may lie anywhere in a
// code.
std::string RndDecipher(std::string_view text, const CipherTable& table, const Progress& progress);

}  // namespace pelmar
