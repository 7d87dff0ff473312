// The RND cipher: each symbol of the text becomes the code that the table gives it, each digit of the code a random
// letter of the digit's set. Works with any table, also with a damaged one, as far as that allows.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "ciphers/cipher_table.h"
#include "platform/random.h"

namespace pelmar {

// Hears now and then how many characters of the text are done.
using Progress = std::function<void(std::size_t done)>;

// What the cipher can take of a text: upper case without diacritics, and of that only A to Z, blanks and the codes 13
// and 10.
std::string PrepareText(std::string_view text);

// `depth` letters for each character, one draw each. required: a character that is no symbol repeats the one before it,
// and at the start counts as a code of ones. A set without letters yields none.
std::string RndEncipher(std::string_view text, const CipherTable& table, const Draw& draw, const Progress& progress);

// A character for each `depth` letters. Letters outside the set of zeros count as ones. required: the last symbol whose
// code holds the digits wins; digits that no code holds repeat the character before them, or give none at the start;
// digits that are left over at the end match anywhere in a code. "" with a depth of 0.
std::string RndDecipher(std::string_view text, const CipherTable& table, const Progress& progress);

}  // namespace pelmar
