#include "platform/files/lock_file.h"

#include <sys/file.h>
#include <sys/stat.h>

#include <utility>

namespace pelmar {

int LockFile::Take(const std::string& path) {
  Descriptor file(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
  if (!file.IsOpen() || flock(file.Number(), LOCK_EX | LOCK_NB) != 0) return errno;
  if (!IsStillNamed(file.Number(), path)) return EAGAIN;
  file_ = std::move(file);
  path_ = path;
  return 0;
}

void LockFile::Release() {
  if (!IsHeld()) return;
  unlink(path_.c_str());
  file_ = Descriptor();
}

}  // namespace pelmar
