// Shows the hourglass while a long command works.
#pragma once

#include "platform/platform.h"

namespace pelmar {

class BusyPointer {
 public:
  explicit BusyPointer(Platform& platform) : platform_(platform) { platform_.SetBusyPointer(true); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer() { platform_.SetBusyPointer(false); }

 private:
  Platform& platform_;
};

}  // namespace pelmar
