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

TEST(Blocks, Paragraph) {
  EXPECT_EQ(Wrapped(Paragraph(Align::kLeft), ""), R"(<P ALIGN = "LEFT" > Odstavcový text </P>)"_w);
  EXPECT_EQ(Wrapped(Paragraph(Align::kCenter), "x"), R"(<P ALIGN = "CENTER" > x </P>)");
  EXPECT_EQ(Wrapped(Paragraph(Align::kRight), "x"), R"(<P ALIGN = "RIGHT" > x </P>)");
}

TEST(Blocks, HorizontalRule) {
  const std::pair<RuleSpec, std::string_view> cases[] = {
      {{}, "<HR>"},
      {{Align::kCenter, true, " 50%"}, R"(<HR ALIGN = "CENTER" NOSHADE Width = "50%">)"},
      {{Align::kNone, false, "1%"}, R"(<HR Width = "1%">)"},
      {{Align::kLeft, false, "640"}, R"(<HR ALIGN = "LEFT" Width = "640">)"},
      {{Align::kRight, true, ""}, R"(<HR ALIGN = "RIGHT" NOSHADE>)"},
  };
  for (const auto& [spec, rule] : cases) EXPECT_EQ(HorizontalRule(spec), rule);
}

TEST(Blocks, Heading) {
  EXPECT_EQ(Wrapped(Heading({" 3", Align::kCenter, true}), "x"), R"(<H3 NOWRAP ALIGN = "CENTER"> x </H3>)");
  EXPECT_EQ(Wrapped(Heading({" 1", Align::kNone, false}), ""), "<H1> Nadpisový text </H1>"_w);
  EXPECT_EQ(Wrapped(Heading({"6", Align::kLeft, false}), ""), R"(<H6 ALIGN = "LEFT"> Nadpisový text </H6>)"_w);
}

TEST(Blocks, Font) {
  EXPECT_EQ(Wrapped(Font({}), ""), "<FONT> fontové písmo </FONT>"_w);
  const FontSpec all{7, "Times", "#FF0000"};
  EXPECT_EQ(Wrapped(Font(all), "x"), R"(<FONT SIZE="7" FACE="Times" COLOR="#FF0000">x</FONT>)");
  EXPECT_EQ(Wrapped(Font(all), ""), R"(<FONT SIZE="7" FACE="Times" COLOR="#FF0000"> fontové písmo </FONT>)"_w);
  EXPECT_EQ(Wrapped(Font({std::nullopt, "", std::nullopt}), "x"), R"(<FONT FACE="">x</FONT>)");
}

TEST(Blocks, FragmentsOfOneText) {
  EXPECT_EQ(LinedHeading("Nadpis"),
            R"(<HR ALIGN = "LEFT" Width = "60%"><H2>Nadpis</H2><HR ALIGN = "RIGHT" Width = "60%">)");
  EXPECT_EQ(TableHeading("Nadpis"),
            "<table border=\"0\" width=\"100%\">\r\n<tr><td width=\"33%\"><hr></td><td align=\"center\">Nadpis</td><td "
            "width=\"33%\"><hr></td></tr>\r\n</table>");
  EXPECT_EQ(Fraction("A", "B"), "<SUP>A</SUP>/<SUB>B</SUB>");
  EXPECT_EQ(CommentText("x"), "<! x >");
  EXPECT_EQ(CharacterReference(0), "&#0;");
  EXPECT_EQ(CharacterReference(255), "&#255;");
}

TEST(Blocks, SmileyLosesTheBlanksAtItsEndsOnly) {
  EXPECT_EQ(Smiley({" ", ":", "-", ")", " "}), ":-)");
  EXPECT_EQ(Smiley({"<", "§", " ", ">", "="}), "<§ >=");
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
