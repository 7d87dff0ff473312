// The `A` tags of the four link dialogs. Texts are Windows-1250.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/insert.h"

namespace pelmar {

// The place in a document that links lead to.
std::string AnchorTag(std::string_view name);

Wrapping LinkToAnchor(std::string_view name);
Wrapping LinkToMail(std::string_view address);

struct LinkSpec {
  std::string target;  // what stands in front of the fragment: FileAddress of a file, or an address as typed
  std::optional<std::string> fragment;  // an empty one counts as none
  std::optional<std::string> frame;
};
Wrapping LinkToDocument(const LinkSpec& link);

}  // namespace pelmar
