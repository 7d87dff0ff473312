// The `A` tags of the four link dialogs. Texts are Windows-1250.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

// A tag that goes around the selection; where nothing is selected, `text` stands in it.
struct LinkTag {
  std::string open;
  std::string text;
};

// The tag around the selection, or with its own text at the caret.
void InsertLink(TextBuffer& document, const LinkTag& link);

// The place in a document that links lead to.
std::string AnchorTag(std::string_view name);

LinkTag LinkToAnchor(std::string_view name);
LinkTag LinkToMail(std::string_view address);

struct LinkSpec {
  std::string target;  // what stands in front of the fragment: FileAddress of a file, or an address as typed
  std::optional<std::string> fragment;  // an empty one counts as none
  std::optional<std::string> frame;
};
LinkTag LinkToDocument(const LinkSpec& link);

}  // namespace pelmar
