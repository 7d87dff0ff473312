// Filler text of random letters, and the words of a text in random order. The functions draw numbers in a fixed order,
// so the same numbers always give the same text. Texts are Windows-1250.
#pragma once

#include <string>
#include <string_view>

#include "platform/random.h"

namespace pelmar {

// A sentence of 10 to 50 letters, with a punctuation mark and a blank at its end.
std::string RandomSentence(const Draw& draw);

// A word of 2 to 10 small letters, with a blank at its end.
std::string RandomWord(const Draw& draw);

// Two words, each with 2 to 10 letters and a blank at its end. The first letter of each word is a capital.
std::string RandomName(const Draw& draw);

// The words in random order, each with the blank at its end. required: if `text` doesn't end in a blank, the last word
// of `text` runs into the word that follows in the result.
std::string ShuffledWords(std::string_view text, const Draw& draw);

}  // namespace pelmar
