#include "texttools/random_text.h"

#include <cstddef>
#include <vector>

#include "texttools/lines.h"

namespace pelmar {
namespace {

// A random whole number from `least` to `least + count - 1`.
int Pick(const Draw& draw, int count, int least) {
  return static_cast<int>(DrawBelow(draw, static_cast<std::size_t>(count))) + least;
}

char Letter(const Draw& draw) { return static_cast<char>('a' + Pick(draw, 26, 0)); }
char Capital(const Draw& draw) { return static_cast<char>('A' + Pick(draw, 26, 0)); }

void AppendLetters(std::string& text, int count, const Draw& draw) {
  for (; count > 0; --count) text += Letter(draw);
}

std::string NamePart(const Draw& draw) {
  const int small = Pick(draw, 9, 2) - 1;  // without the capital
  std::string part(1, Capital(draw));
  AppendLetters(part, small, draw);
  return part + ' ';
}

}  // namespace

std::string RandomSentence(const Draw& draw) {
  const int letters = Pick(draw, 41, 10) - 1;  // without the capital
  std::string text(1, Capital(draw));
  for (int i = 0; i < letters; ++i) {
    text += Letter(draw);
    if (Pick(draw, 4, 1) != 2) continue;
    if (Pick(draw, 4, 1) == 2) text += ',';
    text += ' ';
  }
  static constexpr std::string_view kStops[] = {". ", ". ", "? ", "! "};
  return text.append(kStops[Pick(draw, 4, 0)]);
}

std::string RandomWord(const Draw& draw) {
  std::string word;
  AppendLetters(word, Pick(draw, 9, 2), draw);
  return word + ' ';
}

std::string RandomName(const Draw& draw) {
  std::string name = NamePart(draw);
  return name.append(NamePart(draw));
}

std::string ShuffledWords(std::string_view text, const Draw& draw) {
  std::vector<std::string_view> words = WordsOf(text);
  std::string out;
  while (!words.empty()) {
    const auto word = words.begin() + static_cast<std::ptrdiff_t>(DrawBelow(draw, words.size()));
    out += *word;
    words.erase(word);
  }
  return out;
}

}  // namespace pelmar
