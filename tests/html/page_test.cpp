#include "html/page.h"

#include <gtest/gtest.h>

#include "html/frames.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

std::string Page(std::string_view body_and_text) {
  std::string page(
      "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Final//EN\">\r\n"
      " <HEAD>\r\n"
      "  <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1250\">\r\n"
      "  <META NAME=\"GENERATOR\" CONTENT=\"Orvilanths PELmar VEX v8.9.2.1b CZ\">\r\n"
      "  <META NAME=\"AUTHOR\" CONTENT=\"Jan Novák\">\r\n"
      "  <META NAME=\"CREATED\" CONTENT=\"11-24-2026 09:05:00\">\r\n"
      "  <TITLE>Stránka </TITLE>\r\n"
      " </HEAD>\r\n <BODY"_w);
  return page.append(body_and_text).append("\r\n\r\n </BODY>\r\n</HTML>");
}

PageSpec Spec() {
  PageSpec spec;
  spec.author = "Jan Novák"_w;
  spec.created = "11-24-2026 09:05:00";
  spec.title = "Stránka "_w;
  return spec;
}

TEST(Page, TheDocumentIsWrappedAndSelectedEachTime) {
  TextBuffer box;
  WrapInPage(box, Spec());
  const std::string once = Page(">\r\n---TEXT---");
  EXPECT_EQ(box.Text(), once);
  EXPECT_EQ(box.SelText(), "---TEXT---");
  WrapInPage(box, Spec());
  EXPECT_EQ(box.Text(), Page(">\r\n" + once));
  EXPECT_EQ(box.SelText(), once);
  box.Undo();
  EXPECT_EQ(box.Text(), once);
  box.Undo();
  EXPECT_EQ(box.Text(), "");
}

TEST(Page, BodyAttributesInTheirOrder) {
  TextBuffer box;
  box.SetText("x\r\n");
  PageSpec spec = Spec();
  spec.background = "C:\\pic\\a.gif";
  spec.bgcolor = "1";
  spec.text = "2";
  spec.link = "3";
  spec.vlink = "4";
  spec.alink = "5";
  spec.base_font = 7;
  WrapInPage(box, spec);
  EXPECT_EQ(box.Text(), Page(R"( BACKGROUND="file:///C:/pic/a.gif" BGCOLOR="1" TEXT="2" LINK="3" VLINK="4" ALINK="5">)"
                             "\r\n<BASEFONT SIZE=\"7\">\r\nx\r\n"));
  spec = Spec();
  spec.background = "a.gif";  // required: a URL of a bare name too
  box.SetText("x");
  WrapInPage(box, spec);
  EXPECT_EQ(box.Text(), Page(" BACKGROUND=\"file:///a.gif\">\r\nx"));
}

TEST(Frameset, RowsColumnsAndTheDocument) {
  const std::tuple<FramesetSpec, std::string, std::string, std::string_view> cases[] = {
      {{{}, {}, "Titulek"}, "", ">", "Tento Prohlížeč nepodporuje Framesy"_w},
      {{"*,50%,50", {}, "Titulek"}, "x\r\ny", R"( ROWS="*,50%,50">)", "x\r\ny"},
      {{"1,*", "2,*", "Titulek"}, " ", R"( ROWS="1,*" ROWS="2,*">)", " "},  // required: columns as rows too
  };
  for (const auto& [spec, document, attributes, body] : cases) {
    TextBuffer box;
    box.SetText(document);
    WrapInFrameset(box, spec);
    EXPECT_EQ(box.Text(),
              "<!DOCTYPE HTML PUBLIC \"-//IETF/DTD HTML v.m//EN\">\r\n<HTML>\r\n <HEAD>\r\n"
              "  <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1250\">\r\n"
              "  <META NAME=\"GENERATOR\" CONTENT=\"Orvilanths PELmar VEX v8.9.2.1b CZ\">\r\n"
              "  <TITLE>Titulek</TITLE>\r\n </HEAD>\r\n <FRAMESET" +
                  attributes + "\r\n </FRAMESET>\r\n <NOFRAMES>\r\n" + std::string(body) +
                  "\r\n </NOFRAMES>\r\n</HTML>");
    EXPECT_EQ(box.SelText(), body);
  }
}

TEST(Frame, WritesTheAttributesInTheirOrder) {
  EXPECT_EQ(FrameTag({.path = "/a.htm"}), R"(<FRAME SRC="file:///a.htm">)");
  EXPECT_EQ(FrameTag({.path = "a", .relative = true}), R"(<FRAME SRC="a">)");
  // required: SCROLLING twice, the second as it was typed
  EXPECT_EQ(FrameTag({.path = "a",
                      .relative = true,
                      .name = "n",
                      .align = " RIGHT",
                      .border = "1",
                      .border_color = "#FF0010",
                      .spacing = "2",
                      .scrolling = "  no",
                      .margins = FrameSpec::Margins{" 0", " 3"},
                      .noresize = true}),
            R"(<FRAME SRC="a" NAME="n" ALIGN=" RIGHT" FRAMEBORDER="1" BORDERCOLOR="#FF0010" FRAMESPACING="2")"
            R"( SCROLLING="no" MARGINHEIGHT="0" MARGINWIDTH="3" SCROLLING="  no" NORESIZE>)");
}

}  // namespace
}  // namespace pelmar
