// Whether the clipboard has an owner; true without an X server. Qt's own answer would load image plug-ins.
#pragma once

namespace pelmar {

bool ClipboardHasOwner();

}  // namespace pelmar
