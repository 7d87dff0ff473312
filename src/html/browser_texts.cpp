#include "html/browser_texts.h"

#include "text/number_text.h"

namespace pelmar {

std::string ProgressText(std::int64_t progress, std::int64_t maximum) {
  if (maximum <= 0) return {};
  return NumberText(static_cast<double>(progress) / static_cast<double>(maximum) * 100.0) + '%';
}

std::string BrowserCaption(std::string_view location_name) {
  return "HTML testovací browser (" + std::string(location_name) + ")";
}

}  // namespace pelmar
