// A new file that gets its name when its content is complete. Until then the file has no name if the file system and
// /proc allow this, so that nothing remains if the program is killed. Otherwise, and briefly during a replacement, the
// file has a temporary name: ".pelmar-" and six random characters. If the program is killed while the file has this
// name, the file remains. No later start removes the file, since a file of such a name could belong to the person.
#pragma once

#include <sys/types.h>

#include <string>

#include "platform/files/descriptor.h"

namespace pelmar {

class NewFile {
 public:
  // Creates the file in the folder of the path `beside`, with the permissions `mode` less the umask. Error() is 0 or an
  // errno.
  NewFile(const std::string& beside, mode_t mode);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();  // removes a file that still has its temporary name

  [[nodiscard]] int Error() const { return error_; }
  [[nodiscard]] int Number() const { return file_.Number(); }

  // These functions return 0 or an errno. The name is sure to be on the disk only after SyncFolderOf.

  // Gives the file this name. EEXIST if the name is taken. But on a file system with neither RENAME_NOREPLACE nor hard
  // links, a file that another program creates under this name at the same moment may be replaced.
  int TakeNewName(const std::string& path);
  // Gives the file an unused name: `start`, six random characters and `end`. `taken` becomes this name on success.
  int TakeFreeName(const std::string& start, const std::string& end, std::string& taken);
  // Gives the file this name. A file that already has the name is replaced.
  int TakeNameOf(const std::string& path);

 private:
  int CreateNamed(mode_t mode);

  std::string folder_;  // "" or with its separator
  Descriptor file_;
  std::string name_;  // the temporary name, or ""
  int error_ = 0;
};

}  // namespace pelmar
