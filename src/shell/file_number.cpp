#include "shell/file_number.h"

namespace pelmar {

void WriteFileOn(FileNumber& number, Platform& platform, const std::string& path, std::string_view bytes) {
  const OpenNumber open(number);
  if (const int error = platform.WriteFile(path, bytes)) throw RuntimeError(error, "Soubor " + path + " nelze zapsat");
}

}  // namespace pelmar
