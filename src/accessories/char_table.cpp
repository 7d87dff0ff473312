#include "accessories/char_table.h"

#include <string_view>

namespace pelmar {

std::string CodeInHex(int code) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  return {kDigits[static_cast<std::size_t>(code >> 4)], kDigits[static_cast<std::size_t>(code & 15)]};
}

std::string CharReference(int code) { return "&#" + std::to_string(code) + ";"; }

}  // namespace pelmar
