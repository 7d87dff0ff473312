// Compares the current document's file with its state when this program opened or saved it. The status bar reports if
// another program, or another tab, wrote or removed the file since. Nothing is reloaded.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "shell/documents.h"

namespace pelmar {

// The notice for the status bar, UTF-8. "" if nothing happened to the file, or if this program neither opened nor saved
// the file.
std::string_view OutsideNotice(const Documents& documents, Platform& platform);

// True if the current document was UTF-8 when this program opened its file, or at a save since then.
bool CurrentWasUtf8(const Documents& documents);

}  // namespace pelmar
