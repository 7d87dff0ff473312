#include "texttools/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <deque>
#include <random>
#include <stdexcept>
#include <vector>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

// Draws that are all used up by one call.
struct Draws {
  std::deque<double> left;
  Draw Source() {
    return [this] {
      if (left.empty()) throw std::logic_error("one draw too many");
      const double draw = left.front();
      left.pop_front();
      return draw;
    };
  }
};

Draw Uniform(unsigned seed) {
  return [random = std::mt19937(seed)]() mutable { return static_cast<double>(random()) / 4294967296.0; };
}

TEST(RandomText, DrawsInTheToldOrder) {
  // Nine letters behind the first; the second of them ends a word with a comma, the fourth one without.
  Draws draws{{0.0,  0.999, 0.0,   0.0,             // 9 letters, capital Z, "a" goes on
               0.04, 0.25,  0.49,                   // "b", a word's end, a comma
               0.0,  0.99,  0.0,   0.3,  0.6,       // "a" goes on, "a", a word's end, no comma
               0.0,  0.0,   0.0,   0.0,  0.0, 0.0,  // "aaa"
               0.0,  0.0,   0.999, 0.99, 0.5}};     // "a", "z", the stop
  EXPECT_EQ(RandomSentence(draws.Source()), "Zab, aa aaaaz? ");
  EXPECT_TRUE(draws.left.empty());
  draws.left = {0.0, 0.0, 0.999};
  EXPECT_EQ(RandomWord(draws.Source()), "az ");
  draws.left = {0.0, 0.0, 0.999, 0.12, 0.04, 0.0, 0.0};
  EXPECT_EQ(RandomName(draws.Source()), "Az Baa ");
  EXPECT_TRUE(draws.left.empty());
}

TEST(RandomText, SentencesKeepTheirShape) {
  const Draw draw = Uniform(3);
  std::size_t shortest = 99;
  std::size_t longest = 0;
  for (int round = 0; round < 3000; ++round) {
    const std::string text = RandomSentence(draw);
    const auto letters = static_cast<std::size_t>(std::ranges::count_if(text, [](char ch) { return ch >= 'A'; }));
    shortest = std::min(shortest, letters);
    longest = std::max(longest, letters);
    ASSERT_TRUE(std::isupper(static_cast<unsigned char>(text[0])));
    ASSERT_TRUE(std::none_of(text.begin() + 1, text.end(), [](char ch) { return ch >= 'A' && ch <= 'Z'; })) << text;
    ASSERT_EQ(text.find("  "), std::string::npos) << text;
    ASSERT_EQ(text.back(), ' ');
    for (std::size_t comma = text.find(','); comma != std::string::npos; comma = text.find(',', comma + 1))
      ASSERT_EQ(text[comma + 1], ' ');
  }
  EXPECT_EQ(shortest, 10u);
  EXPECT_EQ(longest, 50u);
  for (int round = 0; round < 300; ++round) {
    const std::size_t size = RandomWord(draw).size();
    ASSERT_TRUE(size >= 3 && size <= 11) << size;
  }
}

// The told loop: the drawn word goes out, those behind it move down.
std::string ToldShuffle(const std::string& text, const Draw& draw) {
  std::vector<std::string> words(1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    words.back() += text[i];
    if (text[i] == ' ' && i + 1 < text.size()) words.emplace_back();
  }
  std::string out;
  while (!words.empty()) {
    const auto k = static_cast<std::ptrdiff_t>(draw() * static_cast<double>(words.size()));
    out += words[static_cast<std::size_t>(k)];
    words.erase(words.begin() + k);
  }
  return out;
}

TEST(ShuffledWords, EqualsTheToldLoopOnRandomTexts) {
  std::mt19937 random(7);
  for (unsigned round = 0; round < 3000; ++round) {
    std::string text;
    for (std::size_t n = 1 + random() % (round % 8 ? 40 : 900); n > 0; --n) text += "ab  \r\n"[random() % 6];
    ASSERT_EQ(ShuffledWords(text, Uniform(round)), ToldShuffle(text, Uniform(round))) << text;
  }
}

TEST(ShuffledWords, RunsTheLastWordIntoItsFollower) {
  Draws draws{{0.5, 0.0}};
  EXPECT_EQ(ShuffledWords("a b", draws.Source()), "ba ");  // required
  draws.left = {0.5, 0.9};
  EXPECT_EQ(ShuffledWords("one ", draws.Source()), "one ");
  EXPECT_EQ(ShuffledWords("", draws.Source()), "");
}

TEST(RandomTextCommands, InsertBeforeTheSelectionAndShuffleIt) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  editor.text.SetText("xabcx");
  editor.text.Select(1, 4);
  platform.draws = {0.0, 0.0, 0.0};
  editor.commands.Run("mnunahslovo");
  EXPECT_EQ(editor.text.Text(), "xaa abcx");
  EXPECT_FALSE(editor.text.HasSelection());
  EXPECT_EQ(editor.text.SelStart(), 4u);
  editor.commands.Run("mnunahjmeno");
  editor.commands.Run("mnunahtex");
  EXPECT_EQ(platform.reseeds, 3);

  editor.text.SetText("xa b");
  editor.text.Select(1, 4);
  platform.draws = {0.5, 0.0};
  editor.commands.Run("MnuSelTextDada");
  EXPECT_EQ(editor.text.Text(), "xba ");
  editor.commands.Run("MnuSelTextDada");  // nothing selected
  EXPECT_EQ(editor.text.Text(), "xba ");
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{"busy 1", "busy 0", "busy 1", "busy 0"}));
}

}  // namespace
}  // namespace pelmar
