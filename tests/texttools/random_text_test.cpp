#include "texttools/random_text.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

// What a generator makes of these draws, all of which it uses up.
std::string Drawn(std::string (*generate)(const Draw&), const std::vector<double>& draws) {
  std::size_t used = 0;
  const std::string text = generate([&] {
    if (used == draws.size()) throw std::logic_error("one draw too many");
    return draws[used++];
  });
  EXPECT_EQ(used, draws.size()) << text;
  return text;
}

// What it makes of the largest length and "x" as each letter.
std::string Longest(std::string (*generate)(const Draw&), double first_draw) {
  int draws = 0;
  return generate([&] { return ++draws == 1 ? first_draw : 0.9; });
}

TEST(RandomText, DrawsInTheToldOrder) {
  // Nine letters behind the first; the second of them ends a word with a comma, the fourth one without.
  EXPECT_EQ(Drawn(RandomSentence, {0.0,  0.999, 0.0,   0.0,             // 9 letters, capital Z, "a" goes on
                                   0.04, 0.25,  0.49,                   // "b", a word's end, a comma
                                   0.0,  0.99,  0.0,   0.3,  0.6,       // "a" goes on, "a", a word's end, no comma
                                   0.0,  0.0,   0.0,   0.0,  0.0, 0.0,  // "aaa"
                                   0.0,  0.0,   0.999, 0.99, 0.5}),     // "a", "z", the stop
            "Zab, aa aaaaz? ");
  EXPECT_EQ(Drawn(RandomWord, {0.0, 0.0, 0.999}), "az ");
  EXPECT_EQ(Drawn(RandomName, {0.0, 0.0, 0.999, 0.12, 0.04, 0.0, 0.0}), "Az Baa ");
  EXPECT_EQ(Longest(RandomSentence, 0.999), "X" + std::string(49, 'x') + "! ");
  std::string stops;
  for (const double stop : {0.0, 0.25, 0.5, 0.75}) {
    int draws = 0;
    stops += RandomSentence([&] { return ++draws == 1 ? 0.0 : draws == 21 ? stop : 0.9; }).substr(10);
  }
  EXPECT_EQ(stops, ". . ? ! ");
  EXPECT_EQ(Longest(RandomWord, 0.999), std::string(10, 'x') + " ");
  EXPECT_EQ(Longest(RandomName, 0.999), "X" + std::string(9, 'x') + " X" + std::string(9, 'x') + " ");
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

// required: the last word runs into its follower
TEST(ShuffledWords, EqualsTheToldLoopOnRandomTexts) {
  RandomSource random(7);
  for (unsigned round = 0; round < 3000; ++round) {
    const std::string text = random.Text(round % 8 != 0 ? 40 : 900, "ab  \r\n");
    RandomSource draws(round), told_draws(round);
    ASSERT_EQ(ShuffledWords(text, draws.Draws()), ToldShuffle(text, told_draws.Draws())) << text;
  }
}

TEST(RandomTextCommands, InsertBeforeTheSelectionAndShuffleIt) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  editor.text.SetText("xa bx");
  editor.text.Select(1, 4);
  platform.draws = {0.0, 0.0,  0.0,                   // "aa "
                    0.0, 0.04, 0.0, 0.0, 0.04, 0.0};  // "Ba Ba "
  editor.commands.Run("mnunahslovo");
  EXPECT_EQ(editor.text.Text(), "xaa a bx");
  EXPECT_FALSE(editor.text.HasSelection());
  editor.commands.Run("mnunahjmeno");
  EXPECT_EQ(editor.text.Text(), "xaa Ba Ba a bx");
  editor.text.Select(10, 13);
  platform.draws = {0.5, 0.0};
  editor.commands.Run("MnuSelTextDada");
  EXPECT_EQ(editor.text.Text(), "xaa Ba Ba ba x");
  EXPECT_EQ(platform.reseeds, 3);
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{"busy 1", "busy 0"}));
  editor.commands.Run("MnuSelTextDada");  // nothing selected
  EXPECT_EQ(editor.text.Text(), "xaa Ba Ba ba x");
  editor.text.SetText("");
  platform.draws.assign(99, 0.9);
  editor.commands.Run("mnunahtex");
  EXPECT_TRUE(editor.text.Text().ends_with("x! "));
}

}  // namespace
}  // namespace pelmar
