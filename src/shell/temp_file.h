// Files in the temporary folder, which others may write to as well: each is new, has a drawn name, and only its owner
// can read it. Links and files that somebody has planted under the name are passed over.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

struct TempFile {
  int error = 0;       // 0 or errno
  std::string path;    // UTF-8
  std::string digits;  // what the name has between its start and its end
};

// The name is `start`, the digits of a number from 0 to 99,999,998 and `end`.
TempFile WriteTempFile(Platform& platform, std::string_view start, std::string_view end, std::string_view bytes);

}  // namespace pelmar
