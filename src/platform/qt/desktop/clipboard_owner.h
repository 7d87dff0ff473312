// Whether anybody offers anything on the clipboard: one question to the X server, where the toolkit's own answer loads
// its picture plug-ins first. Elsewhere it is taken for granted.
#pragma once

namespace pelmar {

bool ClipboardHasOwner();

}  // namespace pelmar
