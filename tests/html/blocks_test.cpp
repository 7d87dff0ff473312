#include "html/blocks.h"

#include <gtest/gtest.h>

#include "text/codepage.h"

namespace pelmar {
namespace {

std::string Wrapped(const Wrapping& wrapping, std::string_view selection) {
  TextBuffer text;
  text.SetText(std::string(selection));
  text.Select(0, selection.size());
  WrapSelection(text, wrapping);
  return text.Text();
}

TEST(Blocks, WrapTheSelectionOrTheirSample) {
  const FontSpec all{7, "Times", "#FF0000"};
  const std::tuple<Wrapping, std::string_view, std::string_view> cases[] = {
      {Paragraph(Align::kLeft), "", R"(<P ALIGN = "LEFT" > Odstavcový text </P>)"_w},
      {Paragraph(Align::kCenter), "x", R"(<P ALIGN = "CENTER" > x </P>)"},
      {Heading({" 3", Align::kRight, true}), "x", R"(<H3 NOWRAP ALIGN = "RIGHT"> x </H3>)"},
      {Heading({"6", Align::kNone, false}), "", "<H6> Nadpisový text </H6>"_w},
      {Font({}), "", "<FONT> fontové písmo </FONT>"_w},
      {Font(all), "x", R"(<FONT SIZE="7" FACE="Times" COLOR="#FF0000">x</FONT>)"},
      {Font(all), "", R"(<FONT SIZE="7" FACE="Times" COLOR="#FF0000"> fontové písmo </FONT>)"_w},
  };
  for (const auto& [wrapping, selection, written] : cases) EXPECT_EQ(Wrapped(wrapping, selection), written);
}

TEST(Blocks, FragmentsOfOneText) {
  EXPECT_EQ(HorizontalRule({}), "<HR>");
  EXPECT_EQ(HorizontalRule({Align::kCenter, true, " 50%"}), R"(<HR ALIGN = "CENTER" NOSHADE Width = "50%">)");
  EXPECT_EQ(HorizontalRule({Align::kNone, false, ""}), "<HR>");
  EXPECT_EQ(LinedHeading("Nadpis"),
            R"(<HR ALIGN = "LEFT" Width = "60%"><H2>Nadpis</H2><HR ALIGN = "RIGHT" Width = "60%">)");
  EXPECT_EQ(TableHeading("Nadpis"),
            "<table border=\"0\" width=\"100%\">\r\n<tr><td width=\"33%\"><hr></td><td align=\"center\">Nadpis</td><td "
            "width=\"33%\"><hr></td></tr>\r\n</table>");
  EXPECT_EQ(Fraction("A", "B"), "<SUP>A</SUP>/<SUB>B</SUB>");
  EXPECT_EQ(CommentText("x"), "<! x >");  // required
  EXPECT_EQ(CharacterReference(255), "&#255;");
  EXPECT_EQ(Smiley({" ", ":", " ", ")", " "}), ": )");
}

TEST(Blocks, DoctypeGoesBeforeTheWholeText) {
  TextBuffer text;
  text.SetText("<!DOCTYPE old>");
  text.Select(3, 9);
  PutDoctype(text, "<!DOCTYPE new>");
  EXPECT_EQ(text.Text(), "<!DOCTYPE new>\r\n<!DOCTYPE old>");
  EXPECT_EQ(text.SelStart(), 0u);
  EXPECT_FALSE(text.HasSelection());
  EXPECT_TRUE(text.Undo());
  EXPECT_EQ(text.Text(), "<!DOCTYPE old>");
}

}  // namespace
}  // namespace pelmar
