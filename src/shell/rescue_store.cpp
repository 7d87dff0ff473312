#include "shell/rescue_store.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <set>
#include <system_error>
#include <utility>

namespace pelmar {
namespace {

constexpr std::string_view kSuffix = ".pelmar";

constexpr std::string_view kLockSuffix = ".lock";

std::string LockPath(const std::string& rescue) { return rescue + std::string(kLockSuffix); }

// Tells apart copies that had the same process number.
std::string FileName(std::string_view prefix) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::string(prefix) + std::to_string(::getpid()) + "-" +
         std::to_string(std::chrono::duration_cast<std::chrono::microseconds>(now).count()) + std::string(kSuffix);
}

}  // namespace

FileLock::FileLock(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (descriptor < 0) return;
  struct stat opened {};
  struct stat named {};
  // Whoever held it may have removed the name between the open and the lock; then the lock means nothing.
  const bool held = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && ::fstat(descriptor, &opened) == 0 &&
                    ::stat(path.c_str(), &named) == 0 && opened.st_ino == named.st_ino;
  if (held) {
    descriptor_ = descriptor;
  } else {
    ::close(descriptor);
  }
}

FileLock::FileLock(FileLock&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
  FileLock old(std::move(*this));
  descriptor_ = std::exchange(other.descriptor_, -1);
  return *this;
}

FileLock::~FileLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

RescueStore::RescueStore(std::string folder, std::string_view prefix, WriteFile write)
    : folder_(std::move(folder)), path_(folder_ + FileName(prefix)), write_(std::move(write)) {}

int RescueStore::Keep(std::string_view bytes) {
  if (bytes.empty()) {
    if (!lock_.Held()) return 0;
    ::unlink(path_.c_str());
    ::unlink(LockPath(path_).c_str());
    lock_ = FileLock();
    return 0;
  }
  if (!lock_.Held()) {
    errno = 0;
    lock_ = FileLock(LockPath(path_));
    if (!lock_.Held()) return errno != 0 ? errno : EAGAIN;
  }
  return write_(path_, bytes);
}

std::vector<AbandonedRescue> FindAbandoned(const std::string& folder, std::string_view prefix) {
  std::set<std::string> names;
  std::error_code error;
  for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::string name = at->path().filename().string();
    if (name.ends_with(kLockSuffix)) name.resize(name.size() - kLockSuffix.size());
    if (name.starts_with(prefix) && name.ends_with(kSuffix)) names.insert(name);
  }
  std::vector<AbandonedRescue> found;
  for (const std::string& name : names) {
    AbandonedRescue rescue{folder + name, FileLock(LockPath(folder + name))};
    if (!rescue.lock.Held()) continue;
    if (std::filesystem::exists(rescue.path, error)) {
      found.push_back(std::move(rescue));
    } else {
      Discard(rescue);  // the copy died before it kept anything
    }
  }
  return found;
}

void Discard(AbandonedRescue& rescue) {
  ::unlink(rescue.path.c_str());
  ::unlink(LockPath(rescue.path).c_str());
  rescue.lock = FileLock();
}

}  // namespace pelmar
