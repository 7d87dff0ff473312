// Whether the clipboard has an owner. Asks the X server, since Qt's own answer first loads image plug-ins. True without
// an X server.
#pragma once

namespace pelmar {

bool ClipboardHasOwner();

}  // namespace pelmar
