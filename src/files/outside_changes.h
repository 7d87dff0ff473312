// Compares the file of the current document with its state when the document was opened or last saved. A notice in the
// status bar tells the person if the file was written or removed since, by another program or from another tab. The
// document doesn't change.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "shell/documents.h"

namespace pelmar {

// The notice for the status bar, UTF-8. "" if the file is unchanged, or if the document was neither opened nor saved.
std::string_view OutsideNotice(const Documents& documents, Platform& platform);

// True if LooksLikeUtf8 was true for the text of the current document when it was opened, or at a save since.
bool CurrentWasUtf8(const Documents& documents);

}  // namespace pelmar
