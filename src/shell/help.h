// The help: the text of pelmar.txt and the search in it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

// The person's own help file, or the file of the package. Nothing if neither can be read, which is reported.
std::optional<std::string> LoadHelp(Platform& platform);

// Selects one hit after another until the person stops. Ignores case.
void SearchHelp(TextBuffer& buffer, std::string_view term, Platform& platform);

}  // namespace pelmar
