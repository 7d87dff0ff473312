// Searches a text for a term, exactly. Positions count from 0, in messages from 1.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

// The first hit at or after `from`. Finds an empty term at `from`. Finds nothing from the end of the text on.
std::optional<std::size_t> FindFrom(std::string_view text, std::string_view term, std::size_t from);

// Selects a hit, at most up to the end of the text. Selects the start first, so that the start becomes visible.
void SelectHit(TextBuffer& buffer, std::size_t hit, std::size_t length);

// The question at a hit whether to search on. UTF-8.
std::string GoOnQuestion(std::size_t hit);

}  // namespace pelmar
