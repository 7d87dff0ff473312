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
  for (const char ch : all) wide += UnicodeOf(static_cast<unsigned char>(ch));
  EXPECT_EQ(FromUtf16(wide), all);
  EXPECT_EQ("Žluťoučký kůň €"_w, "\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2 \x80");
  EXPECT_EQ(ToUtf8("©®™ß"_w), "©®™ß");
}

TEST(CodePage, WhatThePageLacksBecomesOneQuestionMark) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"aЖb", "a?b"}, {"😀!", "?!"}, {"\xFF\xFE", "??"}, {"\xE2\x82", "??"}, {"\xC0\x80x", "??x"}, {"€", "\x80"}};
  for (const auto& [utf8, expected] : cases) EXPECT_EQ(FromUtf8(utf8), expected) << utf8;
  EXPECT_EQ(FromUtf16(u"a\U0001F600b\xD800"), "a?b?");
}

TEST(Utf8, IsWellFormedToTheLastBit) {
  for (const std::string_view good : {"kůň", "\u0800\uD7FF\uE000\uFFFF", "\U00010000\U0010FFFF", "\uFEFFa"})
    EXPECT_TRUE(IsUtf8(good) && LooksLikeUtf8(good)) << good;
  EXPECT_TRUE(IsUtf8("kun\x7F") && !LooksLikeUtf8("kun\x7F") && !LooksLikeUtf8(""));
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

}  // namespace
}  // namespace pelmar
