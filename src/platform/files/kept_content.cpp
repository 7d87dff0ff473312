#include "platform/files/kept_content.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace pelmar {
namespace {

constexpr char kStart[] = "puvodni-";
constexpr mode_t kWritable = 0222;

// The name of a copy is "puvodni-" and six characters. "-" and the name of the saved file may follow.
bool IsNameOfKept(const std::string& name) {
  constexpr std::size_t kSize = sizeof kStart - 1 + 6;
  return name.starts_with(kStart) && (name.size() == kSize || (name.size() > kSize && name[kSize] == '-'));
}

bool IsUnreportedCopy(const std::string& path) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | kOpenSafely));
  struct stat state {};
  if (!file.IsOpen() || fstat(file.Number(), &state) != 0 || !S_ISREG(state.st_mode)) return false;
  return (state.st_mode & kWritable) != 0 && flock(file.Number(), LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

int KeptContent::Keep(int file, const std::string& path, const std::string& folder) {
  constexpr std::size_t kLongestName = 200;  // in bytes; a file name may have 255
  std::string name = "-" + path.substr(FolderOf(path).size());
  if (name.size() > kLongestName) name.clear();
  copy_.emplace(folder, 0600);
  if (copy_->Error() != 0) return copy_->Error();
  flock(Number(), LOCK_EX | LOCK_NB);
  int error = CopyWhole(file, Number());
  if (error == 0) error = Sync(Number());
  if (error == 0) error = copy_->TakeFreeName(folder + kStart, name, path_);
  if (error == 0) error = SyncFolderOf(path_, Number());
  if (error != 0) Remove();
  return error;
}

int KeptContent::PutBack(int file) {
  const int error = CopyWhole(Number(), file);
  return error == 0 ? Sync(file) : error;
}

void KeptContent::Remove() {
  if (!path_.empty()) unlink(path_.c_str());
}

std::vector<std::string> FindUnreportedCopies(const std::string& folder) {
  std::vector<std::string> found;
  std::error_code error;
  for (std::filesystem::directory_iterator at(folder, error), end; at != end; at.increment(error))
    if (IsNameOfKept(at->path().filename().string()) && IsUnreportedCopy(at->path())) found.push_back(at->path());
  std::ranges::sort(found);
  return found;
}

void MarkAsReported(const std::string& path) {
  struct stat state {};
  if (stat(path.c_str(), &state) == 0) chmod(path.c_str(), state.st_mode & 07777 & ~kWritable);
}

}  // namespace pelmar
