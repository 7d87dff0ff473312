#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <regex>
#include <string>

#include "support/random_source.h"
#include "text/codepage.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

std::string AllBytes() {
  std::string all;
  for (int code = 0; code < 256; ++code) all += CharOf(code);
  return all;
}

TEST(CodePage, EveryByteSurvivesTheConversionToUnicodeAndBack) {
  const std::string all = AllBytes();
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  std::u16string wide;
  for (const char ch : all) wide += UnicodeOf(static_cast<unsigned char>(ch));
  EXPECT_EQ(FromUtf16(wide), all);
  EXPECT_EQ("Žluťoučký kůň €"_w, "\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2 \x80");
}

TEST(CodePage, EachForeignCharacterOrMalformedByteBecomesAQuestionMark) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"aЖb", "a?b"}, {"😀!", "?!"}, {"\xFF\xFE", "??"}, {"\xE2\x82", "??"}, {"\xC0\x80x", "??x"}, {"€", "\x80"}};
  for (const auto& [utf8, expected] : cases) EXPECT_EQ(FromUtf8(utf8), expected) << utf8;
  // The first and the last pair of surrogates, then units that form no pair.
  EXPECT_EQ(FromUtf16(u"a\U00010000\U0010FFFFb\xDC00\xDC00\xD800\xE000\xD800"), "a??b?????");
}

TEST(Utf8, CharactersAreReadAndWrittenButMalformedSequencesAreRefused) {
  for (const std::string_view good :
       {"kůň\xC2\x80\u07FF", "\u0800\uD7FF\uE000\uFFFF", "\U00010000\U0010FFFF", "\uFEFFa"}) {
    EXPECT_TRUE(IsUtf8(good) && LooksLikeUtf8(good)) << good;
    std::string again;
    for (std::size_t at = 0; at < good.size();) AppendUtf8(again, DecodeUtf8(good, at));
    EXPECT_EQ(again, good);
  }
  EXPECT_TRUE(IsUtf8("kun\x7F"));
  EXPECT_FALSE(LooksLikeUtf8("kun\x7F"));
  for (const std::string_view bad : {"k\xF9\xF2", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
                                     "\xF4\x90\x80\x80", "\xF5", "\x80", "ů\xC5", "\xE2\x82\xC5\xAF"})
    EXPECT_FALSE(IsUtf8(bad) || LooksLikeUtf8(bad)) << bad;
}

TEST(CodePage, CaseCoversAllLettersOfThePage) {
  EXPECT_EQ(ToUpper("příliš ľščťž ß 1. łąşżŕăç ţ"_w), "PŘÍLIŠ ĽŠČŤŽ ß 1. ŁĄŞŻŔĂÇ Ţ"_w);
  std::string letters;
  for (const char ch : AllBytes()) {
    EXPECT_EQ(ToUpper(ToLower(ToUpper(ch))), ToUpper(ch));
    EXPECT_EQ(ToLower(ToUpper(ToLower(ch))), ToLower(ch));
    if (IsLetter(ch) && CodeOf(ch) >= 128) letters += ch;
  }
  EXPECT_EQ(ToUtf8(letters), "ŠŚŤŽŹšśťžźŁĄŞŻłąşĽľżŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖŘŮÚŰÜÝŢßŕáâăäĺćçčéęëěíîďđńňóôőöřůúűüýţ");
  EXPECT_FALSE(IsLetter('1') || IsLetter('@'));
}

TEST(NumberText, WritesFifteenDigitsWithAComma) {
  const std::pair<double, const char*> cases[] = {
      {-0.0, "0"},
      {0.1 + 0.2, "0,3"},
      {2.0 / 3, "0,666666666666667"},
      {999999999999999.0, "999999999999999"},
      {1e15, "1E+15"},
      {0.0001, "0,0001"},
      {0.00001, "1E-05"},
      {-1.5e308, "-1,5E+308"},
  };
  for (const auto& [number, text] : cases) EXPECT_EQ(NumberText(number), text);
  EXPECT_EQ(NumberText(1.0f / 3), "0,3333333");
}

TEST(NumberText, FixedNumbersRoundHalvesAwayFromZero) {
  const std::pair<double, const char*> cases[] = {
      {1.0, "1,00000"},      {1.015625, "1,01563"},  {1.0390625, "1,03906"}, {0.000005, "0,00001"},
      {1.000005, "1,00001"}, {9.999999, "10,00000"}, {-0.000001, "0,00000"}, {-1.2345678, "-1,23457"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(FixedText(number, 5), text);
  EXPECT_EQ(FixedText(-1.25, 1), "-1,3");
  EXPECT_EQ(FixedText(123.456, 9), "123,456000000");
}

TEST(NumberText, ReadsNumbersAsARegularExpressionDoes) {
  const auto form = [](const std::string& separator) {
    return "\\s*([+-]?(\\d+" + separator + "?\\d*|" + separator + "\\d+)([eE][+-]?\\d+)?)";
  };
  const std::regex leading(form("[.]")), whole(form(",") + "\\s*"), comma(",");
  RandomSource random(8);
  for (int round = 0; round < 30000; ++round) {
    const std::string text = random.Text(2, " \t\r\n") + random.Text(8, "0159.,+-Ee x");
    std::smatch found;
    const bool has_leading = std::regex_search(text, found, leading, std::regex_constants::match_continuous);
    const double number = has_leading ? std::strtod(found.str(1).c_str(), nullptr) : 0;
    if (!std::isfinite(number)) continue;
    ASSERT_EQ(LeadingNumber(text), number) << text;
    const bool is_number = std::regex_match(text, found, whole);
    const double read = is_number ? std::strtod(std::regex_replace(found.str(1), comma, ".").c_str(), nullptr) : 0;
    ASSERT_EQ(ParseNumber(text), is_number && std::isfinite(read) ? std::optional(read) : std::nullopt) << text;
  }
}

TEST(NumberText, NumbersOutOfRangeAreCutRoundedToZeroOrRefused) {
  EXPECT_EQ(LeadingNumber("1E999"), 1e99);
  EXPECT_EQ(LeadingNumber("1E+3000"), 1e300);
  EXPECT_EQ(LeadingNumber("1E-999"), 0);
  EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + "1E+5"), 0);
}

}  // namespace
}  // namespace pelmar
