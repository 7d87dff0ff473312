// Finds a term in a text. Upper and lower case differ. Positions count from 0, but in messages from 1.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

// The first hit at or after `from`, or nothing. An empty term is found at `from`. Finds nothing if `from` is the end of
// the text or beyond.
std::optional<std::size_t> FindFrom(std::string_view text, std::string_view term, std::size_t from);

// Selects a hit, at most up to the end of the text. First puts the caret at the start of the hit and then at its end. A
// text box scrolls to both, so the whole hit is visible if there is room.
void SelectHit(TextBuffer& buffer, std::size_t hit, std::size_t length);

// The question after a hit: whether to look for the next one. UTF-8.
std::string GoOnQuestion(std::size_t hit);

}  // namespace pelmar
