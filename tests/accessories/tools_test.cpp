#include <gtest/gtest.h>

#include <cmath>

#include "accessories/analysis.h"
#include "accessories/color_math.h"
#include "accessories/morse.h"
#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

TEST(AnalyseText, RanksByCountAndThenByCode) {
  // A character of code 0 counts only in the length.
  const auto rows = AnalysisRows(AnalyseText(std::string_view("bbb aa\xFF\xFF\n\0", 10)));
  ASSERT_EQ(rows.size(), 255u);
  EXPECT_EQ(rows[0], "001 00003 030,00 098 \"b\"");
  EXPECT_EQ(rows[1], "002 00002 020,00 097 \"a\"");
  EXPECT_EQ(rows[3], "004 00001 010,00 010 \"\n\"");
  EXPECT_EQ(rows[254], "255 00000 000,00 254 \"\xFE\"");
}

using Graph = std::vector<std::pair<int, long>>;  // the place and the height of each bar

// The bars that rise above the lower edge.
Graph Bars(std::string_view text, bool wide, bool ignore_blank = false) {
  Graph rising;
  for (const Bar& bar : GraphBars(AnalyseText(text), wide, ignore_blank))
    if (bar.height != 0) rising.emplace_back(bar.x, std::lround(bar.height));
  return rising;
}

TEST(GraphBars, TheWideGraphHasABarForEachCodeThatOccurs) {
  EXPECT_EQ(Bars(std::string_view("aab\xFF\0\0\0", 7), true), (Graph{{194, 200}, {196, 100}, {510, 100}}));
  EXPECT_EQ(Bars("ab", true), (Graph{{194, 200}, {196, 200}}));
}

TEST(GraphBars, TheNarrowGraphShowsNoCodeThatOccursOnce) {  // required
  EXPECT_EQ(Bars("aaaabbc\xFF\xFF", false), (Graph{{388, 200}, {392, 100}}));
  EXPECT_EQ(Bars("aa\xFF\xFF\xFF\xFF", false), (Graph{{388, 100}}));  // the most frequent code is not in this graph
  EXPECT_EQ(GraphBars(AnalyseText("x"), false, false).size(), 127u);
}

TEST(GraphBars, IgnoredBlanksDoNotCountForTheScale) {
  EXPECT_EQ(Bars("    aab", true, true), (Graph{{194, 200}, {196, 100}}));
  EXPECT_EQ(Bars("    aabb", false, true), (Graph{{388, 200}, {392, 200}}));
  EXPECT_EQ(Bars("   ", true, true), Graph{});
}

TEST(CodeAt, CountsFromOneUnitLeftOfTheGraph) {
  EXPECT_EQ(CodeAt(-1, true), -1);
  EXPECT_EQ(CodeAt(260, false), 65);
}

TEST(ColorMath, EachCommandComputesItsColour) {
  EXPECT_EQ(HistoryRow(Darker({1, 5, 255})), "001,004,230");  // 4.5 and 229.5 go to the even neighbour
  EXPECT_EQ(HistoryRow(Lighter({5, 231, 232})), "006,254,255");
  EXPECT_EQ(HistoryRow(MeanToMiddle({255, 255, 0})), "213,213,000");
  EXPECT_EQ(HistoryRow(MeanToMiddle({255, 0, 0})), "255,043,043");
  EXPECT_EQ(HistoryRow(RandomChannels([] { return 0.999; })), "255,255,255");
  EXPECT_EQ(HistoryRow(LowestToZero({20, 30, 10})), "010,020,000");
  EXPECT_EQ(HistoryRow(LowestToZero({10, 10, 30})), "010,010,030");  // required: a tie changes nothing
  EXPECT_EQ(HistoryRow(HighestToFull({10, 55, 30})), "210,255,230");
  EXPECT_EQ(HistoryRow(FromHistoryRow("001,022,255")), "001,000,255");  // required: green is lost
}

TEST(Morse, EncodesEachCharacter) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"Chata CH", "----/..../.-/-/.-/-..-./----/..../"},
      {"\xC8h", "----/..../"},  // Čh counts as CH
      {"3.1+/", "...--///.----/+-..-./"},
      {"!\r\n;\xF9\xDD\xDF", "!\r\n;..-/-.--/\xDF"},  // ů Ý ß
      {",\":-?)(", ".-.-.-/.----./---.../-....-/..--../-.--.-/-.--.-/"},
      {"abcdefgijklm", ".-/-.../-.-./-.././..-./--./../.---/-.-/.-../--/"},
      {"hnopqrstuvwxyz", "..../-./---/.--./--.-/.-./.../-/..-/...-/.--/-..-/-.--/--../"},
      {"1234567890", ".----/..---/...--/....-/...../-..../--.../---../----./-----/"},
  };
  for (const auto& [text, morse] : cases) EXPECT_EQ(TextToMorse(text), morse) << text;
}

TEST(MorseMenus, HaveTheNamesAndSignsOfTheirLettersAndDigits) {
  for (const MorseMenu& menu : MorseMenus().first(2)) {
    for (const MorseItem& item : menu.items) {
      EXPECT_EQ(item.caption == "CH" ? "----/" : TextToMorse(item.caption), item.sign) << item.caption;
      EXPECT_EQ(ToUpper(item.name), "MNU" + std::string(item.caption));
    }
  }
}

TEST(MorseCommand, RewritesTheSelection) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  PutMarked(editor.text, "x [sos| y");
  editor.commands.Run("mnuMakeMorse");
  EXPECT_EQ(Marked(editor.text), "x .../---/.../| y");
  EXPECT_EQ(platform.calls, (std::vector<std::string>{"arrow 1", "arrow 0"}));
}

}  // namespace
}  // namespace pelmar
