// What only the X server knows. Without an X server, for instance under Wayland, each function returns a default.
#pragma once

namespace pelmar {

struct LockKeys {
  bool caps = false;
  bool num = false;
};

// Whether Caps Lock and Num Lock are on. By default both are off.
LockKeys ReadLockKeys();

// Whether the clipboard has an owner, by default true. Doesn't ask Qt, since Qt would load plug-ins for the answer.
bool ClipboardHasOwner();

}  // namespace pelmar
