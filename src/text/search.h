// Finding a term in a text, as every search of the program does it: exact, positions from 1.
#pragma once

#include <cstddef>
#include <string_view>

namespace pelmar {

// The position of the first hit at or behind `from`, 0 where there is none. A search that begins behind the end of the
// text finds nothing; elsewhere an empty term is found where the search begins.
std::size_t FindFrom(std::string_view text, std::string_view term, std::size_t from);

}  // namespace pelmar
