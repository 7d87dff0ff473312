// Decodes UTF-8 byte by byte from a stream, or character by character from a string. Also encodes and checks UTF-8.
// Overlong forms, surrogates and values above U+10FFFF are malformed. codepage.h turns the characters into
// Windows-1250.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace pelmar {

// Results that are not characters.
inline constexpr char32_t kUnfinishedUtf8 = 0xFFFFFFFE;  // the character needs more bytes
inline constexpr char32_t kMalformedUtf8 = 0xFFFFFFFF;
// The mark that may stand at the start of a file.
inline constexpr char32_t kByteOrderMark = 0xFEFF;
inline constexpr std::string_view kByteOrderMarkBytes = "\xEF\xBB\xBF";

// Decodes a stream byte by byte, so the stream may come in pieces that end within a character.
class Utf8Decoder {
 public:
  // Returns the character if the byte completes one, or kUnfinishedUtf8 if more bytes must follow. Otherwise returns
  // kMalformedUtf8, and the next byte begins a new character.
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

  // Whether the last byte left a character unfinished.
  [[nodiscard]] constexpr bool InCharacter() const { return more_ != 0; }

 private:
  // The bounds of the lead and of the second byte exclude overlong forms, surrogates and values that are too large.
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

// Decodes the character at `at` and moves `at` to the end of the character. If there is no well-formed character at
// `at`, returns kMalformedUtf8 and moves `at` by one byte.
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
