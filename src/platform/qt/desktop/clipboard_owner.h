// Asks the X server whether the clipboard has an owner. True if there is no X server. Asking Qt would load plug-ins.
#pragma once

namespace pelmar {

bool ClipboardHasOwner();

}  // namespace pelmar
