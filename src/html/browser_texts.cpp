#include "html/browser_texts.h"

#include <array>
#include <charconv>

namespace pelmar {

std::string ProgressText(std::int64_t progress, std::int64_t maximum) {
  if (maximum <= 0) return {};
  constexpr int kDigits = 15;
  const double percent = static_cast<double>(progress) / static_cast<double>(maximum) * 100.0;
  std::array<char, 32> buffer{};
  const std::to_chars_result written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), percent, std::chars_format::general, kDigits);
  std::string text(buffer.data(), written.ptr);
  if (const std::size_t point = text.find('.'); point != std::string::npos) text[point] = ',';
  return text + '%';
}

std::string BrowserCaption(std::string_view location_name) {
  return "HTML testovací browser (" + std::string(location_name) + ")";
}

}  // namespace pelmar
