#include "shell/rescue_store.h"

#include <unistd.h>

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

// The time in the name distinguishes two copies that had the same process ID.
std::string FileName(std::string_view prefix) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::string(prefix) + std::to_string(::getpid()) + "-" +
         std::to_string(std::chrono::duration_cast<std::chrono::microseconds>(now).count()) + std::string(kSuffix);
}

// The names of the rescue files in the folder that begin with `prefix`. Includes the name of a missing rescue file
// whose lock still exists.
std::set<std::string> RescueNames(const std::string& folder, std::string_view prefix) {
  std::set<std::string> names;
  std::error_code error;
  for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::string name = at->path().filename().string();
    if (name.ends_with(kLockSuffix)) name.resize(name.size() - kLockSuffix.size());
    if (name.starts_with(prefix) && name.ends_with(kSuffix)) names.insert(name);
  }
  return names;
}

}  // namespace

RescueStore::RescueStore(std::string folder, std::string_view prefix, WriteFile write)
    : folder_(std::move(folder)), path_(folder_ + FileName(prefix)), write_(std::move(write)) {}

int RescueStore::Keep(std::string_view bytes) {
  if (bytes.empty()) {
    if (!lock_.IsHeld()) return 0;
    unlink(path_.c_str());
    lock_.Release();
    return 0;
  }
  if (!lock_.IsHeld())
    if (const int error = lock_.Take(LockPath(path_))) return error;
  return write_(path_, bytes);
}

bool RescueStore::HasFile() const { return access(path_.c_str(), F_OK) == 0; }

std::vector<std::string> FindAbandoned(const std::string& folder, std::string_view prefix, LockFile& offer) {
  const std::set<std::string> names = RescueNames(folder, prefix);
  if (names.empty() || offer.IsHeld() || offer.Take(folder + std::string(prefix) + "offer.lock") != 0) return {};
  std::vector<std::string> found;
  for (const std::string& name : names) {
    LockFile lock;  // the destructor removes the lock, even if there is no rescue file
    if (lock.Take(LockPath(folder + name)) != 0) continue;
    if (access((folder + name).c_str(), F_OK) == 0) found.push_back(folder + name);
  }
  if (found.empty()) offer.Release();
  return found;
}

}  // namespace pelmar
