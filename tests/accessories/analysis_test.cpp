#include "accessories/analysis.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

std::vector<Bar> Bars(std::string_view text, bool wide, bool ignore_blank) {
  return GraphBars(AnalyseText(text), wide, ignore_blank);
}

// The bars that rise above the lower edge.
std::vector<Bar> Rising(std::vector<Bar> bars) {
  std::erase_if(bars, [](const Bar& bar) { return bar.height == 0; });
  return bars;
}

TEST(AnalyseText, RanksByCountAndThenByCode) {
  const auto rows = AnalysisRows(AnalyseText("bbb aa\xFF\xFF\r\n"));
  ASSERT_EQ(rows.size(), 255u);
  EXPECT_EQ(rows[0], "001 00003 030,00 098 \"b\"");
  EXPECT_EQ(rows[1], "002 00002 020,00 097 \"a\"");
  EXPECT_EQ(rows[2], "003 00002 020,00 255 \"\xFF\"");
  EXPECT_EQ(rows[3], "004 00001 010,00 010 \"\n\"");
  EXPECT_EQ(rows[4], "005 00001 010,00 013 \"\r\"");
  EXPECT_EQ(rows[5], "006 00001 010,00 032 \" \"");
  EXPECT_EQ(rows[6], "007 00000 000,00 001 \"\x01\"");
  EXPECT_EQ(rows[254], "255 00000 000,00 254 \"\xFE\"");
  for (const std::string& row : rows) EXPECT_EQ(CharOfRow(row), row[22]);  // the 23rd position
}

TEST(AnalyseText, CountsZerosInTheLengthOnly) {
  const auto rows = AnalysisRows(AnalyseText(std::string_view("a\0\0", 3)));
  EXPECT_EQ(rows[0], "001 00001 033,33 097 \"a\"");
  EXPECT_EQ(rows[1], "002 00000 000,00 001 \"\x01\"");
}

TEST(AnalyseText, RoundsHalvesUpAndOutgrowsItsColumns) {
  std::string text(799, 'b');
  text += 'a';
  EXPECT_EQ(AnalysisRows(AnalyseText(text))[1], "002 00001 000,13 097 \"a\"");  // 0.125
  EXPECT_EQ(AnalysisRows(AnalyseText(std::string(100000, 'q')))[0], "001 100000 100,00 113 \"q\"");
  EXPECT_EQ(CharOfRow("001 100000 100,00 113 \"q\""), 'q');
  EXPECT_TRUE(AnalysisRows(AnalyseText("")).empty());
}

TEST(GraphBars, TheWideGraphShowsEveryCodeThatOccurs) {
  EXPECT_EQ(Bars("aab\xFF", true, false), (std::vector<Bar>{{194, 200}, {196, 100}, {510, 100}}));
  EXPECT_EQ(Bars("x", true, false), (std::vector<Bar>{{240, 200}}));
}

TEST(GraphBars, TheNarrowGraphLeavesOutWhatOccursOnce) {
  EXPECT_EQ(Rising(Bars("aaaabbc\xFF\xFF", false, false)), (std::vector<Bar>{{388, 200}, {392, 100}}));
  // The highest bar may stand beyond the narrow graph.
  EXPECT_EQ(Rising(Bars("aa\xFF\xFF\xFF\xFF", false, false)), (std::vector<Bar>{{388, 100}}));
  const auto single = Bars("x", false, false);
  EXPECT_EQ(single.size(), 127u);
  EXPECT_TRUE(Rising(single).empty());
}

TEST(GraphBars, IgnoringBlanksLeavesThemOutOfTheScaleToo) {
  EXPECT_EQ(Bars("    aab", true, true), (std::vector<Bar>{{194, 200}, {196, 100}}));
  EXPECT_EQ(Rising(Bars("    aabb", false, true)), (std::vector<Bar>{{388, 200}, {392, 200}}));
  EXPECT_TRUE(Bars("   ", true, true).empty());
  EXPECT_TRUE(Bars("   ", false, true).empty());
}

TEST(CodeAt, CountsFromOneUnitLeft) {
  EXPECT_EQ(CodeAt(-1, true), -1);
  EXPECT_EQ(CodeAt(0, true), 0);
  EXPECT_EQ(CodeAt(129, true), 65);
  EXPECT_EQ(CodeAt(260, false), 65);
  EXPECT_EQ(CodeAt(kGraphWidth, true), 254);
  EXPECT_EQ(PointedText(65), "Poloha: 65 Znak: \"A\"");
}

}  // namespace
}  // namespace pelmar
