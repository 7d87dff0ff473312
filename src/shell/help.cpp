#include "shell/help.h"

#include "text/codepage.h"
#include "text/search.h"

namespace pelmar {

std::optional<std::size_t> FindInHelp(std::string_view text, std::string_view term, std::size_t after) {
  const std::size_t hit = FindFrom(ToUpper(text), ToUpper(term), after + 1);
  return hit == 0 ? std::nullopt : std::optional(hit);
}

}  // namespace pelmar
