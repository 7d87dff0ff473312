// Creates files in the temporary folder, to which other users can write too. Each file is new, has a random name and is
// readable only by its owner. A name that is already taken, even by a link, isn't used.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

struct TempFile {
  int error = 0;       // 0 or errno
  std::string path;    // with the folder
  std::string digits;  // the part of the name between `start` and `end`
};

// The name is `start`, the digits of a number from 0 to 99,999,998 and `end`.
TempFile WriteTempFile(Platform& platform, std::string_view start, std::string_view end, std::string_view bytes);

}  // namespace pelmar
