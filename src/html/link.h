// The `A` tags of the four link dialogs. Texts are Windows-1250.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/insert.h"

namespace pelmar {

// The anchor that links lead to.
std::string AnchorTag(std::string_view name);

Wrapping LinkToAnchor(std::string_view name);
Wrapping LinkToMail(std::string_view address);

struct LinkSpec {
  std::string target;                   // the part before the fragment: the FileAddress of a file, or a typed address
  std::optional<std::string> fragment;  // empty is the same as absent
  std::optional<std::string> frame;
};
Wrapping LinkToDocument(const LinkSpec& link);

}  // namespace pelmar
