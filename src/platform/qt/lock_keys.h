// The states of Caps Lock and Num Lock.
#pragma once

namespace pelmar {

struct LockKeys {
  bool caps = false;
  bool num = false;
};

// From the X server, one round trip; both false where there is none.
LockKeys ReadLockKeys();

}  // namespace pelmar
