#include "platform/qt/disk_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <new>
#include <stdexcept>
#include <utility>

namespace pelmar {
namespace {

// An open file. Closing it in the destructor leaves errno alone.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    const int error = errno;
    if (IsOpen()) close(number_);
    errno = error;
  }
  [[nodiscard]] bool IsOpen() const { return number_ >= 0; }
  [[nodiscard]] int Number() const { return number_; }
  // 0 or errno: a file on a server may report a lost write only here.
  int Close() { return close(std::exchange(number_, -1)) == 0 ? 0 : errno; }

 private:
  int number_;
};

// Without O_NONBLOCK the open of a pipe waits for its other end.
constexpr int kOpenSafely = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

int OpenRegular(const std::string& path, int& error) {
  const int file = open(path.c_str(), O_RDONLY | kOpenSafely);
  if (file < 0) {
    error = errno;
    return -1;
  }
  struct stat state {};
  if (fstat(file, &state) != 0) {
    error = errno;
  } else if (!S_ISREG(state.st_mode)) {
    error = S_ISDIR(state.st_mode) ? EISDIR : EINVAL;
  } else {
    return file;
  }
  close(file);
  return -1;
}

int WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

int ReadAll(int file, std::uint64_t limit, std::string& bytes) {
  constexpr std::size_t kStep = 1 << 16;
  while (bytes.size() < limit) {
    const std::size_t had = bytes.size();
    bytes.resize(had + static_cast<std::size_t>(std::min<std::uint64_t>(kStep, limit - had)));
    const ssize_t got = read(file, bytes.data() + had, bytes.size() - had);
    const int error = errno;
    bytes.resize(had + (got > 0 ? static_cast<std::size_t>(got) : 0));
    if (got == 0) return 0;
    if (got < 0 && error != EINTR) return error;
  }
  return 0;
}

// Where the path leads once its links are followed; the last one may lead to nothing yet.
int FollowLinks(std::string& path) {
  constexpr int kMostLinks = 40;
  for (int links = 0; links < kMostLinks; ++links) {
    std::string target(PATH_MAX, '\0');
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length < 0) return errno == EINVAL || errno == ENOENT ? 0 : errno;
    target.resize(static_cast<std::size_t>(length));
    path = target.starts_with('/') ? target : path.substr(0, path.rfind('/') + 1) + target;
  }
  return ELOOP;
}

// Read from the system's account of the process: umask() itself only tells by setting, and files are written by more
// than one thread.
mode_t Umask() {
  constexpr mode_t kUsual = 022;
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    unsigned mask = 0;
    if (word == "Umask:") return status >> std::oct >> mask ? static_cast<mode_t>(mask) : kUsual;
  }
  return kUsual;
}

// The refusals that come from the folder, not from the disk or the content.
bool FolderRefuses(int error) { return error == EACCES || error == EPERM || error == EROFS || error == EBUSY; }

void KeepOwner(int file, const struct stat& old) {
  struct stat now {};
  if (fstat(file, &now) != 0) return;
  if (now.st_gid != old.st_gid && fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0) return;
  // Not being allowed to give a file away is the ordinary case, and no reason to lose the content.
  if (now.st_uid != old.st_uid && fchown(file, old.st_uid, static_cast<gid_t>(-1)) != 0) return;
}

int WriteBesideAndRename(const std::string& path, std::string_view bytes, const struct stat* old, mode_t new_mode) {
  std::string beside = path.substr(0, path.rfind('/') + 1) + ".pelmar-XXXXXX";
  Descriptor file(mkostemp(beside.data(), O_CLOEXEC));
  if (!file.IsOpen()) return errno;
  const auto finish = [&]() -> int {
    if (const int error = WriteAll(file.Number(), bytes)) return error;
    if (old != nullptr) KeepOwner(file.Number(), *old);
    const mode_t mode = old != nullptr ? old->st_mode & 07777 : new_mode & ~Umask();
    if (fchmod(file.Number(), mode) != 0) return errno;
    // A file system that can't sync has said nothing about the content.
    if (fsync(file.Number()) != 0 && errno != EINVAL && errno != ENOTSUP) return errno;
    if (const int error = file.Close()) return error;
    return rename(beside.c_str(), path.c_str()) == 0 ? 0 : errno;
  };
  const int error = finish();
  if (error != 0) unlink(beside.c_str());
  return error;
}

int WriteInPlace(const std::string& path, std::string_view bytes) {
  const Descriptor file(open(path.c_str(), O_RDWR | O_CLOEXEC));
  if (!file.IsOpen()) return errno;
  std::string old;
  if (const int error = ReadAll(file.Number(), UINT64_MAX, old)) return error;
  const auto old_size = static_cast<off_t>(old.size());
  const auto new_size = static_cast<off_t>(bytes.size());
  int error = new_size > 0 ? posix_fallocate(file.Number(), 0, new_size) : 0;
  if (error == 0) {
    if (lseek(file.Number(), 0, SEEK_SET) == 0) {
      error = WriteAll(file.Number(), bytes);
    } else {
      error = errno;
    }
    if (error != 0 && lseek(file.Number(), 0, SEEK_SET) == 0) WriteAll(file.Number(), old);
  }
  if (ftruncate(file.Number(), error == 0 ? new_size : old_size) != 0 && error == 0) error = errno;
  if (error == 0 && fsync(file.Number()) != 0 && errno != EINVAL && errno != ENOTSUP) error = errno;
  return error;
}

int WriteToDevice(const std::string& path, std::string_view bytes) {
  Descriptor file(open(path.c_str(), O_WRONLY | kOpenSafely));
  if (!file.IsOpen()) return errno;
  const int error = WriteAll(file.Number(), bytes);
  const int close_error = file.Close();
  return error != 0 ? error : close_error;
}

}  // namespace

bool CanReadFile(const std::string& path) {
  int error = 0;
  return Descriptor(OpenRegular(path, error)).IsOpen();
}

FileBytes ReadWholeFile(const std::string& path, std::optional<std::uint64_t> limit) {
  FileBytes result;
  const Descriptor file(OpenRegular(path, result.error));
  if (!file.IsOpen()) return result;
  try {
    result.error = ReadAll(file.Number(), limit.value_or(UINT64_MAX), result.bytes);
  } catch (const std::bad_alloc&) {
    result.error = ENOMEM;
  } catch (const std::length_error&) {
    result.error = ENOMEM;
  }
  if (result.error != 0) result.bytes.clear();
  return result;
}

int ReplaceFile(const std::string& path, std::string_view bytes, mode_t new_mode) {
  std::string target = path;
  if (const int error = FollowLinks(target)) return error;
  struct stat old {};
  if (stat(target.c_str(), &old) != 0) {
    if (errno != ENOENT || target.ends_with('/')) return errno;
    return WriteBesideAndRename(target, bytes, nullptr, new_mode);
  }
  if (S_ISCHR(old.st_mode) || S_ISFIFO(old.st_mode)) return WriteToDevice(target, bytes);
  if (S_ISDIR(old.st_mode)) return EISDIR;
  if (!S_ISREG(old.st_mode)) return EINVAL;
  // The rename needs no permission on the old file, but the person has protected it.
  if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return errno;
  const int error = WriteBesideAndRename(target, bytes, &old, new_mode);
  return FolderRefuses(error) ? WriteInPlace(target, bytes) : error;
}

int CreateFile(const std::string& path, std::string_view bytes) {
  Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!file.IsOpen()) return errno;
  const int write_error = WriteAll(file.Number(), bytes);
  const int close_error = file.Close();
  const int error = write_error != 0 ? write_error : close_error;
  if (error != 0) unlink(path.c_str());
  return error;
}

}  // namespace pelmar
