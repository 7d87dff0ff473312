// Finding a term in a text, as every search of the program does it: exact, positions from 0. What a person is told
// counts from 1.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

// The first hit at or behind `from`. A search that begins at the end of the text or behind it finds nothing; elsewhere
// an empty term is found where the search begins.
std::optional<std::size_t> FindFrom(std::string_view text, std::string_view term, std::size_t from);

// Selects a hit, clipped to the end of the text. First its start, which thus comes into sight as well.
void SelectHit(TextBuffer& document, std::size_t hit, std::size_t length);

// What the person is asked at a hit before the search goes on, UTF-8.
std::string GoOnQuestion(std::size_t hit);

}  // namespace pelmar
