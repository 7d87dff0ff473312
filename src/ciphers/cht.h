// The common hacker transcription: letters become characters that look like them. There is no way back.
#pragma once

#include <string>
#include <string_view>

#include "platform/random.h"

namespace pelmar {

// The table of look-alikes as the dialog shows it, each under its letter, in five rows.
std::string LookAlikeReminder();

// Each of A to Z and a to z becomes one of its look-alikes, its own two cases among them; all else stays. One draw for
// each character of the text.
std::string HackerTranscription(std::string_view text, const Draw& draw);

}  // namespace pelmar
