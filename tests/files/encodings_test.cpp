#include "files/encodings.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(Encodings, TheNewFileLiesBesideTheOld) {
  EXPECT_EQ(PathBeside("/a.d/b.c.txt", "1250"), "/a.d/b.c.1250");
  EXPECT_EQ(PathBeside("/a.d/b", "1250"), "/a.d/b.1250");
  EXPECT_EQ(PathBeside("/a/.rc", "1250"), "/a/.rc.1250");
  EXPECT_EQ(PathBeside("b.", "1250"), "b.1250");
}

// Each case stands behind no, one and two characters, so that each border of a piece falls on each place.
TEST(Encodings, BothWaysWholeWithAndWithoutAMark) {
  ScriptedPlatform platform;
  const std::string long_czech(1000, '\xE8');
  for (const std::string_view text :
       {"Žluťoučký kůň €\r\n"_w, ""_w, "kun"_w, std::string_view(long_czech), std::string_view("?\x81\x98")}) {
    for (const std::string_view front : {"", "x", "xy"}) {
      for (const std::string_view mark : {"", "\xEF\xBB\xBF"}) {
        const std::string page = std::string(front) + std::string(text);
        const std::string utf8 = std::string(mark) + ToUtf8(page);
        platform.files = {{"/a.txt", utf8}, {"/b.txt", page}};
        ConvertToPage(platform, "/a.txt");
        EXPECT_EQ(platform.files["/a.1250"], page);
        ConvertToUtf8(platform, "/b.txt", !mark.empty());
        EXPECT_EQ(platform.files["/b.utf8"], utf8);
      }
    }
  }
  EXPECT_EQ(platform.busy, 0);
}

TEST(Encodings, WhatIsNoUtf8IsRefusedWithItsPlace) {
  const std::pair<std::string, std::string> cases[] = {
      {"\xE8", "řádek 1, sloupec 1, bajt 1"},
      {"\xEF\xBB\xBFůů\xC5", "řádek 1, sloupec 3, bajt 8"},
      {"a\r\nb\rc\n\nůx\xC5y", "řádek 5, sloupec 3, bajt 12"},
  };
  for (const auto& [bytes, place] : cases) {
    ScriptedPlatform platform;
    platform.files = {{"/a.txt", bytes}};
    platform.answers = {Answer::kOk};
    ConvertToPage(platform, "/a.txt");
    EXPECT_EQ(platform.calls, (std::vector<std::string>{"busy 1", "busy 0",
                                                        "message 0 \"Soubor /a.txt není v UTF-8:\r\n" + place +
                                                            ".\r\nNic nebylo zapsáno.\" \"Konverze UNIX <-> DOS\""}));
    EXPECT_EQ(platform.files.size(), 1u);
  }
}

TEST(Encodings, WhatThePageLacksIsAskedAboutBeforeAnythingIsWritten) {
  ScriptedPlatform platform;
  platform.files = {{"/a.txt", "ů\n→?😀\xC2\x85"}};
  platform.answers = {Answer::kNo, Answer::kYes};
  ConvertToPage(platform, "/a.txt");
  EXPECT_EQ(platform.calls.back(),
            "message 52 \"Soubor /a.txt obsahuje znaky, které ve Windows-1250 nejsou, celkem 3.\r\n"
            "První je → (U+2192): řádek 2, sloupec 1, bajt 4.\r\n\r\nZapsat místo nich \"?\" ?\" "
            "\"Konverze UNIX <-> DOS\"");
  EXPECT_EQ(platform.files.size(), 1u);
  ConvertToPage(platform, "/a.txt");
  EXPECT_EQ(platform.files["/a.1250"], "\xF9\n????");
}

TEST(Encodings, WhatIsThereIsSafe) {
  ScriptedPlatform platform;
  const auto told = [&] { return platform.calls.back().substr(0, platform.calls.back().find("\r\n")); };
  platform.files = {{"/a.utf8", "a"}, {"/a.1250", "old"}, {"/b.txt", "ů"}, {"/c.1250", "c"}};
  platform.answers = {Answer::kNo, Answer::kOk, Answer::kOk, Answer::kNo, Answer::kOk, Answer::kOk};
  ConvertToPage(platform, "/a.utf8");
  EXPECT_EQ(told(), "message 52 \"Opravdu uložit /a.1250?");
  ConvertToPage(platform, "/c.1250");
  EXPECT_EQ(told(), "message 0 \"Výsledek by přepsal převáděný soubor:");
  ConvertToUtf8(platform, "/a.utf8", false);
  EXPECT_EQ(told(), "message 0 \"Výsledek by přepsal převáděný soubor:");
  ConvertToUtf8(platform, "/b.txt", false);  // twice would make garbage of it
  EXPECT_EQ(told(), "message 52 \"Soubor /b.txt je v UTF-8 už teď.");
  ConvertToPage(platform, "/none");
  EXPECT_TRUE(platform.calls.back().find("Kód chyby 2\"") != std::string::npos);
  platform.write_errors["/b.1250"] = ENOSPC;
  ConvertToPage(platform, "/b.txt");
  EXPECT_TRUE(platform.calls.back().find("Soubor: /b.1250\r\nKód chyby 28\"") != std::string::npos);
  EXPECT_EQ(platform.files.size(), 4u);
  EXPECT_EQ(platform.files["/a.1250"], "old");
  EXPECT_EQ(platform.busy, 0);
}

}  // namespace
}  // namespace pelmar
