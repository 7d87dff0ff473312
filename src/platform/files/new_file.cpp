#include "platform/files/new_file.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <mutex>
#include <set>
#include <string_view>

namespace pelmar {
namespace {

constexpr std::string_view kMark = ".pelmar-";
constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz012345";
constexpr std::size_t kDrawn = 6;
constexpr int kMostTries = 100;

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

// "" where the system has no random numbers.
std::string DrawName() {
  std::array<unsigned char, kDrawn> draw{};
  if (getentropy(draw.data(), draw.size()) != 0) return "";
  std::string name(kMark);
  for (const unsigned char one : draw) name += kLetters[one % kLetters.size()];
  return name;
}

// Earlier releases drew from all letters and digits.
bool IsDrawnName(std::string_view name) {
  const auto letter = [](char c) { return (c >= '0' && c <= '9') || ((c | 32) >= 'a' && (c | 32) <= 'z'); };
  return name.size() == kMark.size() + kDrawn && name.starts_with(kMark) &&
         std::ranges::all_of(name.substr(kMark.size()), letter);
}

// False where another holds it. A file system without locks lets everybody have it, and nothing be cleared.
bool Lock(int file) { return flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK; }

void RemoveIfLeft(const std::string& path) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | kOpenSafely));
  struct stat state {};
  if (!file.IsOpen() || fstat(file.Number(), &state) != 0 || !S_ISREG(state.st_mode)) return;
  const bool ours = state.st_uid == geteuid() || geteuid() == 0;
  if (ours && flock(file.Number(), LOCK_EX | LOCK_NB) == 0) unlink(path.c_str());
}

// A file on a server may report a lost write only when it is closed; the lock has to live on.
int CloseOnce(int file) {
  const int again = fcntl(file, F_DUPFD_CLOEXEC, 0);
  return again >= 0 && close(again) == 0 ? 0 : errno;
}

}  // namespace

NewFile::NewFile(const std::string& beside, mode_t mode) : folder_(FolderOf(beside)) {
  const char* const folder = folder_.empty() ? "." : folder_.c_str();
  // The name is given through /proc.
  if (access("/proc/self/fd", X_OK) == 0) file_ = Descriptor(open(folder, O_TMPFILE | O_RDWR | O_CLOEXEC, mode));
  if (file_.IsOpen()) {
    Lock(file_.Number());
  } else {
    error_ = Draw(mode);
  }
}

NewFile::~NewFile() {
  const int error = errno;
  if (!name_.empty()) unlink(name_.c_str());
  errno = error;
}

int NewFile::Draw(mode_t mode) {
  for (int tries = 0; tries < kMostTries; ++tries) {
    const std::string name = DrawName();
    if (name.empty()) return errno;
    Descriptor file(open((folder_ + name).c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!file.IsOpen() && errno == EEXIST) continue;
    if (!file.IsOpen()) return errno;
    // Between the making and the lock another copy may have taken it for a left one.
    struct stat state {};
    if (!Lock(file.Number()) || (fstat(file.Number(), &state) == 0 && state.st_nlink == 0)) continue;
    file_ = std::move(file);
    name_ = folder_ + name;
    return 0;
  }
  return EEXIST;
}

int NewFile::LinkAs(const std::string& name) {
  const std::string unnamed = "/proc/self/fd/" + std::to_string(file_.Number());
  return linkat(AT_FDCWD, unnamed.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
}

int NewFile::LinkAsDrawn() {
  for (int tries = 0; tries < kMostTries; ++tries) {
    const std::string name = DrawName();
    if (name.empty()) return errno;
    const int error = LinkAs(folder_ + name);
    if (error == 0) name_ = folder_ + name;
    if (error != EEXIST) return error;
  }
  return EEXIST;
}

int NewFile::TakeNewName(const std::string& path) {
  if (const int error = CloseOnce(file_.Number())) return error;
  if (name_.empty()) return LinkAs(path);
  const bool renamed = renameat2(AT_FDCWD, name_.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0;
  if (!renamed && errno != EINVAL && errno != ENOSYS) return errno;
  // A disk that can't do that may have hard links, which replace nothing either.
  if (!renamed && link(name_.c_str(), path.c_str()) != 0) return errno == EEXIST ? EEXIST : TakeNameOf(path);
  if (!renamed) unlink(name_.c_str());
  name_.clear();
  return 0;
}

int NewFile::TakeNameOf(const std::string& path) {
  if (const int error = CloseOnce(file_.Number())) return error;
  if (name_.empty()) {
    if (const int error = LinkAsDrawn()) return error;
  }
  if (rename(name_.c_str(), path.c_str()) != 0) return errno;
  name_.clear();
  return 0;
}

void ClearLeftFiles(const std::string& beside) {
  static std::mutex one_at_a_time;
  static std::set<std::string> seen;
  const std::string folder = FolderOf(beside);
  {
    const std::scoped_lock lock(one_at_a_time);
    if (!seen.insert(folder).second) return;
  }
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder.empty() ? "." : folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (IsDrawnName(name)) RemoveIfLeft(folder + name);
  }
}

}  // namespace pelmar
