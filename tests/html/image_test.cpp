#include "html/image.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

TEST(Image, WritesTheAttributesInTheirOrder) {
  // Path, text, place, size, space, border, low source and map.
  const std::pair<ImageSpec, std::string_view> cases[] = {
      {{"C:\\a\\b.gif", false, {}, {}, {}, {}, {}, {}, {}}, R"(<IMG SRC="file:///C:/a/b.gif">)"},
      {{"b", true, "a \"b\" <", {}, {}, {}, {}, {}, {}}, R"(<IMG SRC="b" ALT="a "b" <">)"},
      {{"b", true, {}, ImageAlign::kTop, {}, {}, {}, {}, {}}, R"(<IMG SRC="b" ALIGN="top">)"},
      {{"b", true, {}, ImageAlign::kMiddle, {}, {}, {}, {}, {}}, R"(<IMG SRC="b" ALIGN="middle">)"},
      {{"b", true, {}, ImageAlign::kBottom, {}, {}, {}, {}, {}}, R"(<IMG SRC="b" ALIGN="bottom">)"},
      {{"b", true, {}, ImageAlign::kRight, {}, {}, {}, {}, {}}, R"(<IMG SRC="b" ALIGN="right">)"},
      {{"b", true, "x ", ImageAlign::kLeft, ImageSpec::Size{" 10%", " 20"}, ImageSpec::Space{" 3", " 4"}, " 5",
        "path/file.jpg", "#mapa"},
       R"(<IMG SRC="b" ALT="x " ALIGN="left" WIDTH="10%" HEIGHT="20" VSPACE="3" HSPACE="4" BORDER="5")"
       R"( LOWSRC="path/file.jpg" USEMAP="#mapa">)"},
  };
  for (const auto& [image, tag] : cases) EXPECT_EQ(ImageTag(image), tag);
}

}  // namespace
}  // namespace pelmar
