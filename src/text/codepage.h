// Windows-1250, the code page of every document. The code page leaves five codes unassigned. Here these codes stand for
// the control characters of the same number, so a conversion to Unicode and back changes no byte. A character outside
// the code page becomes "?".
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "text/utf8.h"

namespace pelmar {

// The Unicode characters of the codes from 0x80 to 0xFF. Lower codes are ASCII.
inline constexpr std::array<char16_t, 128> kCodePageHigh = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

constexpr char16_t UnicodeOf(unsigned char code) { return code < 0x80 ? char16_t{code} : kCodePageHigh[code - 0x80u]; }

// The characters of the codes from 0x80 on, sorted for a fast search, since a converted file may be very large.
inline constexpr auto kHighByUnicode = [] {
  std::array<std::pair<char16_t, unsigned char>, 128> pairs{};
  for (std::size_t i = 0; i < pairs.size(); ++i) pairs[i] = {kCodePageHigh[i], static_cast<unsigned char>(i + 0x80)};
  std::ranges::sort(pairs);
  return pairs;
}();

// The code of a Unicode character, -1 if the code page lacks the character.
constexpr int FindCode(char32_t character) {
  if (character < 0x80) return static_cast<int>(character);
  const auto* const at =
      std::ranges::lower_bound(kHighByUnicode, character, {}, [](const auto& pair) { return char32_t{pair.first}; });
  return at != kHighByUnicode.end() && at->first == character ? at->second : -1;
}

// The code of a Unicode character, "?" if the code page lacks the character.
unsigned char CodeOfUnicode(char32_t character);

// Convert whole strings. Each malformed byte of UTF-8 becomes "?".
std::string FromUtf8(std::string_view utf8);
std::string ToUtf8(std::string_view text);
std::string FromUtf16(std::u16string_view utf16);

// A character's code, 0 to 255, and back. CharOf takes any number and uses only its lowest 8 bits.
constexpr int CodeOf(char ch) { return static_cast<unsigned char>(ch); }
constexpr char CharOf(int code) { return static_cast<char>(static_cast<unsigned char>(code)); }

// Change the case of each letter of the code page except ß. All other characters stay.
char ToUpper(char ch);
char ToLower(char ch);
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);

// Whether the character is a letter of the code page, ß included.
bool IsLetter(char ch);

namespace literal {

template <std::size_t N>
struct Utf8Text {
  char bytes[N]{};
  consteval Utf8Text(const char (&text)[N]) {  // NOLINT(google-explicit-constructor): a literal's operand
    for (std::size_t i = 0; i < N; ++i) bytes[i] = text[i];
  }
  [[nodiscard]] consteval std::string_view View() const { return {bytes, N - 1}; }
};

template <Utf8Text Text>
consteval std::size_t Length() {
  std::size_t count = 0;
  for (std::size_t at = 0; at < Text.View().size(); ++count) DecodeUtf8(Text.View(), at);
  return count;
}

template <Utf8Text Text>
consteval auto Encode() {
  std::array<char, Length<Text>() + 1> codes{};
  std::size_t at = 0;
  for (std::size_t i = 0; i + 1 < codes.size(); ++i) {
    const int code = FindCode(DecodeUtf8(Text.View(), at));
    if (code < 0) throw "the character is not in Windows-1250";
    codes[i] = CharOf(code);
  }
  return codes;
}

template <Utf8Text Text>
inline constexpr auto kCodes = Encode<Text>();

}  // namespace literal

// "Tučně"_w: UTF-8 in the source, Windows-1250 in the program. A character outside the code page does not compile.
template <literal::Utf8Text Text>
consteval std::string_view operator""_w() {
  return {literal::kCodes<Text>.data(), literal::kCodes<Text>.size() - 1};
}

}  // namespace pelmar
