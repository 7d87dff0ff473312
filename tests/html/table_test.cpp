#include <gtest/gtest.h>

#include "html/table_builder.h"
#include "html/table_tags.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// The opening tag of a table that has nothing else.
std::string OpeningTag(const TableSpec& spec) {
  const std::string table = BuildTable(spec, {});
  const std::size_t end = table.find("\r\n");
  EXPECT_EQ(table.substr(end), "\r\n<TR><TD></TD></TR>\r\n</TABLE>");
  return table.substr(0, end);
}

TEST(TableBuilder, WritesTheAttributesInTheirOrder) {
  using Border = TableSpec::Border;
  EXPECT_EQ(OpeningTag({}), "<TABLE>");
  EXPECT_EQ(OpeningTag({.width = " 1%",
                        .cols = "1",
                        .colspec = " L100% ",
                        .align = TableAlign::kLeft,
                        .border = Border{TableFrame::kNone, " 0"},
                        .rules = TableRules::kNone,
                        .cell_spacing = " 2",
                        .cell_padding = " 3"}),
            R"(<TABLE WIDTH="1%" COLS="1" COLSPEC=" L100% " ALIGN="LEFT" FRAME="NONE" BORDER="0" RULES="NONE")"
            R"( CELLSPACING="2" CELLPADDING="3">)");
  std::string words;
  for (const TableAlign align : {TableAlign::kLeft, TableAlign::kCenter, TableAlign::kRight})
    words += OpeningTag({.align = align});
  for (const TableFrame frame : {TableFrame::kAbove, TableFrame::kBelow, TableFrame::kAboveAndBelow, TableFrame::kLeft,
                                 TableFrame::kRight, TableFrame::kLeftAndRight, TableFrame::kBox})
    words += OpeningTag({.border = Border{frame, "1"}});
  for (const TableRules rules : {TableRules::kRows, TableRules::kColumns, TableRules::kAll})
    words += OpeningTag({.rules = rules});
  EXPECT_EQ(words, R"(<TABLE ALIGN="LEFT"><TABLE ALIGN="CENTER"><TABLE ALIGN="RIGHT"><TABLE FRAME="ABOVE" BORDER="1">)"
                   R"(<TABLE FRAME="BELOW" BORDER="1"><TABLE FRAME="HSIDES" BORDER="1"><TABLE FRAME="LHS" BORDER="1">)"
                   R"(<TABLE FRAME="RHS" BORDER="1"><TABLE FRAME="VSIDES" BORDER="1"><TABLE FRAME="BOX" BORDER="1">)"
                   R"(<TABLE RULES="ROWS"><TABLE RULES="COLS"><TABLE RULES="ALL">)");
}

TEST(TableBuilder, WritesCaptionRowsAndCells) {
  TableGrid grid;
  grid.CellText[2][1] = "x";
  grid.CellAttrs[1][2] = " NOWRAP";
  grid.RowAttrs[2] = "typed";  // what is typed without its blank stays without
  const std::pair<CaptionSide, std::string> sides[] = {{CaptionSide::kTop, "TOP"},
                                                       {CaptionSide::kBottom, "BOTTOM"},
                                                       {CaptionSide::kLeft, "LEFT"},
                                                       {CaptionSide::kRight, "RIGHT"}};
  for (const auto& [side, word] : sides)
    EXPECT_EQ(BuildTable({.columns = 2, .rows = 2, .caption = TableSpec::Caption{side, " <x> "}}, grid),
              "<TABLE>\r\n<CAPTION ALIGN=\"" + word +
                  "\"> <x> </CAPTION>\r\n<TR><TD></TD><TD>x</TD></TR>\r\n"
                  "<TRtyped><TD NOWRAP></TD><TD></TD></TR>\r\n</TABLE>");
}

TEST(TableTags, WriteTheAttributesOfARowAndACell) {
  const std::pair<CellAlignment, std::string> alignments[] = {
      {{}, ""},
      {{CellAlign::kLeft, ",", CellVAlign::kTop}, R"( ALIGN="LEFT" VALIGN="TOP")"},
      {{CellAlign::kCenter, ",", CellVAlign::kMiddle}, R"( ALIGN="CENTER" VALIGN="MIDDLE")"},
      {{CellAlign::kRight, ",", {}}, R"( ALIGN="RIGHT")"},
      {{CellAlign::kCharacter, ",", {}}, R"( ALIGN="CHAR" CHAR=",")"},
      {{CellAlign::kCharacter, "", CellVAlign::kBottom}, R"( ALIGN="CHAR" VALIGN="BOTTOM")"},
  };
  for (const auto& [alignment, attributes] : alignments) {
    const std::string row = RowTag({.alignment = alignment});
    EXPECT_EQ(row, "<TR" + attributes + ">");
    EXPECT_EQ(TagAttributes(row), attributes);  // what the builder of tables takes
    EXPECT_EQ(CellTag({.alignment = alignment}), "<TD" + attributes + ">");
    EXPECT_EQ(CellTag({.header = true,
                       .alignment = alignment,
                       .bgcolor = "#FF0000",
                       .colspan = "1",
                       .rowspan = "2",
                       .nowrap = true,
                       .width = "3"}),
              "<TH" + attributes + R"( BGCOLOR="#FF0000" COLSPAN="1" ROWSPAN="2" NOWRAP WIDTH="3">)");
  }
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
