#include "platform/color.h"

#include <cstddef>
#include <string_view>

namespace pelmar {

std::string HexByte(int value) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  return {kDigits[static_cast<std::size_t>(value / 16)], kDigits[static_cast<std::size_t>(value % 16)]};
}

std::string ColorToHex(Color color) {
  return "#" + HexByte(RedOf(color)) + HexByte(GreenOf(color)) + HexByte(BlueOf(color));
}

}  // namespace pelmar
