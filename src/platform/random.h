// Random numbers from Platform::Random. The stream cipher uses ReproducibleGenerator instead.
#pragma once

#include <cstddef>
#include <functional>

#include "platform/platform.h"

namespace pelmar {

// Returns a number r with 0 <= r < 1.
using Draw = std::function<double()>;

inline Draw DrawFrom(Platform& platform) {
  return [&platform] { return platform.Random(); };
}

// The integer part of r * count, where r is the next draw: 0 to count - 1, and 0 if count is 0. Calls `draw` once.
inline std::size_t DrawBelow(const Draw& draw, std::size_t count) {
  return static_cast<std::size_t>(draw() * static_cast<double>(count));
}

}  // namespace pelmar
