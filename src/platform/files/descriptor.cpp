#include "platform/files/descriptor.h"

#include <sys/stat.h>

#include <string>

namespace pelmar {

int WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

int Sync(int file) { return fsync(file) != 0 && errno != EINVAL && errno != ENOTSUP ? errno : 0; }

int SyncFolderOf(const std::string& path, int file) {
  const std::string name = FolderOf(path);
  const Descriptor folder(open(name.empty() ? "." : name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.IsOpen()) return Sync(folder.Number());
  return syncfs(file) == 0 ? 0 : errno;
}

bool IsStillNamed(int file, const std::string& path) {
  struct stat opened {};
  struct stat named {};
  return fstat(file, &opened) == 0 && stat(path.c_str(), &named) == 0 && opened.st_ino == named.st_ino &&
         opened.st_dev == named.st_dev;
}

}  // namespace pelmar
