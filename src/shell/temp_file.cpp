#include "shell/temp_file.h"

#include <cerrno>
#include <cstdint>

namespace pelmar {

TempFile WriteTempFile(Platform& platform, std::string_view start, std::string_view end, std::string_view bytes) {
  constexpr double kNumbers = 99'999'999.0;
  TempFile file;
  do {
    file.digits = std::to_string(static_cast<std::int64_t>(platform.Random() * kNumbers));
    file.path = platform.TempFolder() + std::string(start) + file.digits + std::string(end);
    file.error = platform.WriteNewFile(file.path, bytes);
  } while (file.error == EEXIST);  // the name is taken
  return file;
}

}  // namespace pelmar
