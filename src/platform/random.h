// Draws from the ordinary random source, for what needs a range but no certain sequence. The stream cipher has a source
// of its own.
#pragma once

#include <cstddef>
#include <functional>

namespace pelmar {

class Platform;

// r with 0 <= r < 1, once a call.
using Draw = std::function<double()>;

Draw DrawFrom(Platform& platform);

// The integer part of r * count: 0 to count - 1, and 0 where count is 0. Takes one draw.
inline std::size_t DrawBelow(const Draw& draw, std::size_t count) {
  return static_cast<std::size_t>(draw() * static_cast<double>(count));
}

}  // namespace pelmar
