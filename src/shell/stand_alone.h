// The modes in which one accessory runs as the whole program, without the editor.
#pragma once

#include <string_view>

#include "platform/platform.h"

namespace pelmar {

// The editor, or the accessory that runs alone.
enum class StartMode { kEditor, kCalculator, kNotes, kBrowser };

// Asks whether to close `accessory` (its Czech name in the accusative, for example "Kalkulačku"). If true, the caller
// ends the program and stores neither the settings nor the documents.
bool MayEndStandAlone(Platform& platform, std::string_view accessory);

}  // namespace pelmar
