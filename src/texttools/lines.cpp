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
  out += ZeroPadded(number, 5);
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
  for (const char ch : text.substr(0, text.size() - 1)) {
    out += ch;
    if (ch == '\n') AppendNumber(out, ++number);
  }
  return out;
}

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  while (!text.empty()) {
    const std::size_t blank = std::min(text.find(' '), text.size() - 1);
    words.push_back(text.substr(0, blank + 1));
    text.remove_prefix(blank + 1);
  }
  return words;
}

std::string WordsToLines(std::string_view text) {
  std::string out;
  for (const std::string_view word : WordsOf(text)) out.append(word).append(kCrLf);
  return out;
}

}  // namespace pelmar
