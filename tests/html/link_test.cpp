#include "html/link.h"

#include <gtest/gtest.h>

#include <vector>

#include "html/attributes.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// What the link makes of a document that is all selected.
std::string Around(const LinkTag& link, std::string_view selection) {
  TextBuffer document;
  document.SetText(std::string(selection));
  document.Select(0, document.Size());
  InsertLink(document, link);
  EXPECT_EQ(document.SelStart(), document.Size());
  return document.Text();
}

TEST(Link, AnchorsAndLinksToThem) {
  EXPECT_EQ(AnchorTag("Kotva 1"), R"(<A NAME="Kotva 1"></A>)");
  EXPECT_EQ(Around(LinkToAnchor("x"), "text"), R"(<A HREF="#x">text</A>)");
  EXPECT_EQ(Around(LinkToAnchor("x"), " "), R"(<A HREF="#x"> </A>)");
  EXPECT_EQ(Around(LinkToAnchor("část"_w), ""), R"(<A HREF="#část">Odkaz na část</A>)"_w);
}

TEST(Link, OnlyWhatCouldNotLeadToItsFileIsEncoded) {
  EXPECT_EQ(LinkText("/moje složka/50%#.htm"), "/moje složka/50%#.htm"_w);
  EXPECT_EQ(LinkText("Жč?😀.htm"), "%D0%96č?%F0%9F%98%80.htm"_w);
  EXPECT_EQ(LinkText("k\xF9\xF2\xC5.htm"), "k%F9%F2%C5.htm");
}

TEST(Link, MailHasABlankBeforeItsEnd) {
  EXPECT_EQ(Around(LinkToMail("a@b"), ""), R"(<A HREF="mailto:a@b" >mailto na a@b</A>)");
  EXPECT_EQ(Around(LinkToMail("a@b"), "Pište"_w), R"(<A HREF="mailto:a@b" >Pište</A>)"_w);
  EXPECT_EQ(Around(LinkToMail(""), ""), R"(<A HREF="mailto:" >mailto na </A>)");
}

TEST(Link, DocumentWithFragmentAndFrame) {
  const std::vector<std::pair<LinkSpec, std::string>> cases = {
      {{"file:///C:/web/x.htm", {}, {}}, R"(<A HREF="file:///C:/web/x.htm">Odkaz na file:///C:/web/x.htm</A>)"},
      {{"x.htm", "a", "_top"}, R"(<A HREF="x.htm#a" TARGET="_top">Odkaz na x.htm#a</A>)"},
      {{"x.htm", "", ""}, R"(<A HREF="x.htm" TARGET="">Odkaz na x.htm</A>)"},
      {{"", "a", {}}, R"(<A HREF="#a">Odkaz na #a</A>)"},
  };
  for (const auto& [link, tag] : cases) EXPECT_EQ(Around(LinkToDocument(link), ""), tag);
  EXPECT_EQ(Around(LinkToDocument(cases[1].first), "text"), R"(<A HREF="x.htm#a" TARGET="_top">text</A>)");
}

}  // namespace
}  // namespace pelmar
