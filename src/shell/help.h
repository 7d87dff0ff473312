// The help window's search: case doesn't matter, positions count from 1 in what the person is told.
#pragma once

#include <optional>
#include <string_view>

namespace pelmar {

// The position (from 1) of the next hit behind position `after`, nothing where there is none. `after` is 0 at first.
std::optional<std::size_t> FindInHelp(std::string_view text, std::string_view term, std::size_t after);

}  // namespace pelmar
