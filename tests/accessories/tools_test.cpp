#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <set>

#include "accessories/analysis.h"
#include "accessories/color_math.h"
#include "accessories/morse.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

TEST(AnalyseText, RanksByCountAndThenByCode) {
  // Zeros count in the length alone.
  const auto rows = AnalysisRows(AnalyseText(std::string_view("bbb aa\xFF\xFF\n\0", 10)));
  ASSERT_EQ(rows.size(), 255u);
  const std::string_view first[] = {"001 00003 030,00 098 \"b\"",    "002 00002 020,00 097 \"a\"",
                                    "003 00002 020,00 255 \"\xFF\"", "004 00001 010,00 010 \"\n\"",
                                    "005 00001 010,00 032 \" \"",    "006 00000 000,00 001 \"\x01\""};
  for (std::size_t i = 0; i < std::size(first); ++i) EXPECT_EQ(rows[i], first[i]);
  EXPECT_EQ(rows[254], "255 00000 000,00 254 \"\xFE\"");
  for (const std::string& row : rows) EXPECT_EQ(CharOfRow(row), row[22]);  // the 23rd position
  // Halves are rounded up: 0.125.
  EXPECT_EQ(AnalysisRows(AnalyseText(std::string(799, 'b') + 'a'))[1], "002 00001 000,13 097 \"a\"");
  const std::string longer = AnalysisRows(AnalyseText(std::string(100000, 'q')))[0];
  EXPECT_EQ(longer + CharOfRow(longer), "001 100000 100,00 113 \"q\"q");
}

// The bars that rise above the lower edge, and how many don't.
std::string Bars(std::string_view text, bool wide, bool ignore_blank) {
  std::string rising;
  int lying = 0;
  for (const Bar& bar : GraphBars(AnalyseText(text), wide, ignore_blank)) {
    if (bar.height == 0) ++lying;
    if (bar.height != 0) rising += std::to_string(bar.x) + ':' + std::to_string(std::lround(bar.height)) + ' ';
  }
  return rising + std::to_string(lying);
}

TEST(GraphBars, ShowWhatTheirWidthCalls) {
  // required: the wide graph leaves out what doesn't occur, the narrow one what occurs once
  EXPECT_EQ(Bars("aab\xFF", true, false), "194:200 196:100 510:100 0");
  EXPECT_EQ(Bars("aaaabbc\xFF\xFF", false, false), "388:200 392:100 125");
  EXPECT_EQ(Bars("x", false, false), "127");
  EXPECT_EQ(Bars("aa\xFF\xFF\xFF\xFF", false, false), "388:100 127");  // the highest may stand beyond the narrow graph
  // Blanks that are ignored are left out of the scale too.
  EXPECT_EQ(Bars("    aab", true, true), "194:200 196:100 0");
  EXPECT_EQ(Bars("    aabb", false, true), "388:200 392:200 125");
  EXPECT_EQ(Bars("   ", true, true) + Bars("   ", false, true), "00");
}

TEST(CodeAt, CountsFromOneUnitLeft) {
  EXPECT_EQ((std::array{CodeAt(-1, true), CodeAt(0, true), CodeAt(129, true), CodeAt(260, false), CodeAt(508, true)}),
            (std::array{-1, 0, 65, 65, 254}));
}

TEST(ColorMath, Commands) {
  EXPECT_EQ(HistoryRow(Inverted({0, 100, 255})), "255,155,000");
  EXPECT_EQ(HistoryRow(ToGrey({1, 1, 3})), "001,001,001");
  EXPECT_EQ(HistoryRow(Rotated({1, 2, 3})), "002,003,001");
  EXPECT_EQ(HistoryRow(Darker({1, 5, 255})), "001,004,230");  // 4.5 and 229.5 go to the even neighbour
  EXPECT_EQ(HistoryRow(Lighter({5, 231, 232})), "006,254,255");
  EXPECT_EQ(HistoryRow(MeanToMiddle({200, 200, 200})), "128,128,128");
  EXPECT_EQ(HistoryRow(MeanToMiddle({255, 0, 0})), "255,043,043");
  EXPECT_EQ(HistoryRow(LowestToZero({10, 20, 30})), "000,010,020");
  EXPECT_EQ(HistoryRow(LowestToZero({20, 30, 10})), "010,020,000");
  EXPECT_EQ(HistoryRow(LowestToZero({10, 10, 30})), "010,010,030");  // required: a tie has no winner
  EXPECT_EQ(HistoryRow(HighestToFull({10, 55, 30})), "210,255,230");
  EXPECT_EQ(HistoryRow(HighestToFull({10, 55, 55})), "255,255,255");
  EXPECT_EQ(HistoryRow(FromHistoryRow("001,022,255")), "001,000,255");  // required: it loses green
  EXPECT_EQ(ColorOf(ChannelsOf(0x123456)), 0x123456);
  double draw = 0.0;
  EXPECT_EQ(HistoryRow(RandomChannels([&draw] { return (draw += 0.25) - 0.25; })), "000,064,128");
}

TEST(Morse, Encodes) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"Chata CH", "----/..../.-/-/.-/-..-./----/..../"},
      {"\xC8h", "----/..../"},  // Čh: the mark is gone before the look ahead
      {"ccc", "-.-./-.-./-.-./"},
      {"3.1+/", "...--///.----/+-..-./"},
      {"!\r\n;\xF9\xDD\xDF", "!\r\n;..-/-.--/\xDF"},  // ů Ý ß
      {",\":-?)(", ".-.-.-/.----./---.../-....-/..--../-.--.-/-.--.-/"},
      {"abcdefgijklm", ".-/-.../-.-./-.././..-./--./../.---/-.-/.-../--/"},
      {"hnopqrstuvwxyz", "..../-./---/.--./--.-/.-./.../-/..-/...-/.--/-..-/-.--/--../"},
      {"1234567890", ".----/..---/...--/....-/...../-..../--.../---../----./-----/"},
  };
  for (const auto& [text, morse] : cases) EXPECT_EQ(TextToMorse(text), morse) << text;
}

TEST(Morse, MenusHaveOneNameForEachItemAndTheSignsOfTheEncoder) {
  std::set<std::string_view> names;
  std::size_t items = 0;
  for (const MorseMenu& menu : MorseMenus()) {
    for (const MorseItem& item : menu.items) {
      names.insert(item.name);
      // The second letter of CH writes its own sign in a text; shortened digits and signs differ on purpose.
      if (++items <= 37 && item.caption != "CH") {
        EXPECT_EQ(item.sign, TextToMorse(item.caption));
      }
    }
  }
  EXPECT_EQ(names.size(), items);
}

TEST(Morse, CommandRewritesTheSelection) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  editor.text.SetText("x sos y");
  editor.commands.Run("mnuMakeMorse");  // nothing selected: nothing changes
  editor.text.Select(2, 5);
  platform.TakeCalls();
  editor.commands.Run("mnuMakeMorse");
  EXPECT_EQ(editor.text.Text(), "x .../---/.../ y");
  EXPECT_EQ(editor.text.Caret(), 14u);
  EXPECT_FALSE(editor.text.HasSelection());
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{"arrow 1", "arrow 0"}));
}

}  // namespace
}  // namespace pelmar
