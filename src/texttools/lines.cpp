#include "texttools/lines.h"

#include <algorithm>

#include "shell/common.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

std::vector<std::string_view> LinesWithEnds(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t feed = text.find('\n');
    const std::size_t length = feed == std::string_view::npos ? text.size() : feed + 1;
    const std::string_view line = text.substr(0, length);
    if (line != kCrLf) lines.push_back(line);
    text.remove_prefix(length);
  }
  return lines;
}

void AppendNumber(std::string& out, int number) {
  out += ZeroPadded(static_cast<std::uint64_t>(number), 5);
  out += ' ';
}

}  // namespace

std::string SortLines(std::string_view text, const SortedOrder& order) {
  const std::vector<std::string_view> lines = LinesWithEnds(text);
  std::string sorted;
  sorted.reserve(text.size());
  for (const std::size_t index : order(lines)) sorted += lines[index];
  return sorted;
}

std::string NumberLines(std::string_view text) {
  std::string out;
  int number = 1;
  AppendNumber(out, number);
  for (const char ch : text.substr(0, text.size() - (text.empty() ? 0 : 1))) {
    out += ch;
    if (ch == '\n') AppendNumber(out, ++number);
  }
  return out;
}

std::vector<std::uint32_t> WordStarts(std::string_view text) {
  std::vector<std::uint32_t> starts;
  if (text.empty()) return starts;
  starts.reserve(static_cast<std::size_t>(std::ranges::count(text, ' ')) + 2);
  starts.push_back(0);
  for (std::size_t i = 0; i + 1 < text.size(); ++i)
    if (text[i] == ' ') starts.push_back(static_cast<std::uint32_t>(i + 1));
  starts.push_back(static_cast<std::uint32_t>(text.size()));
  return starts;
}

std::string WordsToLines(std::string_view text) {
  const std::vector<std::uint32_t> starts = WordStarts(text);
  std::string out;
  out.reserve(text.size() + kCrLf.size() * starts.size());
  for (std::size_t word = 0; word + 1 < starts.size(); ++word)
    out.append(text, starts[word], starts[word + 1] - starts[word]).append(kCrLf);
  return out;
}

}  // namespace pelmar
