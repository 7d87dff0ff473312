#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "html/samples/templaty.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

SettingsRecord Profile() {
  SettingsRecord profile;
  profile.UserName = "Jan Žižka"_w;
  profile.UserEmail = "a@b";
  return profile;
}

std::string Text(std::string_view key) { return SampleText(key, Profile()); }

bool Has(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

// The parts stand in the text, one behind the other.
void ExpectInOrder(std::string_view key, const std::vector<std::string_view>& parts) {
  const std::string text = Text(key);
  std::size_t at = 0;
  for (const std::string_view part : parts) {
    at = text.find(part, at);
    ASSERT_NE(at, std::string::npos) << key << " lacks, or has too early: " << part;
    at += part.size();
  }
}

TEST(Samples, StandInTheirOrder) {
  std::string rows;
  for (const Sample& sample : Samples())
    rows += std::string(sample.key) + '|' + ToUtf8(sample.text) + '|' + std::string(sample.file_name) + '\n';
  EXPECT_EQ(rows,
            "HTML1|Jednoduchý HTML dokument 1|test1.html\n"
            "HTML2|Jednoduchý HTML dokument 2|test2.html\n"
            "HTML3|Jednoduchý HTML dokument 3|test3.html\n"
            "HTML4|Jednoduchý HTML dokument 4|test4.html\n"
            "INI1|Inicializační soubor 1|acad.ini\n"
            "INI2|Inicializační soubor 2|netscape.ini\n"
            "INF1|Autorun|autorun.inf\n"
            "HTML5|HTML s javascriptem|java.html\n"
            "BAT1|Dávkový soubor 1|autoexec.bat\n"
            "BAT2|Dávkový soubor 2|cleanup.bat\n"
            "DIZ1|info|file_ID.diz\n");
  EXPECT_EQ(Text("HTML6"), "");
  EXPECT_EQ(Text(""), "");
}

TEST(Samples, HaveWholeLinesAndCzechLettersOfTheCodePage) {
  std::size_t longest = 0;
  for (const Sample& sample : Samples()) {
    const std::string text = Text(sample.key);
    longest = std::max(longest, text.size());
    EXPECT_FALSE(text.empty() || text.back() == '\n') << sample.key;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool first = text[i] == '\r', second = i > 0 && text[i - 1] == '\r';
      ASSERT_TRUE((text[i] == '\n') == second && (!first || i + 1 < text.size())) << sample.key << " at " << i;
      ASSERT_TRUE(static_cast<unsigned char>(text[i]) >= ' ' || first || second) << sample.key << " at " << i;
    }
    // Letters outside ASCII would be Windows-1250, of which UTF-8 is never a part.
    const bool plain = std::all_of(text.begin(), text.end(), [](char ch) { return CodeOf(ch) < 128; });
    EXPECT_EQ(plain, IsUtf8(text)) << sample.key;
    // A page with such letters tells its code page, or a browser shows them wrong.
    EXPECT_TRUE(plain || sample.key == "DIZ1" || Has(text, "charset=windows-1250")) << sample.key;
  }
  EXPECT_EQ(longest, Text("HTML5").size());
}

TEST(Samples, HomePageToTheByte) {
  EXPECT_EQ(Text("HTML1"),
            "<!DOCTYPE HTML PUBLIC \"-//IETF/DTD HTML v.m//EN\">\r\n"
            "<HTML>\r\n"
            " <HEAD>\r\n"
            "  <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1250\">\r\n"
            "  <META NAME=\"GENERATOR\" CONTENT=\"Orvilanths PELmar VEX v8.0.0.3a CZ\">\r\n"
            "  <TITLE>My HOMEPAGE</TITLE>\r\n"
            " </HEAD>\r\n"
            " <BODY BGCOLOR=\"#FFFFFF\" TEXT=\"#424242\" LINK=\"#FF7D00\" VLINK=\"#FFE100\" ALINK=\"#E1FF00\">\r\n"
            "  <H1> WELCOME ! </H1>\r\n"
            "  <HR ALIGN = \"CENTER\" NOSHADE Width = \"50%\">\r\n"
            "  <CENTER> <A HREF=\"mailto:a@b\" >Zamailujte mi!</A> </CENTER>\r\n"
            " </BODY>\r\n"
            "</HTML>");
}

TEST(Samples, SmallFilesToTheByte) {
  EXPECT_EQ(Text("INF1"),
            "[autorun]\r\nopen=autorun.exe\r\nicon=icon.ini\r\nshell\\readme\\command=notepad cti_mne.txt\r\n"
            "shell\\readme=&Informace o CD-ROM");
  EXPECT_EQ(Text("BAT2"),
            "wcmdmgrl.exe -stopproc\r\ndeltree backup\r\ndel data.wts\r\ndel wtlog.txt\r\ncall updatenow.bat\r\n"
            "all updatenow.bat");
  const std::string diz = Text("DIZ1");
  const std::string_view told =
      "XXX 1.0 for Windows XX\r\nFreeware. Freely distributable.\r\nDoes not expire. No installation required.\r\n\r\n"
      "This program does...\r\n...\r\n...\r\n\r\nCredits:\r\nMe\r\n\r\nAuthor: Jan Žižka\r\nE-Mail: a@b\r\nWeb:  "_w;
  EXPECT_EQ(diz.substr(0, told.size()), told);
  EXPECT_TRUE(Has(diz.substr(told.size()), "xxx")) << diz;
}

TEST(Samples, PagesHaveTheirParts) {
  ExpectInOrder("HTML2", {"<html>\r\n<head><title>COOL PAGE</title></head>\r\n<body bgcolor=\"#", "<font size=\"7\"",
                          "NADPIS", "<p>Odstavec ", "<p>Odstavec ", "<p>Odstavec ", "<pre", "!= \"&lt;\"",
                          "start = start - 1", "</pre>", "T.B.C.", "<tt>thanx</tt>", "</html>"});
  ExpectInOrder("HTML3", {"<TITLE>Stars</TITLE>",
                          "#8390FF",
                          "<TABLE",
                          "#92B6FF",
                          "<A HREF=\"prev.html\">Předchozí</A>"_w,
                          "<H3>Sekce</H3>",
                          "<H1>Nadpis</H1>",
                          "<A HREF=\"next.html\">Následující</A>"_w,
                          "</TABLE>",
                          "<HR>",
                          "<TABLE",
                          "<B><I>Quot: O čem to je</I></B><BR>"_w,
                          "</TABLE>",
                          "Menu : ",
                          "\"1.html\"",
                          "\"2.html\"",
                          "\"3.html\"",
                          "\"4.html\"",
                          "\"5.html\"",
                          "\"6.html\""});
  ExpectInOrder("HTML4", {"<TITLE>Goo page</TITLE>", "<CENTER>", "<FONT", "WIDTH=\"486\"", "#b4cfec",
                          "Some integersting text", "WIDTH=\"535\"", "#b4cfec", "HERE WE GO", "<UL>", "\"a.html\"",
                          "<I>new</I>", "\"b.html\"", "\"c.htm\"", "</UL>",
                          "<A HREF=\"1.html\">F1</A>&nbsp;||&nbsp;<A HREF=\"2.html\">F2</A>&nbsp;||&nbsp;"
                          "<A HREF=\"3.html\">F3</A>&nbsp;||&nbsp;<A HREF=\"4.html\">F4</A>"});
  for (const char* name : {"getAppVersion", "swtch", "randpage", "rim", "rimm", "makeArray", "randNum"})
    ExpectInOrder("HTML5", {"<TITLE>Web Site Main Menu</TITLE>", "<SCRIPT", "function " + std::string(name) + "(",
                            "</SCRIPT>", "onload=\"randpage()\">", "<TABLE", "<A HREF=", "<IMG", "</TABLE>"});
}

TEST(Samples, SettingsFilesHaveTheirParts) {
  ExpectInOrder("INI1", {"[AutoCAD General]\r\n", "ToolBarSize=16\r\n", "MonoVectors=0\r\n", "ACADMAXMEM=4000000\r\n"});
  std::vector<std::string> bars;
  for (int i = 1; i <= 26; ++i) bars.push_back("\r\nToolBar" + std::to_string(i) + "=");
  ExpectInOrder("INI1", {bars.begin(), bars.end()});
  EXPECT_TRUE(Has(Text("INI1"), "\r\nLastDrawing"));
  ExpectInOrder("INI2", {"[Settings]\r\nPreviewPages=2\r\n",
                         "[MailComposeToolBar-Summary]\r\nBars=3\r\nScreenCX=800\r\nScreenCY=600\r\n",
                         "[MailComposeToolBar-Bar0]\r\nBarID=", "[MailComposeToolBar-Bar1]\r\nBarID=",
                         "[MailComposeToolBar-Bar2]\r\nBarID=", "[MailComposeToolBar-Bar3]\r\nBarID="});
  ExpectInOrder("BAT1", {"@echo off\r\n", "PATH ", "SET BLASTER=A220 I5 D1 H5 P330 T6 \r\n",
                         "SET SOUND=C:\\PROGRA~1\\CREATIVE\\AUDIOAPP\r\n", "MOUSE"});
}

}  // namespace
}  // namespace pelmar
