// Replaces letters by characters that look like them. The text can't be restored.
#pragma once

#include <string>
#include <string_view>

#include "platform/random.h"

namespace pelmar {

// The table that the dialog shows: the letters in both cases, and below each letter its other look-alikes. required:
// the look-alike "~" of W is missing.
std::string LookAlikeReminder();

// Replaces each letter from A to Z and a to z by a look-alike. The look-alikes of a letter include its upper and its
// lower case. Other characters stay. Takes one draw for each character.
std::string HackerTranscription(std::string_view text, const Draw& draw);

}  // namespace pelmar
