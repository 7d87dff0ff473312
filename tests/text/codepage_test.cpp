#include "text/codepage.h"

#include <gtest/gtest.h>

#include <string>

namespace pelmar {
namespace {

std::string AllBytes() {
  std::string all;
  for (int code = 0; code < 256; ++code) all += CharOf(code);
  return all;
}

TEST(CodePage, EveryByteSurvivesUnicode) {
  const std::string all = AllBytes();
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  std::u16string wide;
  for (char ch : all) wide += UnicodeOf(static_cast<unsigned char>(ch));
  EXPECT_EQ(FromUtf16(wide), all);
}

TEST(CodePage, LiteralsAreEncodedByTheCompiler) {
  EXPECT_EQ("Žluťoučký kůň €"_w, "\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2 \x80");
  EXPECT_EQ(""_w, "");
  EXPECT_EQ(ToUtf8("©®™ß"_w), "©®™ß");
}

TEST(CodePage, WhatThePageLacksBecomesOneQuestionMark) {
  const struct {
    std::string_view utf8, expected;
  } cases[] = {
      {"aЖb", "a?b"},     {"😀!", "?!"},         {"\xFF\xFE", "??"},      {"\xC3", "?"},
      {"\xE2\x82", "??"}, {"\xC0\x80x", "??x"}, {"\xED\xA0\x80", "???"}, {"€", "\x80"},
  };
  for (const auto& c : cases) EXPECT_EQ(FromUtf8(c.utf8), c.expected) << c.utf8;
  EXPECT_EQ(FromUtf16(u"a\U0001F600b\xD800"), "a?b?");
}

TEST(Utf8, IsWellFormedToTheLastBit) {
  for (const std::string_view good : {"kůň", "\u0800\uD7FF\uE000\uFFFF", "\U00010000\U0010FFFF", "\uFEFFa"})
    EXPECT_TRUE(IsUtf8(good) && LooksLikeUtf8(good)) << good;
  EXPECT_TRUE(IsUtf8("kun\x7F") && !LooksLikeUtf8("kun\x7F") && !LooksLikeUtf8(""));
  for (const std::string_view bad : {"k\xF9\xF2", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
                                     "\xF4\x90\x80\x80", "\xF5", "\x80", "ů\xC5", "\xE2\x82", "\xE2\x82\xC5\xAF"})
    EXPECT_FALSE(IsUtf8(bad) || LooksLikeUtf8(bad)) << bad;
}

TEST(CodePage, CaseCoversAllLettersOfThePage) {
  EXPECT_EQ(ToUpper("příliš ľščťž ß 1. łąşżŕăç ţ"_w), "PŘÍLIŠ ĽŠČŤŽ ß 1. ŁĄŞŻŔĂÇ Ţ"_w);
  EXPECT_EQ(ToLower("PŘÍLIŠ ĽŠČŤŽ ß 1. ŁĄŞŻŔĂÇ Ţ"_w), "příliš ľščťž ß 1. łąşżŕăç ţ"_w);
  for (char ch : AllBytes()) {
    EXPECT_EQ(ToUpper(ToLower(ToUpper(ch))), ToUpper(ch));
    EXPECT_EQ(ToLower(ToUpper(ToLower(ch))), ToLower(ch));
  }
  EXPECT_TRUE(IsLetter("ß"_w[0]));
  EXPECT_FALSE(IsLetter("×"_w[0]));
  EXPECT_FALSE(IsLetter('1'));
}

}  // namespace
}  // namespace pelmar
