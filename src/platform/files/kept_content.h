// A copy of the old content of a file that is overwritten, stored as "puvodni-*" in a folder that the caller chooses.
// The copy is made before the first byte changes, and removed when the new content is on the disk or the old content is
// restored. A lock on the copy shows other processes that the save is running. The next start of the editor reports the
// copies that killed saves left in the install folder. The start of an accessory alone reports nothing.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files/new_file.h"

namespace pelmar {

class KeptContent {
 public:
  // Copies the open `file`, whose path is `path`, into `folder`, which ends in a separator. Waits until the copy is on
  // the disk. Only the owner can read the copy. Returns 0, or an errno if there is no copy.
  int Keep(int file, const std::string& path, const std::string& folder);
  // Restores the content of the file from the copy. Returns 0 or an errno.
  int PutBack(int file);
  void Remove();
  [[nodiscard]] const std::string& Path() const { return path_; }

 private:
  std::optional<NewFile> copy_;
  std::string path_;
};

// The sorted paths of the copies that remain from killed saves. Copies marked as reported are left out.
std::vector<std::string> FindUnreportedCopies(const std::string& folder);

// Makes the copy read-only, which is the mark of a reported copy.
void MarkAsReported(const std::string& path);

}  // namespace pelmar
