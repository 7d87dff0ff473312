#include "html/page.h"

#include <gtest/gtest.h>

#include "html/frames.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::string_view kPageHead =
    "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Final//EN\">\r\n"
    " <HEAD>\r\n"
    "  <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1250\">\r\n"
    "  <META NAME=\"GENERATOR\" CONTENT=\"Orvilanths PELmar VEX v8.9.2.1b CZ\">\r\n"
    "  <META NAME=\"AUTHOR\" CONTENT=\"Jan Novák\">\r\n"
    "  <META NAME=\"CREATED\" CONTENT=\"11-24-2026 09:05:00\">\r\n"
    "  <TITLE>Stránka </TITLE>\r\n"
    " </HEAD>\r\n"_w;
constexpr std::string_view kPageTail = "\r\n\r\n </BODY>\r\n</HTML>";

PageSpec Page() {
  PageSpec spec;
  spec.author = "Jan Novák"_w;
  spec.created = "11-24-2026 09:05:00";
  spec.title = "Stránka "_w;
  return spec;
}

std::string Join(std::initializer_list<std::string_view> pieces) {
  std::string joined;
  for (const std::string_view piece : pieces) joined += piece;
  return joined;
}

TEST(Page, AnEmptyDocumentGetsAMarker) {
  TextBuffer box;
  WrapInPage(box, Page());
  EXPECT_EQ(box.Text(), Join({kPageHead, " <BODY>\r\n---TEXT---", kPageTail}));
  EXPECT_EQ(box.SelText(), "---TEXT---");
}

TEST(Page, TheDocumentIsWrappedAndSelectedEachTime) {
  TextBuffer box;
  box.SetText("a\r\nb");
  WrapInPage(box, Page());
  const std::string once(box.Text());
  EXPECT_EQ(once, Join({kPageHead, " <BODY>\r\na\r\nb", kPageTail}));
  EXPECT_EQ(box.SelText(), "a\r\nb");
  WrapInPage(box, Page());
  EXPECT_EQ(box.Text(), Join({kPageHead, " <BODY>\r\n", once, kPageTail}));
  EXPECT_EQ(box.SelText(), once);
  box.Undo();
  box.Undo();
  EXPECT_EQ(box.Text(), "a\r\nb");
}

TEST(Page, BodyAttributesInTheirOrder) {
  struct Case {
    void (*change)(PageSpec&);
    std::string_view body;
  };
  const Case cases[] = {
      {[](PageSpec& s) { s.background = "a.gif"; }, " <BODY BACKGROUND=\"file:///a.gif\">\r\n"},
      {[](PageSpec& s) { s.background = "C:\\pic\\a.gif"; }, " <BODY BACKGROUND=\"file:///C:/pic/a.gif\">\r\n"},
      {[](PageSpec& s) { s.background = "/pic/a b.gif"; }, " <BODY BACKGROUND=\"file:///pic/a b.gif\">\r\n"},
      {[](PageSpec& s) { s.bgcolor = "#000000"; }, " <BODY BGCOLOR=\"#000000\">\r\n"},
      {[](PageSpec& s) { s.text = "#000001"; }, " <BODY TEXT=\"#000001\">\r\n"},
      {[](PageSpec& s) { s.link = "#000002"; }, " <BODY LINK=\"#000002\">\r\n"},
      {[](PageSpec& s) { s.vlink = "#000003"; }, " <BODY VLINK=\"#000003\">\r\n"},
      {[](PageSpec& s) { s.alink = "#000004"; }, " <BODY ALINK=\"#000004\">\r\n"},
      {[](PageSpec& s) { s.base_font = 1; }, " <BODY>\r\n<BASEFONT SIZE=\"1\">\r\n"},
      {[](PageSpec& s) {
         s.background = "x";
         s.bgcolor = "1";
         s.text = "2";
         s.link = "3";
         s.vlink = "4";
         s.alink = "5";
         s.base_font = 7;
       },
       " <BODY BACKGROUND=\"file:///x\" BGCOLOR=\"1\" TEXT=\"2\" LINK=\"3\" VLINK=\"4\" ALINK=\"5\">\r\n"
       "<BASEFONT SIZE=\"7\">\r\n"},
  };
  for (const Case& c : cases) {
    PageSpec spec = Page();
    c.change(spec);
    TextBuffer box;
    box.SetText("x");
    WrapInPage(box, spec);
    EXPECT_EQ(box.Text(), Join({kPageHead, c.body, "x", kPageTail}));
  }
}

constexpr std::string_view kFramesetHead =
    "<!DOCTYPE HTML PUBLIC \"-//IETF/DTD HTML v.m//EN\">\r\n"
    "<HTML>\r\n"
    " <HEAD>\r\n"
    "  <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1250\">\r\n"
    "  <META NAME=\"GENERATOR\" CONTENT=\"Orvilanths PELmar VEX v8.9.2.1b CZ\">\r\n"
    "  <TITLE>Titulek</TITLE>\r\n"
    " </HEAD>\r\n";

TEST(Frameset, RowsColumnsAndTheDocument) {
  struct Case {
    FramesetSpec spec;
    std::string_view document, tag, body;
  };
  const Case cases[] = {
      {{{}, {}, "Titulek"}, "", " <FRAMESET>", "Tento Prohlížeč nepodporuje Framesy"_w},
      {{"*,50%,50", {}, "Titulek"}, "x", R"( <FRAMESET ROWS="*,50%,50">)", "x"},
      {{{}, "*,50%,50", "Titulek"}, "x\r\ny", R"( <FRAMESET ROWS="*,50%,50">)", "x\r\ny"},
      {{"1,*", "2,*", "Titulek"}, " ", R"( <FRAMESET ROWS="1,*" ROWS="2,*">)", " "},
  };
  for (const Case& c : cases) {
    TextBuffer box;
    box.SetText(std::string(c.document));
    WrapInFrameset(box, c.spec);
    EXPECT_EQ(box.Text(), Join({kFramesetHead, c.tag, "\r\n </FRAMESET>\r\n <NOFRAMES>\r\n", c.body,
                                "\r\n </NOFRAMES>\r\n</HTML>"}));
    EXPECT_EQ(box.SelText(), c.body);
  }
}

TEST(Frame, EachAttribute) {
  struct Case {
    FrameSpec spec;
    std::string_view attributes;
  };
  using Margins = FrameSpec::Margins;
  const Case cases[] = {
      {{.path = "C:/a.htm"}, R"("file:///C:/a.htm">)"},
      {{.path = "/a.htm"}, R"("file:///a.htm">)"},
      {{.path = "a.htm", .relative = true}, R"("a.htm">)"},
      {{.path = "a", .relative = true, .name = "Rám"}, "\"a\" NAME=\"Rám\">"},
      {{.path = "a", .relative = true, .align = " LEFT"}, R"("a" ALIGN=" LEFT">)"},
      {{.path = "a", .relative = true, .border = "0"}, R"("a" FRAMEBORDER="0">)"},
      {{.path = "a", .relative = true, .border_color = "#FF0010"}, R"("a" BORDERCOLOR="#FF0010">)"},
      {{.path = "a", .relative = true, .spacing = "100"}, R"("a" FRAMESPACING="100">)"},
      {{.path = "a", .relative = true, .scrolling = "auto"}, R"("a" SCROLLING="auto" SCROLLING="auto">)"},
      {{.path = "a", .relative = true, .scrolling = "  no"}, R"("a" SCROLLING="no" SCROLLING="  no">)"},
      {{.path = "a", .relative = true, .margins = Margins{" 1", "2"}}, R"("a" MARGINHEIGHT="1" MARGINWIDTH="2">)"},
      {{.path = "a", .relative = true, .noresize = true}, R"("a" NORESIZE>)"},
      {{.path = "a",
        .relative = true,
        .name = "n",
        .align = "RIGHT",
        .border = "1",
        .border_color = "#000000",
        .spacing = "2",
        .scrolling = "no",
        .margins = Margins{"0", "3"},
        .noresize = true},
       R"("a" NAME="n" ALIGN="RIGHT" FRAMEBORDER="1" BORDERCOLOR="#000000" FRAMESPACING="2" SCROLLING="no" MARGINHEIGHT="0" MARGINWIDTH="3" SCROLLING="no" NORESIZE>)"},
  };
  for (const Case& c : cases) EXPECT_EQ(FrameTag(c.spec), Join({"<FRAME SRC=", c.attributes}));
}

}  // namespace
}  // namespace pelmar
