#include "html/image.h"

#include <array>
#include <string_view>

#include "html/attributes.h"
#include "text/index.h"

namespace pelmar {
namespace {

// required: lower case, although the names of the attributes are in upper case
constexpr std::array<std::string_view, 5> kImageAligns = {"top", "middle", "bottom", "left", "right"};

}  // namespace

std::string ImageTag(const ImageSpec& image) {
  std::string tag = "<IMG" + Attribute("SRC", FileAddress(image.path, image.relative));
  tag += Attribute("ALT", image.alt);
  if (image.align) tag += Attribute("ALIGN", kImageAligns[IndexOf(*image.align)]);
  if (image.size) {
    tag += Attribute("WIDTH", LeftTrimmed(image.size->width));
    tag += Attribute("HEIGHT", LeftTrimmed(image.size->height));
  }
  if (image.space) {
    tag += Attribute("VSPACE", LeftTrimmed(image.space->vertical));
    tag += Attribute("HSPACE", LeftTrimmed(image.space->horizontal));
  }
  if (image.border) tag += Attribute("BORDER", LeftTrimmed(*image.border));
  tag += Attribute("LOWSRC", image.low_source);
  tag += Attribute("USEMAP", image.map);
  return tag + ">";
}

}  // namespace pelmar
