#include "text/utf8.h"

#include <algorithm>

namespace pelmar {

bool IsUtf8(std::string_view bytes) {
  Utf8Decoder decoder;
  for (const char byte : bytes)
    if (decoder.Take(byte) == kMalformedUtf8) return false;
  return !decoder.InCharacter();
}

bool LooksLikeUtf8(std::string_view bytes) {
  const auto is_ascii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  return !std::all_of(bytes.begin(), bytes.end(), is_ascii) && IsUtf8(bytes);
}

}  // namespace pelmar
