#include <gtest/gtest.h>

#include "html/table_builder.h"
#include "html/table_tags.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(TableBuilder, EachAttributeOfTheOpeningTag) {
  struct Case {
    TableSpec spec;
    std::string_view tag;
  };
  using Border = TableSpec::Border;
  const Case cases[] = {
      {{}, "<TABLE>"},
      {{.width = " 80%"}, R"(<TABLE WIDTH="80%">)"},
      {{.width = " 300"}, R"(<TABLE WIDTH="300">)"},
      {{.cols = "20"}, R"(<TABLE COLS="20">)"},
      {{.colspec = " L100% "}, R"(<TABLE COLSPEC=" L100% ">)"},
      {{.align = TableAlign::kLeft}, R"(<TABLE ALIGN="LEFT">)"},
      {{.align = TableAlign::kCenter}, R"(<TABLE ALIGN="CENTER">)"},
      {{.align = TableAlign::kRight}, R"(<TABLE ALIGN="RIGHT">)"},
      {{.border = Border{TableFrame::kNone, " 0"}}, R"(<TABLE FRAME="NONE" BORDER="0">)"},
      {{.border = Border{TableFrame::kAbove, " 1"}}, R"(<TABLE FRAME="ABOVE" BORDER="1">)"},
      {{.border = Border{TableFrame::kBelow, " 1"}}, R"(<TABLE FRAME="BELOW" BORDER="1">)"},
      {{.border = Border{TableFrame::kAboveAndBelow, " 1"}}, R"(<TABLE FRAME="HSIDES" BORDER="1">)"},
      {{.border = Border{TableFrame::kLeft, " 1"}}, R"(<TABLE FRAME="LHS" BORDER="1">)"},
      {{.border = Border{TableFrame::kRight, " 1"}}, R"(<TABLE FRAME="RHS" BORDER="1">)"},
      {{.border = Border{TableFrame::kLeftAndRight, " 1"}}, R"(<TABLE FRAME="VSIDES" BORDER="1">)"},
      {{.border = Border{TableFrame::kBox, " 800"}}, R"(<TABLE FRAME="BOX" BORDER="800">)"},
      {{.rules = TableRules::kNone}, R"(<TABLE RULES="NONE">)"},
      {{.rules = TableRules::kRows}, R"(<TABLE RULES="ROWS">)"},
      {{.rules = TableRules::kColumns}, R"(<TABLE RULES="COLS">)"},
      {{.rules = TableRules::kAll}, R"(<TABLE RULES="ALL">)"},
      {{.cell_spacing = " 0"}, R"(<TABLE CELLSPACING="0">)"},
      {{.cell_padding = " 400"}, R"(<TABLE CELLPADDING="400">)"},
      {{.width = " 1%",
        .cols = "1",
        .colspec = "L100%",
        .align = TableAlign::kLeft,
        .border = Border{TableFrame::kNone, " 1"},
        .rules = TableRules::kAll,
        .cell_spacing = " 2",
        .cell_padding = " 3"},
       R"(<TABLE WIDTH="1%" COLS="1" COLSPEC="L100%" ALIGN="LEFT" FRAME="NONE" BORDER="1" RULES="ALL" CELLSPACING="2" CELLPADDING="3">)"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(BuildTable(c.spec, {}), std::string(c.tag) + "\r\n<TR><TD></TD></TR>\r\n</TABLE>");
}

TEST(TableBuilder, CaptionStandsOnALineOfItsOwn) {
  using Caption = TableSpec::Caption;
  const std::pair<CaptionSide, std::string_view> sides[] = {{CaptionSide::kTop, "TOP"},
                                                            {CaptionSide::kBottom, "BOTTOM"},
                                                            {CaptionSide::kLeft, "LEFT"},
                                                            {CaptionSide::kRight, "RIGHT"}};
  for (const auto& [side, word] : sides)
    EXPECT_EQ(
        BuildTable({.caption = Caption{side, " <x> "}}, {}),
        "<TABLE>\r\n<CAPTION ALIGN=\"" + std::string(word) + "\"> <x> </CAPTION>\r\n<TR><TD></TD></TR>\r\n</TABLE>");
}

TEST(TableBuilder, RowsAndCellsOfTheGrid) {
  TableGrid grid;
  grid.CellText[2][1] = "x";
  EXPECT_EQ(BuildTable({.columns = 2, .rows = 2}, grid),
            "<TABLE>\r\n<TR><TD></TD><TD>x</TD></TR>\r\n<TR><TD></TD><TD></TD></TR>\r\n</TABLE>");
  grid.CellAttrs[1][2] = " NOWRAP";
  grid.RowAttrs[2] = "typed";  // what is typed without its blank stays without
  EXPECT_EQ(BuildTable({.columns = 1, .rows = 2}, grid),
            "<TABLE>\r\n<TR><TD></TD></TR>\r\n<TRtyped><TD NOWRAP></TD></TR>\r\n</TABLE>");
}

TEST(TableTags, EachAttributeOfACell) {
  struct Case {
    CellSpec spec;
    std::string_view tag;
  };
  const auto character = [](std::string text) { return CellAlignment{CellAlign::kCharacter, std::move(text), {}}; };
  const Case cases[] = {
      {{}, "<TD>"},
      {{.header = true}, "<TH>"},
      {{.alignment = {CellAlign::kLeft, ",", {}}}, R"(<TD ALIGN="LEFT">)"},
      {{.alignment = {CellAlign::kCenter, ",", {}}}, R"(<TD ALIGN="CENTER">)"},
      {{.alignment = {CellAlign::kRight, ",", {}}}, R"(<TD ALIGN="RIGHT">)"},
      {{.alignment = character(",")}, R"(<TD ALIGN="CHAR" CHAR=",">)"},
      {{.alignment = character("")}, R"(<TD ALIGN="CHAR">)"},
      {{.alignment = {{}, "", CellVAlign::kTop}}, R"(<TD VALIGN="TOP">)"},
      {{.alignment = {{}, "", CellVAlign::kMiddle}}, R"(<TD VALIGN="MIDDLE">)"},
      {{.alignment = {{}, "", CellVAlign::kBottom}}, R"(<TD VALIGN="BOTTOM">)"},
      {{.bgcolor = "#000000"}, R"(<TD BGCOLOR="#000000">)"},
      {{.colspan = "2"}, R"(<TD COLSPAN="2">)"},
      {{.rowspan = "20"}, R"(<TD ROWSPAN="20">)"},
      {{.nowrap = true}, "<TD NOWRAP>"},
      {{.width = "100%"}, R"(<TD WIDTH="100%">)"},
      {{.header = true,
        .alignment = {CellAlign::kCharacter, ".", CellVAlign::kTop},
        .bgcolor = "#FF0000",
        .colspan = "1",
        .rowspan = "2",
        .nowrap = true,
        .width = "3"},
       R"(<TH ALIGN="CHAR" CHAR="." VALIGN="TOP" BGCOLOR="#FF0000" COLSPAN="1" ROWSPAN="2" NOWRAP WIDTH="3">)"},
  };
  for (const Case& c : cases) EXPECT_EQ(CellTag(c.spec), c.tag);
  EXPECT_EQ(RowTag({}), "<TR>");
  EXPECT_EQ(RowTag({.alignment = {CellAlign::kCharacter, "x", CellVAlign::kBottom}}),
            R"(<TR ALIGN="CHAR" CHAR="x" VALIGN="BOTTOM">)");
}

TEST(TableTags, TheBuilderTakesTheAttributesAlone) {
  EXPECT_EQ(TagAttributes("<TD>"), "");
  EXPECT_EQ(TagAttributes("<TD NOWRAP>"), " NOWRAP");
  EXPECT_EQ(TagAttributes(R"(<TR ALIGN="LEFT">)"), R"( ALIGN="LEFT")");
}

TEST(TableTags, ARowLeavesTheSelectionAndACellTakesItIn) {
  TextBuffer box;
  box.SetText("abc");
  box.Select(1, 3);
  InsertRow(box, {.alignment = {}, .cells = 3});
  EXPECT_EQ(box.Text(), "a<TR><TD>Buňka1</TD><TD>Buňka2</TD><TD>Buňka3</TD></TR>\r\nbc"_w);
  box.SetText("abc");
  box.Select(3, 1);
  WrapInCell(box, {.header = true});
  EXPECT_EQ(box.Text(), "a<TH>bc</TH>");
  box.SetText("");
  WrapInCell(box, {.nowrap = true});
  EXPECT_EQ(box.Text(), "<TD NOWRAP>Buňka</TD>"_w);
}

}  // namespace
}  // namespace pelmar
