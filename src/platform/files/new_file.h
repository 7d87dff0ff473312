// A file in the making, which takes its place under a name when it is complete. Until then it has no name at all where
// the file system can do that, so that nothing of it stays behind if the program is killed; elsewhere it has a drawn
// one, ".pelmar-" and six characters. A lock on it tells other copies of the program that its maker lives.
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

  // 0 or errno: EEXIST where anything has that name.
  int TakeNewName(const std::string& path);
  // Puts the file in the place of the one that has the name. 0 or errno.
  int TakeNameOf(const std::string& path);

 private:
  int Draw(mode_t mode);
  int LinkAs(const std::string& name);
  int LinkAsDrawn();

  std::string folder_;  // "" or with its separator
  Descriptor file_;
  std::string name_;  // the drawn one, "" while there is none
  int error_ = 0;
};

// Removes from the folder of that path what killed copies of the program left of such files; those of living ones stay.
// Looks once in each folder, since only earlier runs leave anything.
void ClearLeftFiles(const std::string& beside);

}  // namespace pelmar
