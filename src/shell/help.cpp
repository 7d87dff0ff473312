#include "shell/help.h"

#include "text/codepage.h"

namespace pelmar {

std::optional<std::size_t> FindInHelp(std::string_view text, std::string_view term, std::size_t after) {
  if (after >= text.size()) return std::nullopt;
  const std::size_t hit = ToUpper(text).find(ToUpper(term), after);
  if (hit == std::string::npos) return std::nullopt;
  return hit + 1;
}

}  // namespace pelmar
