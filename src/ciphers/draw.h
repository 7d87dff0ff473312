// Draws from the ordinary random source, as all ciphers but the stream cipher use them: only their range matters.
#pragma once

#include <cstddef>
#include <functional>

#include "platform/platform.h"

namespace pelmar {

// r with 0 <= r < 1, once a call.
using Draw = std::function<double()>;

inline Draw DrawFrom(Platform& platform) {
  return [&platform] { return platform.Random(); };
}

// The integer part of r * count: 0 to count - 1, and 0 where count is 0. Takes one draw.
inline std::size_t DrawBelow(const Draw& draw, std::size_t count) {
  return static_cast<std::size_t>(draw() * static_cast<double>(count));
}

}  // namespace pelmar
