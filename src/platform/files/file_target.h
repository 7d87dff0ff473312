// The target of a save, and the two ways to save into an old file: to replace the file and to overwrite the file.
#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

struct Target {
  int error = 0;     // 0, or an errno if the target can't be written
  std::string path;  // the path that the links lead to
  bool exists = false;
  struct stat old {};
};

// Finds the target that the path and its links lead to.
Target FindTarget(const std::string& path);

struct Beside {
  int error = 0;
  bool try_in_place = false;  // WriteInPlace may still succeed
};

// Saves into a new file that takes the target's name. A new target gets the permissions `new_mode` less the umask.
Beside WriteBeside(const Target& target, std::string_view bytes, mode_t new_mode);

// Overwrites an old target. First copies the old content to a private file in `keep_folder`, which ends in a separator.
// If the write fails, restores the old content. If the restore fails too, the outcome names the copy.
WriteOutcome WriteInPlace(const Target& target, std::string_view bytes, const std::string& keep_folder);

}  // namespace pelmar
