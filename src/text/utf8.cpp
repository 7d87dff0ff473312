#include "text/utf8.h"

#include <algorithm>

namespace pelmar {

void AppendUtf8(std::string& utf8, char32_t character) {
  const auto tail = [&](int shift) { utf8 += static_cast<char>(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
    return;
  }
  if (character < 0x800) {
    utf8 += static_cast<char>(0xC0 | character >> 6);
  } else if (character < 0x10000) {
    utf8 += static_cast<char>(0xE0 | character >> 12);
    tail(6);
  } else {
    utf8 += static_cast<char>(0xF0 | character >> 18);
    tail(12);
    tail(6);
  }
  tail(0);
}

bool IsUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();)
    if (DecodeUtf8(bytes, at) == kMalformedUtf8) return false;
  return true;
}

bool LooksLikeUtf8(std::string_view bytes) {
  const auto is_ascii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  return !std::all_of(bytes.begin(), bytes.end(), is_ascii) && IsUtf8(bytes);
}

bool MixesEncodings(std::string_view bytes) {
  bool characters = false, others = false;
  for (std::size_t at = 0; at < bytes.size() && !(characters && others);) {
    const char32_t character = DecodeUtf8(bytes, at);
    (character == kMalformedUtf8 ? others : characters) |= character >= 0x80;
  }
  return characters && others;
}

}  // namespace pelmar
