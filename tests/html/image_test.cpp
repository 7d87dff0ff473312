#include "html/image.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(Image, NamesTheFile) {
  ImageSpec image;
  image.path = "C:\\a\\b.gif";
  EXPECT_EQ(ImageTag(image), R"(<IMG SRC="file:///C:/a/b.gif">)");
  image.path = "/home/jan/b.gif";
  EXPECT_EQ(ImageTag(image), R"(<IMG SRC="file:///home/jan/b.gif">)");
  image.path = "b.gif";
  image.relative = true;
  EXPECT_EQ(ImageTag(image), R"(<IMG SRC="b.gif">)");
}

TEST(Image, WritesEachAttributeInItsPlace) {
  struct Case {
    std::function<void(ImageSpec&)> set;
    std::string attributes;
  };
  const std::vector<Case> cases = {
      {[](ImageSpec& i) { i.alt = "a \"b\" <"; }, R"( ALT="a "b" <")"},
      {[](ImageSpec& i) { i.align = ImageAlign::kTop; }, R"( ALIGN="top")"},
      {[](ImageSpec& i) { i.align = ImageAlign::kMiddle; }, R"( ALIGN="middle")"},
      {[](ImageSpec& i) { i.align = ImageAlign::kBottom; }, R"( ALIGN="bottom")"},
      {[](ImageSpec& i) { i.align = ImageAlign::kLeft; }, R"( ALIGN="left")"},
      {[](ImageSpec& i) { i.align = ImageAlign::kRight; }, R"( ALIGN="right")"},
      {[](ImageSpec& i) {
         i.size = {" 800", " 1"};
       },
       R"( WIDTH="800" HEIGHT="1")"},
      {[](ImageSpec& i) {
         i.space = {" 1", " 2"};
       },
       R"( VSPACE="1" HSPACE="2")"},
      {[](ImageSpec& i) { i.border = " 0"; }, R"( BORDER="0")"},
      {[](ImageSpec& i) {
         i = {"b",
              true,
              std::string("Obrázek "_w),
              ImageAlign::kLeft,
              ImageSpec::Size{" 10%", " 20%"},
              ImageSpec::Space{" 3", " 4"},
              " 5",
              "path/file.jpg",
              "#mapa"};
       },
       std::string(" ALT=\"Obrázek \""_w) +
           R"( ALIGN="left" WIDTH="10%" HEIGHT="20%" VSPACE="3" HSPACE="4" BORDER="5")" +
           R"( LOWSRC="path/file.jpg" USEMAP="#mapa")"},
  };
  for (const Case& test : cases) {
    ImageSpec image;
    image.path = "b";
    image.relative = true;
    test.set(image);
    EXPECT_EQ(ImageTag(image), R"(<IMG SRC="b")" + test.attributes + ">");
  }
}

}  // namespace
}  // namespace pelmar
