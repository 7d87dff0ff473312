// Whether the program runs under Wayland, and what only the X server knows. Without an X server the functions about
// keys and the clipboard return a default.
#pragma once

namespace pelmar {

bool IsWayland();

struct LockKeys {
  bool caps = false;
  bool num = false;
};

// Whether Caps Lock and Num Lock are on. By default both are off.
LockKeys ReadLockKeys();

// Whether the clipboard has an owner, by default true. Doesn't ask Qt, since Qt would load plug-ins for the answer.
bool ClipboardHasOwner();

}  // namespace pelmar
