#include "shell/common.h"

#include <algorithm>
#include <cstddef>

#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::string_view kMarked = "áÁčČďĎéěÉĚíÍňŇóÓřŘšŠťŤůúŮÚýÝžŽ"_w;
constexpr std::string_view kPlain = "aAcCdDeeEEiInNoOrRsStTuuUUyYzZ"_w;
static_assert(kMarked.size() == kPlain.size());

}  // namespace

std::string StripDiacritics(std::string_view text) {
  std::string plain(text);
  for (char& ch : plain)
    if (const std::size_t at = kMarked.find(ch); at != std::string_view::npos) ch = kPlain[at];
  return plain;
}

std::string RandomCase(std::string_view text, const Draw& draw) {
  std::string result(text);
  for (char& ch : result) ch = draw() < 0.5 ? ToLower(ch) : ToUpper(ch);
  return result;
}

std::string ReplaceAllText(std::string_view text, std::string_view find, std::string_view with) {
  std::string result;
  std::size_t from = 0;  // the earliest start of the next occurrence
  for (const char ch : text) {
    result += ch;
    if (result.size() < from + find.size() || !result.ends_with(find)) continue;
    const std::size_t hit = result.size() - find.size();
    result.replace(hit, find.size(), with);
    from = hit + 1;
  }
  return result;
}

std::int32_t CountLineFeeds(std::string_view text) { return static_cast<std::int32_t>(std::ranges::count(text, '\n')); }

std::string JoinLines(const std::vector<std::string_view>& lines) {
  std::string text;
  for (const std::string_view& line : lines) {
    if (&line != &lines.front()) text += kCrLf;
    text += line;
  }
  return text;
}

std::string NumberWithSignBlank(std::int64_t number) { return (number < 0 ? "" : " ") + std::to_string(number); }

}  // namespace pelmar
