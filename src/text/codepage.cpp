#include "text/codepage.h"

#include "text/index.h"

namespace pelmar {
namespace {

constexpr std::string_view kLowerLetters = "abcdefghijklmnopqrstuvwxyzšśťžźłąşľżŕáâăäĺćçčéęëěíîďđńňóôőöřůúűüýţ"_w;
constexpr std::string_view kUpperLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZŠŚŤŽŹŁĄŞĽŻŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖŘŮÚŰÜÝŢ"_w;
static_assert(kLowerLetters.size() == kUpperLetters.size());

consteval std::array<char, 256> CaseTable(std::string_view from, std::string_view to) {
  std::array<char, 256> table{};
  for (int code = 0; code < 256; ++code) table[static_cast<std::size_t>(code)] = CharOf(code);
  for (std::size_t i = 0; i < from.size(); ++i) table[IndexOf(from[i])] = to[i];
  return table;
}

constexpr auto kToUpper = CaseTable(kLowerLetters, kUpperLetters);
constexpr auto kToLower = CaseTable(kUpperLetters, kLowerLetters);

std::string Mapped(std::string_view text, const std::array<char, 256>& table) {
  std::string result(text);
  for (char& ch : result) ch = table[IndexOf(ch)];
  return result;
}

}  // namespace

unsigned char CodeOfUnicode(char32_t character) {
  const int code = FindCode(character);
  return code < 0 ? '?' : static_cast<unsigned char>(code);
}

std::string FromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  for (std::size_t at = 0; at < utf8.size();) text += static_cast<char>(CodeOfUnicode(DecodeUtf8(utf8, at)));
  return text;
}

std::string FromUtf16(std::u16string_view utf16) {
  std::string text;
  text.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    const bool pair = utf16[i] >= 0xD800 && utf16[i] < 0xDC00 && i + 1 < utf16.size() && utf16[i + 1] >= 0xDC00 &&
                      utf16[i + 1] < 0xE000;
    text += pair ? '?' : static_cast<char>(CodeOfUnicode(utf16[i]));
    if (pair) ++i;
  }
  return text;
}

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size() + text.size() / 8);
  for (char ch : text) AppendUtf8(utf8, UnicodeOf(static_cast<unsigned char>(ch)));
  return utf8;
}

char ToUpper(char ch) { return kToUpper[IndexOf(ch)]; }
char ToLower(char ch) { return kToLower[IndexOf(ch)]; }
std::string ToUpper(std::string_view text) { return Mapped(text, kToUpper); }
std::string ToLower(std::string_view text) { return Mapped(text, kToLower); }

bool IsLetter(char ch) { return ToUpper(ch) != ch || ToLower(ch) != ch || ch == "ß"_w[0]; }

}  // namespace pelmar
