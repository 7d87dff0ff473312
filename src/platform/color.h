// Colours in memory, in files and in HTML.
#pragma once

#include <cstdint>
#include <string>

namespace pelmar {

// red + 256 * green + 65536 * blue, each from 0 to 255.
using Color = std::int32_t;
constexpr Color Rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }
constexpr int RedOf(Color color) { return color & 0xFF; }
constexpr int GreenOf(Color color) { return color >> 8 & 0xFF; }
constexpr int BlueOf(Color color) { return color >> 16 & 0xFF; }

// Two upper-case hexadecimal digits of a number from 0 to 255.
std::string HexByte(int value);

// "#RRGGBB", upper case.
std::string ColorToHex(Color color);

}  // namespace pelmar
