// Filler text of random words, and words in random order. The order of the draws is fixed. Texts are Windows-1250.
#pragma once

#include <string>
#include <string_view>

#include "platform/random.h"

namespace pelmar {

// A sentence of 10 to 50 letters, with a punctuation mark and a blank at its end.
std::string RandomSentence(const Draw& draw);

// A word of 2 to 10 small letters, with a blank at its end.
std::string RandomWord(const Draw& draw);

// Two words of 2 to 10 letters that begin with a capital, each with a blank at its end.
std::string RandomName(const Draw& draw);

// The words in random order, each with the blank at its end. required: the last word of the text has no blank and runs
// into the word that follows in the result.
std::string ShuffledWords(std::string_view text, const Draw& draw);

}  // namespace pelmar
