// UTF-8, byte by byte: as it comes in pieces from a file, or as a whole. Overlong forms, surrogates and what lies
// beyond U+10FFFF are no UTF-8. Windows-1250, into which it goes here, is codepage.h's.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace pelmar {

// What stands for a character where there is none.
inline constexpr char32_t kUnfinishedUtf8 = 0xFFFFFFFE;  // more bytes have to come
inline constexpr char32_t kMalformedUtf8 = 0xFFFFFFFF;
inline constexpr char32_t kByteOrderMark = 0xFEFF;
inline constexpr std::string_view kByteOrderMarkBytes = "\xEF\xBB\xBF";

// Decodes a stream. Pieces may end anywhere.
class Utf8Decoder {
 public:
  // The character that the byte completes, or one of the two above. Behind a malformed byte the decoder stands at the
  // beginning of a character again.
  constexpr char32_t Take(char ch) {
    const auto byte = static_cast<unsigned char>(ch);
    if (more_ == 0) return byte < 0x80 ? char32_t{byte} : Begin(byte);
    if (byte < lowest_ || byte > highest_) {
      more_ = 0;
      return kMalformedUtf8;
    }
    lowest_ = 0x80;
    highest_ = 0xBF;
    value_ = value_ << 6 | (byte & 0x3Fu);
    return --more_ == 0 ? value_ : kUnfinishedUtf8;
  }

  // A stream that ends here ends within a character.
  [[nodiscard]] constexpr bool InCharacter() const { return more_ != 0; }

 private:
  // The bounds of the second byte keep overlong forms, surrogates and too large values out.
  constexpr char32_t Begin(unsigned char lead) {
    if (lead < 0xC2 || lead > 0xF4) return kMalformedUtf8;
    more_ = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    value_ = lead & (0x3Fu >> more_);
    lowest_ = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    highest_ = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    return kUnfinishedUtf8;
  }

  char32_t value_ = 0;
  int more_ = 0;
  unsigned char lowest_ = 0x80, highest_ = 0xBF;  // of the next byte
};

// Decodes the character at `at` and moves `at` behind it; kMalformedUtf8 for a byte that can't be part of one.
constexpr char32_t DecodeUtf8(std::string_view utf8, std::size_t& at) {
  Utf8Decoder decoder;
  for (std::size_t end = at; end < utf8.size();) {
    const char32_t character = decoder.Take(utf8[end++]);
    if (character == kUnfinishedUtf8) continue;
    at = character == kMalformedUtf8 ? at + 1 : end;
    return character;
  }
  ++at;
  return kMalformedUtf8;
}

// Puts a character (of Unicode, no surrogate) behind a text in UTF-8.
void AppendUtf8(std::string& utf8, char32_t character);

// True where the string is well-formed UTF-8 (ASCII included).
bool IsUtf8(std::string_view bytes);

// True for well-formed UTF-8 that isn't ASCII alone: what a text of another encoding practically never is.
bool LooksLikeUtf8(std::string_view bytes);

// True where the string holds characters of several bytes in UTF-8 and also bytes that are no UTF-8.
bool MixesEncodings(std::string_view bytes);

}  // namespace pelmar
