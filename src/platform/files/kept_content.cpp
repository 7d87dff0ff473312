#include "platform/files/kept_content.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <string_view>
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
  const Descriptor file(open(path.c_str(), O_RDWR | O_NOFOLLOW | kOpenSafely));  // NFS locks only writable files
  struct stat state {};
  if (!file.IsOpen() || fstat(file.Number(), &state) != 0 || !S_ISREG(state.st_mode)) return false;
  return (state.st_mode & kWritable) != 0 && flock(file.Number(), LOCK_EX | LOCK_NB) == 0;
}

// Replaces the content of the file `to` by the whole content of the file `from`. Returns 0 or an errno.
int CopyWhole(int from, int to) {
  if (lseek(from, 0, SEEK_SET) < 0 || lseek(to, 0, SEEK_SET) < 0) return errno;
  constexpr std::size_t kPiece = std::size_t{256} << 10;  // fits in the processor's cache
  std::string piece(kPiece, '\0');
  off_t size = 0;
  while (true) {
    const ssize_t got = read(from, piece.data(), piece.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno;
    if (got == 0) return ftruncate(to, size) == 0 ? 0 : errno;
    size += got;
    if (const int error = WriteAll(to, std::string_view(piece).substr(0, static_cast<std::size_t>(got)))) return error;
  }
}

}  // namespace

int KeptContent::Keep(int file, const std::string& path, const std::string& folder) {
  constexpr std::size_t kLongestName = 200;  // in bytes; a file name may have 255
  std::string name = "-" + path.substr(FolderOf(path).size());
  if (name.size() > kLongestName) name.clear();
  copy_.emplace(folder, 0600);
  if (copy_->Error() != 0) return copy_->Error();
  flock(copy_->Number(), LOCK_EX | LOCK_NB);
  int error = CopyWhole(file, copy_->Number());
  if (error == 0) error = Sync(copy_->Number());
  if (error == 0) error = copy_->TakeFreeName(folder + kStart, name, path_);
  if (error == 0) error = SyncFolderOf(path_, copy_->Number());
  if (error != 0) Remove();
  return error;
}

int KeptContent::PutBack(int file) {
  const int error = CopyWhole(copy_->Number(), file);
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
