#include "platform/files/folder.h"

#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "platform/files/descriptor.h"

namespace pelmar {

int MakeFolder(const std::string& path) {
  constexpr mode_t kOwnerAlone = 0700;
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored)) return 0;
  const std::string above = std::filesystem::path(path).parent_path().native();
  if (!above.empty())
    if (const int error = MakeFolder(above)) return error;
  if (mkdir(path.c_str(), kOwnerAlone) != 0) {
    const int error = errno;
    return std::filesystem::is_directory(path, ignored) ? 0 : error;  // another process may have made the folder
  }
  const Descriptor made(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (made.IsOpen()) SyncFolderOf(path, made.Number());
  return 0;
}

}  // namespace pelmar
