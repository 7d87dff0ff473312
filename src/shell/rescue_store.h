// Rescue files in the install folder. Each running copy of the program has at most one file for documents and one for
// notes. A lock for each file shows other copies that the file is in use. Call from one thread at a time.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/lock_file.h"

namespace pelmar {

class RescueStore {
 public:
  // Returns 0 or errno, like Platform::WritePrivateFile.
  using WriteFile = std::function<int(const std::string& path, std::string_view bytes)>;

  // `folder` ends in a separator. The constructor creates nothing. The file name begins with `prefix`.
  RescueStore(std::string folder, std::string_view prefix, WriteFile write);
  RescueStore(const RescueStore&) = delete;
  RescueStore& operator=(const RescueStore&) = delete;

  // Writes this copy's file. Empty bytes remove the file. Returns 0 or errno.
  int Keep(std::string_view bytes);
  // The path of this copy's file. After a crash the next start finds the file there.
  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] bool HasFile() const;

 private:
  std::string folder_;
  std::string path_;
  WriteFile write_;
  LockFile lock_;
};

// The sorted paths of the rescue files of copies that are no longer running. If there are any, `offer` then holds a
// lock, so that only one copy offers these files. Finds none if `offer` already holds this lock or can't take it.
std::vector<std::string> FindAbandoned(const std::string& folder, std::string_view prefix, LockFile& offer);

}  // namespace pelmar
