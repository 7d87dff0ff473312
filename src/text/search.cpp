#include "text/search.h"

namespace pelmar {

std::optional<std::size_t> FindFrom(std::string_view text, std::string_view term, std::size_t from) {
  const std::size_t hit = from < text.size() ? text.find(term, from) : std::string_view::npos;
  return hit == std::string_view::npos ? std::nullopt : std::optional(hit);
}

void SelectHit(TextBuffer& buffer, std::size_t hit, std::size_t length) {
  buffer.SetSelStart(hit);
  buffer.SetSelLength(length);
}

std::string GoOnQuestion(std::size_t hit) { return "Nalezeno na " + std::to_string(hit + 1) + " místě, pokračovat ?"; }

}  // namespace pelmar
