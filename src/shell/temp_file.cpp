#include "shell/temp_file.h"

#include <cerrno>
#include <cstdint>

namespace pelmar {

TempFile WriteTempFile(Platform& platform, std::string_view start, std::string_view end, std::string_view bytes) {
  // If a name is taken, another one is tried, up to this number of names.
  constexpr int kMostNames = 100;
  constexpr double kNumbers = 99'999'999.0;
  const std::string folder = platform.TempFolder();
  TempFile file{EEXIST, {}, {}};
  for (int tries = 0; file.error == EEXIST && tries < kMostNames; ++tries) {
    file.digits = std::to_string(static_cast<std::int64_t>(platform.Random() * kNumbers));
    file.path = folder + std::string(start) + file.digits + std::string(end);
    file.error = platform.WriteNewFile(file.path, bytes);
  }
  return file;
}

}  // namespace pelmar
