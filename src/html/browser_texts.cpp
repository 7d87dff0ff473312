#include "html/browser_texts.h"

#include <algorithm>

#include "text/number_text.h"
#include "text/utf8.h"

namespace pelmar {

std::string ProgressText(std::int64_t progress, std::int64_t maximum) {
  if (maximum <= 0) return {};
  return NumberText(static_cast<double>(progress) / static_cast<double>(maximum) * 100.0) + '%';
}

bool IsUndeclaredUtf8(std::string_view page) {
  constexpr std::string_view kCharset = "charset";
  constexpr std::size_t kLookedAt = 1024;  // bytes in which browsers look for the declaration
  if (page.starts_with(kByteOrderMarkBytes) || !LooksLikeUtf8(page)) return false;
  const std::string_view head = page.substr(0, kLookedAt);
  const auto same = [](char a, char b) { return (a | 0x20) == b; };
  return std::search(head.begin(), head.end(), kCharset.begin(), kCharset.end(), same) == head.end();
}

std::string BrowserCaption(std::string_view location_name) {
  return "HTML testovací browser (" + std::string(location_name) + ")";
}

}  // namespace pelmar
