#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "html/samples/templaty.h"
#include "support/marked_text.h"

namespace pelmar {
namespace {

std::string Made(std::string_view key) {
  SettingsRecord profile;
  profile.UserName = "Jan Žižka"_w;
  profile.UserEmail = "a@b";
  return SampleText(key, profile);
}

TEST(Samples, StandInTheListWithTheirFilesAndHaveTheirLength) {
  const struct {
    const char *key, *text, *file_name;
    std::ptrdiff_t lines;
    std::size_t bytes;
  } rows[] = {
      {"HTML1", "Jednoduchý HTML dokument 1", "test1.html", 13, 498},
      {"HTML2", "Jednoduchý HTML dokument 2", "test2.html", 34, 1455},
      {"HTML3", "Jednoduchý HTML dokument 3", "test3.html", 37, 1292},
      {"HTML4", "Jednoduchý HTML dokument 4", "test4.html", 38, 1489},
      {"INI1", "Inicializační soubor 1", "acad.ini", 45, 1029},
      {"INI2", "Inicializační soubor 2", "netscape.ini", 29, 377},
      {"INF1", "Autorun", "autorun.inf", 5, 118},
      {"HTML5", "HTML s javascriptem", "java.html", 106, 3971},
      {"BAT1", "Dávkový soubor 1", "autoexec.bat", 6, 175},
      {"BAT2", "Dávkový soubor 2", "cleanup.bat", 6, 106},
      {"DIZ1", "info", "file_ID.diz", 14, 213},
  };
  ASSERT_EQ(Samples().size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const std::string made = Made(rows[i].key);
    EXPECT_EQ(Samples()[i].key, rows[i].key);
    EXPECT_EQ(ToUtf8(Samples()[i].text), rows[i].text);
    EXPECT_EQ(Samples()[i].file_name, rows[i].file_name);
    EXPECT_EQ(made.size(), rows[i].bytes) << rows[i].key;
    EXPECT_EQ(std::ranges::count(made, '\n') + 1, rows[i].lines) << rows[i].key;
  }
}

TEST(Samples, HomePageLinksToThePersonsAddress) {
  EXPECT_EQ(ShownText(Made("HTML1")),
            R"(<!DOCTYPE HTML PUBLIC "-//IETF/DTD HTML v.m//EN">¶<HTML>¶ <HEAD>¶)"
            R"(  <META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1250">¶)"
            R"(  <META NAME="GENERATOR" CONTENT="Orvilanths PELmar VEX v8.0.0.3a CZ">¶)"
            R"(  <TITLE>My HOMEPAGE</TITLE>¶ </HEAD>¶)"
            R"( <BODY BGCOLOR="#FFFFFF" TEXT="#424242" LINK="#FF7D00" VLINK="#FFE100" ALINK="#E1FF00">¶)"
            R"(  <H1> WELCOME ! </H1>¶  <HR ALIGN = "CENTER" NOSHADE Width = "50%">¶)"
            R"(  <CENTER> <A HREF="mailto:a@b" >Zamailujte mi!</A> </CENTER>¶ </BODY>¶</HTML>)");
}

}  // namespace
}  // namespace pelmar
