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

// The lock beside a rescue file, for as long as `lock` stays open. 0, or an errno where it can't be had.
int Take(Descriptor& lock, const std::string& rescue) {
  const std::string path = LockPath(rescue);
  Descriptor file(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
  struct stat opened {};
  struct stat named {};
  if (!file.IsOpen() || flock(file.Number(), LOCK_EX | LOCK_NB) != 0 || fstat(file.Number(), &opened) != 0 ||
      stat(path.c_str(), &named) != 0)
    return errno;
  // Whoever held it may have removed the name between the open and the lock; then the lock means nothing.
  if (opened.st_ino != named.st_ino) return EAGAIN;
  lock = std::move(file);
  return 0;
}

// Removes the file and then its lock, which is held until both are gone.
void Remove(const std::string& rescue, Descriptor& lock) {
  unlink(rescue.c_str());
  unlink(LockPath(rescue).c_str());
  lock = Descriptor();
}

// Tells apart copies that had the same process number.
std::string FileName(std::string_view prefix) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::string(prefix) + std::to_string(::getpid()) + "-" +
         std::to_string(std::chrono::duration_cast<std::chrono::microseconds>(now).count()) + std::string(kSuffix);
}

}  // namespace

RescueStore::RescueStore(std::string folder, std::string_view prefix, WriteFile write)
    : folder_(std::move(folder)), path_(folder_ + FileName(prefix)), write_(std::move(write)) {}

int RescueStore::Keep(std::string_view bytes) {
  if (bytes.empty()) {
    if (lock_.IsOpen()) Remove(path_, lock_);
    return 0;
  }
  if (!lock_.IsOpen())
    if (const int error = Take(lock_, path_)) return error;
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
    AbandonedRescue rescue{folder + name, Descriptor()};
    if (Take(rescue.lock, rescue.path) != 0) continue;
    if (std::filesystem::exists(rescue.path, error)) {
      found.push_back(std::move(rescue));
    } else {
      Discard(rescue);  // the copy died before it kept anything
    }
  }
  return found;
}

void Discard(AbandonedRescue& rescue) { Remove(rescue.path, rescue.lock); }

}  // namespace pelmar
