// The old content of a file that is written in place, in a file "puvodni-*" of the install folder: made before the
// first old byte changes, removed when the new content is on the disk. A lock tells that its save is under way. One
// that a killed save has left is told to the person once; it is read-only from then on.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files/new_file.h"

namespace pelmar {

class KeptContent {
 public:
  // Copies the whole open `file`, which has this path, into `folder` (with its separator), for its owner alone, and
  // waits until the copy is on the disk. 0 or errno; then there is no copy.
  int Keep(int file, const std::string& path, const std::string& folder);
  // Makes the copy the content of the file again. 0 or errno.
  int PutBack(int file);
  void Remove();
  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] int Number() const { return copy_->Number(); }

 private:
  std::optional<NewFile> copy_;
  std::string path_;
};

// The paths of copies in the folder whose save was killed, and that nobody was told of.
std::vector<std::string> FindLeftContents(const std::string& folder);

// From now on the person knows of this copy.
void MarkAsTold(const std::string& path);

}  // namespace pelmar
