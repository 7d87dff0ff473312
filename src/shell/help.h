// The help: the text of pelmar.txt and the search in it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

// The person's own file or that of the package; nothing where neither can be read, which the person is told.
std::optional<std::string> LoadHelp(Platform& platform);

// From hit to hit as long as the person wants to go on. Case doesn't matter.
void SearchHelp(TextBuffer& text, std::string_view term, Platform& platform);

}  // namespace pelmar
