// The help: the text of pelmar.txt and the search in this text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

// The help file in the install folder, otherwise the help file of the package. If neither can be read, shows a message
// and returns nothing.
std::optional<std::string> LoadHelp(Platform& platform);

// Selects one hit after another until the person stops or there is no further hit. Ignores case.
void SearchHelp(TextBuffer& buffer, std::string_view term, Platform& platform);

}  // namespace pelmar
