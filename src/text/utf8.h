// Decodes, encodes and checks UTF-8. Overlong forms, surrogates and values above U+10FFFF are malformed. codepage.h
// turns the characters into Windows-1250.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace pelmar {

// A result that is not a character.
inline constexpr char32_t kMalformedUtf8 = 0xFFFFFFFF;
// The mark that may stand at the start of a file.
inline constexpr char32_t kByteOrderMark = 0xFEFF;
inline constexpr std::string_view kByteOrderMarkBytes = "\xEF\xBB\xBF";

// Decodes the character at `at`, which must be before the end, and moves `at` to the end of the character. If there is
// no well-formed character at `at`, returns kMalformedUtf8 and moves `at` by one byte.
constexpr char32_t DecodeUtf8(std::string_view utf8, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(utf8[at++]);
  if (lead < 0x80) return lead;
  // The bounds of the lead and of the second byte exclude overlong forms, surrogates and values that are too large.
  if (lead < 0xC2 || lead > 0xF4) return kMalformedUtf8;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (utf8.size() - at < more) return kMalformedUtf8;
  int lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  int highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  char32_t character = lead & (0x3Fu >> more);
  for (const char ch : utf8.substr(at, more)) {
    const auto byte = static_cast<unsigned char>(ch);
    if (byte < lowest || byte > highest) return kMalformedUtf8;
    lowest = 0x80;
    highest = 0xBF;
    character = character << 6 | (byte & 0x3Fu);
  }
  at += more;
  return character;
}

// Appends a Unicode character, which must not be a surrogate, to UTF-8.
void AppendUtf8(std::string& utf8, char32_t character);

// Whether the bytes are well-formed UTF-8. ASCII is well-formed.
bool IsUtf8(std::string_view bytes);

// Whether the bytes are well-formed UTF-8 with a character beyond ASCII. In another encoding a text with such
// characters is hardly ever well-formed UTF-8.
bool LooksLikeUtf8(std::string_view bytes);

// True if the bytes hold both UTF-8 characters beyond ASCII and bytes that are malformed UTF-8.
bool MixesEncodings(std::string_view bytes);

}  // namespace pelmar
