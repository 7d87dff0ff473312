// A file that nobody reads: the lock on it tells other copies of the program that its holder lives. The system drops
// the lock of a process that dies.
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

  // Makes the file where it is missing. 0 or errno: EAGAIN where another copy holds it.
  int Take(const std::string& path);
  [[nodiscard]] bool IsHeld() const { return file_.IsOpen(); }
  // Removes the file. Does nothing where the lock isn't held.
  void Release();

 private:
  std::string path_;
  Descriptor file_;
};

}  // namespace pelmar
