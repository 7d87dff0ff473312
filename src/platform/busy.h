// Shows the hourglass, alone or beside the arrow, while a long command works.
#pragma once

#include "platform/platform.h"

namespace pelmar {

class BusyPointer {
 public:
  explicit BusyPointer(Platform& platform, BusyLook look = BusyLook::kHourglass) : platform_(platform), look_(look) {
    platform_.SetBusyPointer(true, look_);
  }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer() { platform_.SetBusyPointer(false, look_); }

 private:
  Platform& platform_;
  BusyLook look_;
};

}  // namespace pelmar
