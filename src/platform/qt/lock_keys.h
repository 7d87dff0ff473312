// The states of Caps Lock and Num Lock.
#pragma once

namespace pelmar {

struct LockKeys {
  bool caps = false;
  bool num = false;
};

// Asks the X server. Both are false if there is no X server.
LockKeys ReadLockKeys();

}  // namespace pelmar
