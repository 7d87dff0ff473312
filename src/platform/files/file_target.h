// What a save writes to, and the two ways of writing over an old file: a new file beside that takes its place, or the
// old file itself.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <functional>
#include <string>

#include "platform/files/descriptor.h"
#include "platform/platform.h"

namespace pelmar {

struct Target {
  int error = 0;     // why it can't be written
  std::string path;  // without links
  enum Kind { kNew, kOld, kDevice } kind = kNew;
  struct stat old {};
};

// What there is to write to.
Target FindTarget(const std::string& path);

struct NewContent {
  // Writes the content into `to`, which stands at its start, and cuts that behind it. `old` is open on the old content
  // where `reads_old` asks for it and there is one, otherwise -1. Called once. 0 or errno.
  std::function<int(int to, int old)> fill;
  bool reads_old = false;
  std::uint64_t size = 0;  // 0 where it isn't known before
};

struct Beside {
  int error = 0;
  bool try_in_place = false;          // it is the folder or the old file's attributes that stand against it
  Descriptor content = Descriptor();  // open on the whole new content, where that was made all the same
};

// The target is new or old. `new_mode` is for a new one, before the umask.
Beside WriteBeside(const Target& target, const NewContent& content, mode_t new_mode);

// Writes over the old target itself. Before its first byte changes, the old content lies whole on the disk, in a file
// of `keep_folder` (with its separator) that only its owner can read; after a failure it is put back. Where that fails
// too, the outcome names the file.
WriteOutcome WriteInPlace(const Target& target, const NewContent& content, const std::string& keep_folder);

}  // namespace pelmar
