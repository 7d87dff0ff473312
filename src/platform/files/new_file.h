// A file in the making, which takes its place under a name when it is complete. Until then it has no name at all where
// the file system can do that, so that nothing of it stays behind if the program is killed. Elsewhere, and for the
// moment of a replacement, it has a drawn one, ".pelmar-" and six characters. What a kill leaves of that stays: nobody
// could tell it from a person's own file of such a name.
#pragma once

#include <sys/types.h>

#include <string>

#include "platform/files/descriptor.h"

namespace pelmar {

class NewFile {
 public:
  // In the folder of that path; see Error. `mode` is before the umask.
  NewFile(const std::string& beside, mode_t mode);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();  // A drawn name goes.

  [[nodiscard]] int Error() const { return error_; }
  [[nodiscard]] int Number() const { return file_.Number(); }

  // All three give 0 or an errno. The name is on the disk only after SyncFolderOf.
  // EEXIST where anything has that name.
  int TakeNewName(const std::string& path);
  // `start`, six drawn characters and `end`; `taken` becomes the whole.
  int TakeFreeName(const std::string& start, const std::string& end, std::string& taken);
  // Puts the file in the place of the one that has the name.
  int TakeNameOf(const std::string& path);

 private:
  int Draw(mode_t mode);

  std::string folder_;  // "" or with its separator
  Descriptor file_;
  std::string name_;  // the drawn one, "" while there is none
  int error_ = 0;
};

}  // namespace pelmar
