#include <gtest/gtest.h>

#include <random>

#include "support/scripted_platform.h"
#include "text/codepage.h"
#include "text/search.h"
#include "texttools/find.h"
#include "texttools/replace.h"

namespace pelmar {
namespace {

struct SearchTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer text;
  Finder finder{text, platform};
  Replacer replacer{text, platform};

  void Text(std::string_view content) { text.SetText(std::string(content)); }
  [[nodiscard]] std::pair<std::size_t, std::size_t> Selection() const { return {text.SelStart(), text.SelLength()}; }
  void AnswerNothingFound() { platform.answers.push_back(Answer::kOk); }
};

using Range = std::pair<std::size_t, std::size_t>;

TEST(FindFrom, EmptyTermsAndBorders) {
  EXPECT_EQ(FindFrom("abab", "ab", 0), 0u);
  EXPECT_EQ(FindFrom("abab", "ab", 1), 2u);
  for (const std::size_t from : {3u, 4u, 5u}) EXPECT_EQ(FindFrom("abab", "ab", from), std::nullopt);
  EXPECT_EQ(FindFrom("ab", "", 1), 1u);
  EXPECT_EQ(FindFrom("ab", "", 2), std::nullopt);
  EXPECT_EQ(FindFrom("", "", 0), std::nullopt);
}

TEST_F(SearchTest, FindStepsThroughOverlappingMatches) {
  Text("aaaa");
  finder.Load();
  EXPECT_EQ(finder.find, "Text");
  finder.find = "aa";
  finder.Start();
  EXPECT_FALSE(finder.find_on || finder.case_on || finder.history_on);
  EXPECT_TRUE(finder.next_on);
  EXPECT_EQ(finder.count, 1);
  EXPECT_EQ(finder.position, 0);
  EXPECT_EQ(Selection(), (Range{0, 2}));
  finder.Next();
  finder.Next();
  EXPECT_EQ(finder.count, 3);
  EXPECT_EQ(finder.position, 2);
  AnswerNothingFound();
  finder.Next();
  EXPECT_EQ(platform.calls.back(), "message 0 \"Nenalezeno !\" \"Hledání\"");
  EXPECT_EQ(finder.count, 3);  // required: the labels stay after Next
  EXPECT_TRUE(finder.find_on && finder.case_on && finder.history_on);
  EXPECT_FALSE(finder.next_on);
}

TEST_F(SearchTest, FindWithoutCaseFoldsTermAndHistory) {
  Text("xx čaj Čaj"_w);
  finder.case_sensitive = false;
  finder.find = "čaj"_w;
  finder.Start();
  EXPECT_EQ(finder.find, "ČAJ"_w);
  EXPECT_EQ(finder.history, std::vector<std::string>{std::string("ČAJ"_w)});  // required: upper-cased
  EXPECT_EQ(Selection(), (Range{3, 3}));
  finder.Next();
  EXPECT_EQ(Selection(), (Range{7, 3}));
  AnswerNothingFound();
  finder.Next();
  EXPECT_EQ(finder.find, "Čaj"_w);  // taken from the document, in its own case
}

TEST_F(SearchTest, AFindThatFindsNothingBlanksTheLabels) {
  Text("abc");
  text.Select(1, 2);
  finder.find = "z";
  AnswerNothingFound();
  finder.Start();
  EXPECT_EQ(finder.count, std::nullopt);
  EXPECT_EQ(finder.position, std::nullopt);
  EXPECT_EQ(finder.find, "b");
  EXPECT_EQ(Selection(), (Range{1, 1}));
  EXPECT_EQ(finder.history.size(), 1u);
  finder.PickHistory(0);
  EXPECT_EQ(finder.find, "z");
}

TEST_F(SearchTest, NewKeepsTheCaseBoxOff) {
  Text("abc");
  finder.find = "a";
  finder.Start();
  finder.New();
  EXPECT_EQ(finder.find, "a");
  EXPECT_TRUE(finder.find_on && finder.history_on);
  EXPECT_FALSE(finder.case_on);  // required
  EXPECT_EQ(finder.count, 1);
}

TEST_F(SearchTest, AnEmptyTermWalksThroughTheText) {
  Text("ab");
  finder.find.clear();
  finder.Start();
  EXPECT_EQ(finder.count, 1);
  finder.Next();
  EXPECT_EQ(finder.position, 1);
  AnswerNothingFound();
  finder.Next();
  Text("");
  AnswerNothingFound();
  finder.find.clear();
  finder.Start();
  EXPECT_EQ(finder.count, std::nullopt);
}

TEST_F(SearchTest, TheSnapshotDoesNotFollowTheDocument) {
  Text("one\r\ntwo one\r\ntwo");
  finder.find = "e\r\ntwo";
  finder.Start();
  EXPECT_EQ(Selection(), (Range{2, 6}));
  Text("short text");
  finder.Next();
  EXPECT_EQ(Selection(), (Range{10, 0}));  // clipped to the live text
}

TEST_F(SearchTest, PrimitiveFindAsksItsWayThroughTheLiveText) {
  Text("ab ab");
  text.Select(0, 2);
  platform.inputs = {"ab"};
  platform.answers = {Answer::kYes, Answer::kYes, Answer::kOk, Answer::kOk};
  FindPrimitively(text, platform);
  EXPECT_EQ(
      platform.TakeCalls(),
      (std::vector<std::string>{"input \"Vložte prosím text na hledání.\" \"Hledání\" \"ab\"",
                                "message 36 \"Nalezeno na 1 místě, pokračovat ?\" \"hledání\"",
                                "message 36 \"Nalezeno na 4 místě, pokračovat ?\" \"hledání\"",
                                "message 0 \"Nenalezeno !\" \"Hledání\"", "message 0 \"Nalezeno 2 X\" \"Hledání\""}));
  EXPECT_EQ(Selection(), (Range{3, 2}));
  platform.inputs = {std::nullopt};  // a cancel is an empty term
  platform.answers = {Answer::kYes, Answer::kNo, Answer::kOk};
  FindPrimitively(text, platform);
  EXPECT_EQ(platform.calls.back(), "message 0 \"Nalezeno 2 X\" \"Hledání\"");
}

TEST_F(SearchTest, ReplaceStepsAndReadsItsReplacementAgain) {
  Text("a a a");
  replacer.step_on = true;
  replacer.Load();
  EXPECT_FALSE(replacer.step_on);
  replacer.find = "a";
  replacer.change = "ba";
  EXPECT_TRUE(replacer.Start());
  EXPECT_TRUE(replacer.step_on && replacer.all_on);
  EXPECT_EQ(replacer.found_shown, 1);
  replacer.Replace();
  EXPECT_EQ(text.Text(), "ba a a");
  EXPECT_EQ(Selection(), (Range{1, 1}));  // required: the replacement's second character is found again
  EXPECT_EQ(replacer.replaced_shown, 1);
  EXPECT_EQ(replacer.found_shown, 2);
  replacer.Next();
  EXPECT_EQ(Selection(), (Range{3, 1}));
  replacer.change = "X";
  replacer.Replace();
  AnswerNothingFound();
  replacer.Replace();
  EXPECT_EQ(text.Text(), "ba X X");
  EXPECT_EQ(replacer.replaced_shown, 3);
  EXPECT_TRUE(replacer.find_on && replacer.change_on && replacer.lists_on && replacer.case_on);
  EXPECT_FALSE(replacer.step_on);
  EXPECT_TRUE(replacer.all_on);  // required: replace all outlives the search
}

TEST_F(SearchTest, ReplaceWithoutCaseKeepsTheHistoryAsTyped) {
  Text("Čaj čaj"_w);
  replacer.case_sensitive = false;
  replacer.find = "čaj"_w;
  replacer.change = "voda";
  replacer.Start();
  EXPECT_EQ(replacer.terms.back(), "čaj"_w);
  EXPECT_EQ(replacer.find, "ČAJ"_w);
  replacer.Replace();
  EXPECT_EQ(text.Text(), "voda čaj"_w);
  EXPECT_EQ(replacer.Snapshot().Text(), "voda ČAJ"_w);
  EXPECT_EQ(Selection(), (Range{5, 3}));
  replacer.ReplaceAll();  // required: the folded term misses the lower-case occurrence
  EXPECT_EQ(text.Text(), "voda čaj"_w);
  EXPECT_TRUE(replacer.find_on && replacer.lists_on && replacer.change_on);
  EXPECT_FALSE(replacer.all_on || replacer.case_on || replacer.step_on);
  EXPECT_EQ(replacer.found_shown, std::nullopt);
  replacer.PickRow(0);
  EXPECT_EQ(replacer.find, "čaj"_w);
  EXPECT_EQ(platform.busy, 0);
}

TEST_F(SearchTest, AReplaceThatFindsNothingBlanksItsLabels) {
  Text("abc");
  replacer.find = "z";
  AnswerNothingFound();
  EXPECT_FALSE(replacer.Start());
  EXPECT_EQ(platform.calls.back(), "message 0 \"Nenalezeno !\" \"Hledání\"");
  EXPECT_EQ(replacer.found_shown, std::nullopt);
  EXPECT_TRUE(replacer.all_on);
  replacer.New();
  EXPECT_EQ(replacer.find, "Text");
}

TEST(ReplaceAll, GoesThroughTheMarker) {
  EXPECT_EQ(ReplaceAllByMarker("a b a", "a", "xax"), "xax b xax");
  EXPECT_EQ(ReplaceAllByMarker("aaaa", "a", ""), "\xFF\xFF");  // required: every second of adjacent hits stays
  EXPECT_EQ(ReplaceAllByMarker("aba", "a", ""), "b");
  EXPECT_EQ(ReplaceAllByMarker("x\xFFy", "q", "z"), "xzy");  // required: a character 255 of the text goes too
  EXPECT_EQ(ReplaceAllByMarker("abc", "", "z"), "abc");
  EXPECT_EQ(ReplaceAllByMarker("aa", "a", "x\xFF"), "x\xFFx\xFF");  // would never end by the plain rule
}

std::string ToldReplaceAll(std::string s, const std::string& find, const std::string& change) {
  const auto pass = [&s](const std::string& what, const std::string& with) {
    for (std::size_t from = 0; (from = s.find(what, from)) != std::string::npos; ++from)
      s = s.substr(0, from) + with + s.substr(from + what.size());
  };
  pass(find, "\xFF");
  pass("\xFF", change);
  return s;
}

TEST(ReplaceAll, EqualsTheToldLoopOnRandomTexts) {
  std::mt19937 random(5);
  const auto word = [&](std::size_t least, std::size_t most) {
    std::string text;
    for (std::size_t n = least + random() % (most - least + 1); n > 0; --n) text += "ab\xFF"[random() % 8 % 3];
    return text;
  };
  for (int round = 0; round < 5000; ++round) {
    const std::string text = word(0, 24), find = word(1, 3);
    std::string change = word(0, 3);
    if (change.find('\xFF', 1) != std::string::npos || find == "\xFF") continue;
    ASSERT_EQ(ReplaceAllByMarker(text, find, change), ToldReplaceAll(text, find, change));
  }
}

}  // namespace
}  // namespace pelmar
