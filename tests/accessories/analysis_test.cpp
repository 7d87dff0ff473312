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
  // Zeros count in the length alone.
  const auto rows = AnalysisRows(AnalyseText(std::string_view("bbb aa\xFF\xFF\n\0", 10)));
  ASSERT_EQ(rows.size(), 255u);
  const std::string_view first[] = {"001 00003 030,00 098 \"b\"",    "002 00002 020,00 097 \"a\"",
                                    "003 00002 020,00 255 \"\xFF\"", "004 00001 010,00 010 \"\n\"",
                                    "005 00001 010,00 032 \" \"",    "006 00000 000,00 001 \"\x01\""};
  for (std::size_t i = 0; i < std::size(first); ++i) EXPECT_EQ(rows[i], first[i]);
  EXPECT_EQ(rows[254], "255 00000 000,00 254 \"\xFE\"");
  for (const std::string& row : rows) EXPECT_EQ(CharOfRow(row), row[22]);  // the 23rd position
  EXPECT_EQ(CharOfRow("001 100000 100,00 113 \"q\""), 'q');
  // Halves are rounded up: 0.125.
  EXPECT_EQ(AnalysisRows(AnalyseText(std::string(799, 'b') + 'a'))[1], "002 00001 000,13 097 \"a\"");
  EXPECT_EQ(AnalysisRows(AnalyseText(std::string(100000, 'q')))[0], "001 100000 100,00 113 \"q\"");
  EXPECT_TRUE(AnalysisRows(AnalyseText("")).empty());
}

TEST(GraphBars, ShowWhatTheirWidthCalls) {
  // required: the wide graph leaves out what doesn't occur, the narrow one what occurs once
  EXPECT_EQ(Bars("aab\xFF", true, false), (std::vector<Bar>{{194, 200}, {196, 100}, {510, 100}}));
  EXPECT_EQ(Rising(Bars("aaaabbc\xFF\xFF", false, false)), (std::vector<Bar>{{388, 200}, {392, 100}}));
  // The highest bar may stand beyond the narrow graph.
  EXPECT_EQ(Rising(Bars("aa\xFF\xFF\xFF\xFF", false, false)), (std::vector<Bar>{{388, 100}}));
  EXPECT_EQ(Bars("x", false, false).size(), 127u);
  EXPECT_TRUE(Rising(Bars("x", false, false)).empty());
  // Blanks that are ignored are left out of the scale too.
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
