// Rescue files on the disk: one of a kind for each running copy, in the install folder. A copy holds a lock beside its
// file for as long as it lives, so that no other copy takes it for abandoned. The write is atomic. Calls come from one
// thread at a time.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/lock_file.h"

namespace pelmar {

class RescueStore {
 public:
  // 0 or errno, as Platform::WritePrivateFile.
  using WriteFile = std::function<int(const std::string& path, std::string_view bytes)>;

  // `folder` ends in a separator; it is used from the first Keep on. `prefix` begins the file's name and tells apart
  // what is kept; none begins with another one.
  RescueStore(std::string folder, std::string_view prefix, WriteFile write);
  RescueStore(const RescueStore&) = delete;
  RescueStore& operator=(const RescueStore&) = delete;

  // Puts the bytes into this copy's file; empty bytes remove it. Returns 0 or errno.
  int Keep(std::string_view bytes);
  // Where the file lies once bytes were kept; a copy that dies leaves it there for the next start.
  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] bool HasFile() const;

 private:
  std::string folder_;
  std::string path_;
  WriteFile write_;
  LockFile lock_;
};

// The rescue files whose copies have died, sorted. `offer` is held where there are any: one copy at a time offers them,
// and none are found while another one does.
std::vector<std::string> FindAbandoned(const std::string& folder, std::string_view prefix, LockFile& offer);

}  // namespace pelmar
