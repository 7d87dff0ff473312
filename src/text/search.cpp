#include "text/search.h"

namespace pelmar {

std::size_t FindFrom(std::string_view text, std::string_view term, std::size_t from) {
  if (from < 1 || from > text.size()) return 0;
  const std::size_t hit = text.find(term, from - 1);
  return hit == std::string_view::npos ? 0 : hit + 1;
}

}  // namespace pelmar
