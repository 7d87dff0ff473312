// An accessory that runs as the whole program, and its end.
#pragma once

#include <string_view>

#include "platform/platform.h"

namespace pelmar {

// The editor, or one such accessory.
enum class StartMode { kEditor, kCalculator, kNotes, kBrowser };

// Asks whether `accessory` (in the accusative, as in "Poznámky") is to end. On true the caller ends the process at
// once: neither the settings nor the recovery files are written in these modes.
bool MayEndStandAlone(Platform& platform, std::string_view accessory);

}  // namespace pelmar
