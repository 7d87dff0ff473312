// An empty file that one process locks. The lock shows other processes that this process is running. The kernel
// releases the lock when the process ends.
#pragma once

#include <string>

#include "platform/files/descriptor.h"

namespace pelmar {

class LockFile {
 public:
  LockFile() = default;
  LockFile(const LockFile&) = delete;
  LockFile& operator=(const LockFile&) = delete;
  ~LockFile() { Release(); }

  // Locks the file and creates the file if missing. Returns 0 or an errno: EAGAIN if another process holds the lock or
  // has just released the lock.
  int Take(const std::string& path);
  [[nodiscard]] bool IsHeld() const { return file_.IsOpen(); }
  // Removes the file and releases the lock. Does nothing if the lock is not held.
  void Release();

 private:
  std::string path_;
  Descriptor file_;
};

}  // namespace pelmar
