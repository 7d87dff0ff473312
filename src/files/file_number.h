// The program-wide file number 1. Every file operation runs on it, one at a time; an operation that an error abandons
// half-way leaves it open, and then every later one fails until the next start.
#pragma once

#include <cerrno>

#include "shell/common.h"

namespace pelmar {

class FileNumber {
 public:
  [[nodiscard]] bool IsOpen() const { return open_; }

  // Throws RuntimeError (EBUSY) when it is open already.
  void Open() {
    if (open_) throw RuntimeError(EBUSY, "Soubor číslo 1 je již otevřen");
    open_ = true;
  }
  void Close() { open_ = false; }

 private:
  bool open_ = false;
};

}  // namespace pelmar
