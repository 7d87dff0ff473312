#include "texttools/random_text.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/random_source.h"

namespace pelmar {
namespace {

// The told loops: draws in their order, numbers from 1.
struct Told {
  const Draw& draw;

  int Number(int from, int to) const { return static_cast<int>(draw() * (to - from + 1)) + from; }
  std::string Letters(char first, int count) const {
    std::string letters;
    for (; count > 0; --count) letters += static_cast<char>(first + Number(0, 25));
    return letters;
  }
  std::string Sentence() const {
    int more = Number(10, 50) - 1;
    std::string text = Letters('A', 1);
    for (; more > 0; --more) {
      text += Letters('a', 1);
      const bool ends = Number(1, 4) == 2, comma = ends && Number(1, 4) == 2;
      text += comma ? ", " : ends ? " " : "";
    }
    const int stop = Number(1, 4);
    return text + (stop == 4 ? "! " : stop == 3 ? "? " : ". ");
  }
  std::string Word() const { return Letters('a', Number(2, 10)) + ' '; }
  std::string Name() const {
    std::string name;
    for (int part = 0; part < 2; ++part) {
      const int more = Number(2, 10) - 1;
      name += Letters('A', 1);
      name += Letters('a', more) + ' ';
    }
    return name;
  }
  // The drawn word goes out, those behind it move down.
  std::string Shuffle(const std::string& text) const {
    std::vector<std::string> words(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
      words.back() += text[i];
      if (text[i] == ' ' && i + 1 < text.size()) words.emplace_back();
    }
    std::string out;
    while (!words.empty()) {
      const auto word = words.begin() + Number(1, static_cast<int>(words.size())) - 1;
      out += *word;
      words.erase(word);
    }
    return out;
  }
};

// required: the last word of a shuffled text runs into its follower
TEST(RandomText, EqualsTheToldLoopsAndTakesTheirDraws) {
  RandomSource random(7);
  for (unsigned round = 0; round < 3000; ++round) {
    const std::string text = random.Text(round % 8 != 0 ? 40 : 900, "ab  \r\n");
    RandomSource source(round), told_source(round);
    const Draw draw = source.Draws(), told_draw = told_source.Draws();
    const Told told{told_draw};
    ASSERT_EQ(RandomSentence(draw), told.Sentence());
    ASSERT_EQ(RandomWord(draw), told.Word());
    ASSERT_EQ(RandomName(draw), told.Name());
    ASSERT_EQ(draw(), told_draw());
    ASSERT_EQ(ShuffledWords(text, draw), told.Shuffle(text)) << text;
  }
}

}  // namespace
}  // namespace pelmar
