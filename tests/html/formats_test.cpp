// The texts that the dialogs write, with their oddities and limits, and the samples.
#include <gtest/gtest.h>

#include "html/attributes.h"
#include "html/blocks.h"
#include "html/frames.h"
#include "html/image.h"
#include "html/link.h"
#include "html/lists.h"
#include "html/page.h"
#include "html/samples/templaty.h"
#include "html/table_builder.h"
#include "html/table_tags.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// Calls the function with a document of the selected text, and returns the new document.
template <class Function, class Spec>
std::string Apply(Function write, const Spec& spec, std::string_view selected) {
  TextBuffer text;
  text.SetText(std::string(selected));
  text.Select(0, text.Size());
  write(text, spec);
  return text.Text();
}
constexpr auto kWrap = [](TextBuffer& document, const Wrapping& tag) { WrapSelection(document, tag); };

using Cases = std::vector<std::pair<std::string, std::string>>;

void ExpectWritten(const Cases& cases) {
  for (const auto& [written, expected] : cases) EXPECT_EQ(ToUtf8(written), expected);
}

TEST(HtmlOutput, IsExactForBlocksAndFragments) {
  ExpectWritten({
      {Apply(kWrap, Paragraph(Align::kLeft), ""), R"(<P ALIGN = "LEFT" > Odstavcový text </P>)"},
      {Apply(kWrap, Heading({" 3", Align::kRight, true}), "x"), R"(<H3 NOWRAP ALIGN = "RIGHT"> x </H3>)"},
      {Apply(kWrap, Heading({"6", Align::kNone, false}), ""), "<H6> Nadpisový text </H6>"},
      {Apply(kWrap, Font({}), ""), "<FONT> fontové písmo </FONT>"},  // required: blanks around the sample only
      {HorizontalRule({Align::kCenter, true, " 50%"}), R"(<HR ALIGN = "CENTER" NOSHADE Width = "50%">)"},
      {TableHeading("x"),
       "<table border=\"0\" width=\"100%\">\r\n<tr><td width=\"33%\"><hr></td>"
       "<td align=\"center\">x</td><td width=\"33%\"><hr></td></tr>\r\n</table>"},
      {LinedHeading("x"), R"(<HR ALIGN = "LEFT" Width = "60%"><H2>x</H2><HR ALIGN = "RIGHT" Width = "60%">)"},
      {Fraction("A", "B"), "<SUP>A</SUP>/<SUB>B</SUB>"},
      {CommentText("x"), "<! x >"},  // required
      {Smiley({" ", ":", " ", ")", " "}), ": )"},
      {BuildList({ListKind::kBullets, 2, false, {}, {"a"}}), "<UL TYPE=\"square\">\r\n<LI>a</LI>\r\n</UL>"},
      {BuildList({ListKind::kNumbers, 4, true, "", {}}), "<OL TYPE=\"i\" COMPACT>\r\n<LH></LH>\r\n</OL>"},
      {BuildDefinitionList({"a"}, {"c", "d"}), "<DL>\r\n<DT>a</DT>\r\n<DD>c</DD>\r\n<DT></DT>\r\n<DD>d</DD>\r\n</DL>"},
  });
}

TEST(HtmlOutput, IsExactForPathsLinksImagesAndFrames) {
  // Path, whether it is relative, ALT, ALIGN, WIDTH and HEIGHT, VSPACE and HSPACE, BORDER, LOWSRC, USEMAP.
  const ImageSpec image{
      "b",  true,      "a \"b\" <", ImageAlign::kLeft, ImageSpec::Size{" 10%", " 20"}, ImageSpec::Space{" 3", " 4"},
      " 5", "low.jpg", "#mapa"};
  ExpectWritten({
      {FileAddress("C:\\a\\b c.gif", false), "file:///C:/a/b c.gif"},
      {FileAddress("a\\b.gif", true), "a/b.gif"},
      // Only characters outside the code page and bytes that aren't UTF-8 are encoded.
      {LinkText("/moje složka/50%#.htm"), "/moje složka/50%#.htm"},
      {LinkText("Жč?😀k\xF9.htm"), "%D0%96č?%F0%9F%98%80k%F9.htm"},
      {LinkText("\xF2\xC5"), "%F2%C5"},
      {AnchorTag("Kotva 1"), R"(<A NAME="Kotva 1"></A>)"},
      {Apply(kWrap, LinkToAnchor("x"), " "), R"(<A HREF="#x"> </A>)"},
      {Apply(kWrap, LinkToAnchor("část"_w), ""), R"(<A HREF="#část">Odkaz na část</A>)"},
      {Apply(kWrap, LinkToMail("a@b"), ""), R"(<A HREF="mailto:a@b" >mailto na a@b</A>)"},  // required: the blank
      {Apply(kWrap, LinkToDocument({"x.htm", "a", "_top"}), ""),
       R"(<A HREF="x.htm#a" TARGET="_top">Odkaz na x.htm#a</A>)"},
      {Apply(kWrap, LinkToDocument({"x.htm", "", ""}), "x"), R"(<A HREF="x.htm" TARGET="">x</A>)"},
      {Apply(kWrap, LinkToDocument({"", "a", {}}), "x"), R"(<A HREF="#a">x</A>)"},
      {ImageTag(image), R"(<IMG SRC="b" ALT="a "b" <" ALIGN="left" WIDTH="10%" HEIGHT="20" VSPACE="3" HSPACE="4")"
                        R"( BORDER="5" LOWSRC="low.jpg" USEMAP="#mapa">)"},
      // required: SCROLLING appears twice, the second time exactly as typed
      {FrameTag({.path = "a", .relative = true, .scrolling = "  no", .margins = FrameSpec::Margins{" 0", " 3"}}),
       R"(<FRAME SRC="a" SCROLLING="no" MARGINHEIGHT="0" MARGINWIDTH="3" SCROLLING="  no">)"},
  });
}

TEST(HtmlOutput, IsExactForTables) {
  TableGrid grid;
  grid.cell_text[2][1] = "x";
  grid.cell_attrs[1][2] = " NOWRAP";
  grid.row_attrs[2] = "typed";  // nothing puts a blank before typed attributes
  const CellAlignment by_character{CellAlign::kCharacter, ",", CellVAlign::kBottom};
  ExpectWritten({
      {BuildTable({.columns = 2, .rows = 2}, grid),
       "<TABLE>\r\n<TR><TD></TD><TD>x</TD></TR>\r\n<TRtyped><TD NOWRAP></TD><TD></TD></TR>\r\n</TABLE>"},
      {TagAttributes(RowTag({})), ""},  // the table builder stores the attributes without the tag
      {TagAttributes(RowTag({.alignment = by_character})), R"( ALIGN="CHAR" CHAR="," VALIGN="BOTTOM")"},
      {RowTag({.alignment = {CellAlign::kCharacter, "", {}}}), R"(<TR ALIGN="CHAR">)"},
      {RowTag({.alignment = {CellAlign::kRight, ",", {}}}), R"(<TR ALIGN="RIGHT">)"},
      {Apply(WrapInCell, CellSpec{}, ""), "<TD>Buňka</TD>"},
      {CellTag({true, {CellAlign::kCenter, "", CellVAlign::kTop}, "#FFFFFF", "2", "3", true, "50%"}),
       R"(<TH ALIGN="CENTER" VALIGN="TOP" BGCOLOR="#FFFFFF" COLSPAN="2" ROWSPAN="3" NOWRAP WIDTH="50%">)"},
      {Apply(InsertRow, RowSpec{.cells = 2}, "x"), "<TR><TD>Buňka1</TD><TD>Buňka2</TD></TR>\r\nx"},
  });
}

TEST(HtmlOutput, IsExactForPagesAndFramesetsAroundTheDocument) {
  PageSpec spec;
  spec.author = "Jan Novák"_w;
  spec.created = "11-24-2026 09:05:00";
  spec.title = "ž"_w;
  spec.background = "a.gif";  // required: a bare file name gets "file:///" too
  spec.link = "#000001";
  spec.vlink = "#000002";
  spec.alink = "#000003";
  spec.base_font = 7;
  const std::string code_page =
      "  <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1250\">\r\n"
      "  <META NAME=\"GENERATOR\" CONTENT=\"Orvilanths PELmar VEX v8.9.2.1b CZ\">\r\n";
  const std::string page =
      "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Final//EN\">\r\n <HEAD>\r\n" + code_page +
      "  <META NAME=\"AUTHOR\" CONTENT=\"Jan Novák\">\r\n  <META NAME=\"CREATED\" CONTENT=\"11-24-2026 09:05:00\">\r\n"
      "  <TITLE>ž</TITLE>\r\n </HEAD>\r\n <BODY";
  const std::string frameset = "<!DOCTYPE HTML PUBLIC \"-//IETF/DTD HTML v.m//EN\">\r\n<HTML>\r\n <HEAD>\r\n" +
                               code_page + "  <TITLE>t</TITLE>\r\n </HEAD>\r\n <FRAMESET";
  ExpectWritten({
      {Apply(WrapInPage, spec, ""),
       page + " BACKGROUND=\"file:///a.gif\" LINK=\"#000001\" VLINK=\"#000002\" ALINK=\"#000003\">\r\n<BASEFONT "
              "SIZE=\"7\">\r\n---TEXT---\r\n\r\n </BODY>\r\n</HTML>"},
      {Apply(WrapInFrameset, FramesetSpec{"1,*", "2,*", "t"}, "x\r\ny"),  // required: ROWS for the columns too
       frameset + " ROWS=\"1,*\" ROWS=\"2,*\">\r\n </FRAMESET>\r\n <NOFRAMES>\r\nx\r\ny\r\n </NOFRAMES>\r\n</HTML>"},
  });
}

TEST(Samples, HaveTheRequiredKeysTextsFileNamesAndLengths) {
  const struct {
    const char *key, *text, *file_name;
    std::size_t bytes;
  } rows[] = {
      {"HTML1", "Jednoduchý HTML dokument 1", "test1.html", 498},
      {"HTML2", "Jednoduchý HTML dokument 2", "test2.html", 1357},
      {"HTML3", "Jednoduchý HTML dokument 3", "test3.html", 1292},
      {"HTML4", "Jednoduchý HTML dokument 4", "test4.html", 1489},
      {"INI1", "Inicializační soubor 1", "acad.ini", 763},
      {"INI2", "Inicializační soubor 2", "netscape.ini", 262},
      {"INF1", "Autorun", "autorun.inf", 118},
      {"HTML5", "HTML s javascriptem", "java.html", 3582},
      {"BAT1", "Dávkový soubor 1", "autoexec.bat", 175},
      {"BAT2", "Dávkový soubor 2", "cleanup.bat", 106},
      {"DIZ1", "info", "file_ID.diz", 213},
  };
  SettingsRecord profile;
  profile.UserName = "Jan Žižka"_w;
  profile.UserEmail = "a@b";
  ASSERT_EQ(Samples().size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(Samples()[i].key, rows[i].key);
    EXPECT_EQ(ToUtf8(Samples()[i].text), rows[i].text);
    EXPECT_EQ(Samples()[i].file_name, rows[i].file_name);
    EXPECT_EQ(SampleText(rows[i].key, profile).size(), rows[i].bytes) << rows[i].key;
  }
}

}  // namespace
}  // namespace pelmar
