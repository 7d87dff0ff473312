#include "platform/qt/disk_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <functional>
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
    path.resize(target.starts_with('/') ? 0 : path.rfind('/') + 1);
    path += target;
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

// Puts the content into an open file; 0 or errno.
using Fill = std::function<int(int file)>;

// A file system that can't sync has said nothing about the content.
int Sync(int file) { return fsync(file) != 0 && errno != EINVAL && errno != ENOTSUP ? errno : 0; }

int WriteBesideAndRename(const std::string& path, const Fill& fill, const struct stat* old, mode_t new_mode) {
  std::string beside = path.substr(0, path.rfind('/') + 1) + ".pelmar-XXXXXX";
  Descriptor file(mkostemp(beside.data(), O_CLOEXEC));
  if (!file.IsOpen()) return errno;
  const auto finish = [&]() -> int {
    if (const int error = fill(file.Number())) return error;
    if (old != nullptr) KeepOwner(file.Number(), *old);
    const mode_t mode = old != nullptr ? old->st_mode & 07777 : new_mode & ~Umask();
    if (fchmod(file.Number(), mode) != 0) return errno;
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
  return error == 0 ? Sync(file.Number()) : error;
}

int WriteToDevice(const std::string& path, std::string_view bytes) {
  Descriptor file(open(path.c_str(), O_WRONLY | kOpenSafely));
  if (!file.IsOpen()) return errno;
  const int error = WriteAll(file.Number(), bytes);
  const int close_error = file.Close();
  return error != 0 ? error : close_error;
}

struct Target {
  enum Kind { kNew, kOld, kDevice } kind = kNew;
  std::string path;  // without links
  struct stat old {};
};

// What there is to write to; an errno where that can't be written.
int FindTarget(const std::string& path, Target& target) {
  target.path = path;
  if (const int error = FollowLinks(target.path)) return error;
  if (stat(target.path.c_str(), &target.old) != 0) return errno != ENOENT || target.path.ends_with('/') ? errno : 0;
  if (S_ISDIR(target.old.st_mode)) return EISDIR;
  target.kind = S_ISREG(target.old.st_mode) ? Target::kOld : Target::kDevice;
  if (target.kind == Target::kDevice) return S_ISCHR(target.old.st_mode) || S_ISFIFO(target.old.st_mode) ? 0 : EINVAL;
  // The rename needs no permission on the old file, but the person has protected it.
  return faccessat(AT_FDCWD, target.path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

constexpr std::size_t kPiece = std::size_t{256} << 10;  // stays in the processor's cache on its way through

// Hands each piece of a file, from where it stands to its end, to `take`, which returns 0 or an errno.
int ForEachPiece(int file, const std::function<int(std::string_view)>& take) {
  std::string piece(kPiece, '\0');
  while (true) {
    const ssize_t got = read(file, piece.data(), piece.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno;
    if (got == 0) return 0;
    if (const int error = take(std::string_view(piece).substr(0, static_cast<std::size_t>(got)))) return error;
  }
}

// Writes from where `to` stands. `kept` becomes how many of the bytes that were written are to stay.
int RewriteInto(int to, int from, FileRewriter& rewriter, std::uint64_t& kept) {
  const int error = ForEachPiece(from, [&](std::string_view piece) { return WriteAll(to, rewriter.Rewrite(piece)); });
  if (error != 0) return error;
  const int last_error = WriteAll(to, rewriter.Finish());
  kept = rewriter.Kept();
  return last_error;
}

// Everything of `old` behind that many bytes goes to the same place of `to`, whose own bytes there are cut.
int CopyTail(int old, int to, std::uint64_t behind) {
  const auto at = static_cast<off_t>(behind);
  if (ftruncate(to, at) != 0 || lseek(to, at, SEEK_SET) < 0 || lseek(old, at, SEEK_SET) < 0) return errno;
  return ForEachPiece(old, [to](std::string_view piece) { return WriteAll(to, piece); });
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

int ReadFileByPieces(const std::string& path, const std::function<bool(std::string_view)>& take) {
  constexpr int kEnough = -1;
  int error = 0;
  const Descriptor file(OpenRegular(path, error));
  if (!file.IsOpen()) return error;
  error = ForEachPiece(file.Number(), [&](std::string_view piece) { return take(piece) ? 0 : kEnough; });
  return error == kEnough ? 0 : error;
}

int ReplaceFile(const std::string& path, std::string_view bytes, mode_t new_mode) {
  Target target;
  if (const int error = FindTarget(path, target)) return error;
  const auto fill = [bytes](int file) {
    const int error = WriteAll(file, bytes);
    return error == 0 ? Sync(file) : error;
  };
  if (target.kind == Target::kDevice) return WriteToDevice(target.path, bytes);
  if (target.kind == Target::kNew) return WriteBesideAndRename(target.path, fill, nullptr, new_mode);
  const int error = WriteBesideAndRename(target.path, fill, &target.old, new_mode);
  return FolderRefuses(error) ? WriteInPlace(target.path, bytes) : error;
}

int RewriteFileByPieces(const std::string& source, const std::string& target_path, OldTail tail,
                        FileRewriter& rewriter) {
  int error = 0;
  const Descriptor from(OpenRegular(source, error));
  if (!from.IsOpen()) return error;
  Target target;
  if ((error = FindTarget(target_path, target)) != 0) return error;
  if (target.kind == Target::kDevice) return EINVAL;
  std::optional<Descriptor> old;
  if (target.kind == Target::kOld && tail == OldTail::kKeep) {
    old.emplace(open(target.path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!old->IsOpen()) return errno;
  }
  bool begun = false;
  const auto fill = [&](int to) {
    begun = true;
    std::uint64_t kept = 0;
    if (const int failed = RewriteInto(to, from.Number(), rewriter, kept)) return failed;
    if (old) return CopyTail(old->Number(), to, kept);
    return ftruncate(to, static_cast<off_t>(kept)) == 0 ? 0 : errno;
  };
  error = WriteBesideAndRename(target.path, fill, target.kind == Target::kOld ? &target.old : nullptr, 0666);
  if (begun || target.kind != Target::kOld || !FolderRefuses(error)) return error;
  const Descriptor in_place(open(target.path.c_str(), O_WRONLY | O_CLOEXEC));
  if (!in_place.IsOpen()) return errno;
  std::uint64_t kept = 0;
  if ((error = RewriteInto(in_place.Number(), from.Number(), rewriter, kept)) != 0 || old) return error;
  return ftruncate(in_place.Number(), static_cast<off_t>(kept)) == 0 ? 0 : errno;
}

bool LeadToSameFile(const std::string& left, const std::string& right) {
  struct stat a {};
  struct stat b {};
  return stat(left.c_str(), &a) == 0 && stat(right.c_str(), &b) == 0 && a.st_dev == b.st_dev && a.st_ino == b.st_ino;
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
