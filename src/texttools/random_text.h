// Filler text of made-up words, and the shuffling of words. The order of the draws is fixed. Texts are Windows-1250.
#pragma once

#include <string>
#include <string_view>

#include "platform/random.h"

namespace pelmar {

// A sentence of 10 to 50 letters with its stop and a blank behind it.
std::string RandomSentence(const Draw& draw);

// 2 to 10 small letters and a blank.
std::string RandomWord(const Draw& draw);

// Two words of 2 to 10 letters, the first one a capital, each with a blank behind it.
std::string RandomName(const Draw& draw);

// The words in random order, each with the blank behind it. required: the last word of the text has none, and runs
// together with what comes to stand behind it. An empty text stays empty.
std::string ShuffledWords(std::string_view text, const Draw& draw);

}  // namespace pelmar
