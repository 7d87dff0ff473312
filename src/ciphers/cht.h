// Replaces letters by characters that look like them. The text can't be restored.
#pragma once

#include <string>
#include <string_view>

#include "platform/random.h"

namespace pelmar {

// The table that the dialog shows: a row of letters, and below each letter its look-alikes.
std::string LookAlikeReminder();

// Replaces each letter from A to Z and a to z by one of its look-alikes; both cases of the letter are look-alikes too.
// Other characters stay. Takes one draw for each character.
std::string HackerTranscription(std::string_view text, const Draw& draw);

}  // namespace pelmar
