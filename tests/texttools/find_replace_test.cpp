#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "text/codepage.h"
#include "text/search.h"
#include "texttools/find.h"
#include "texttools/replace.h"

namespace pelmar {
namespace {

template <class Number>
std::string Shown(const std::optional<Number>& number) {
  return number ? std::to_string(*number) : "-";
}

struct SearchTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer text;
  Finder finder{text, platform};
  Replacer replacer{text, platform};

  SearchTest() { platform.answers.assign(3, Answer::kOk); }
  void Text(std::string_view content) { text.SetText(std::string(content)); }
  [[nodiscard]] std::string Selected() const {
    return std::to_string(text.SelStart()) + '+' + std::to_string(text.SelLength());
  }
  // What can be used of the field, the check mark, the history and the button for more; the two labels; the term;
  // the selection in the document.
  [[nodiscard]] std::string Finding() const {
    std::string on;
    if (finder.find_on) on += 'f';
    if (finder.case_on) on += 'c';
    if (finder.history_on) on += 'h';
    if (finder.next_on) on += 'n';
    return on + ' ' + Shown(finder.count) + '@' + Shown(finder.position) + ' ' + finder.find + ' ' + Selected();
  }
  // The same of the field, the replacement's, the check mark, the lists, the steps and the button for all.
  [[nodiscard]] std::string Replacing() const {
    std::string on;
    if (replacer.find_on) on += 'f';
    if (replacer.change_on) on += 'r';
    if (replacer.case_on) on += 'c';
    if (replacer.lists_on) on += 'l';
    if (replacer.step_on) on += 's';
    if (replacer.all_on) on += 'a';
    return on + ' ' + Shown(replacer.found_shown) + '/' + Shown(replacer.replaced_shown) + ' ' + replacer.find + ' ' +
           Selected();
  }
};

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
  EXPECT_EQ(Finding(), "n 1@0 aa 0+2");
  finder.Next();
  EXPECT_EQ(Finding(), "n 2@1 aa 1+2");
  finder.Next();
  finder.Next();
  EXPECT_EQ(platform.TakeCalls(), std::vector<std::string>{"message 0 \"Nenalezeno !\" \"Hledání\""});
  EXPECT_EQ(Finding(), "fch 3@2 aa 2+2");  // required: the labels stay after Next
  finder.Start();
  finder.New();
  EXPECT_EQ(Finding(), "fh 1@0 aa 0+2");  // required: the check mark stays off
}

TEST_F(SearchTest, FindWithoutCaseFoldsTermAndHistory) {
  Text("xx čaj Čaj"_w);
  finder.case_sensitive = false;
  finder.find = "čaj"_w;
  finder.Start();
  EXPECT_EQ(Finding(), "n 1@3 ČAJ 3+3"_w);
  EXPECT_EQ(finder.history, std::vector<std::string>{std::string("ČAJ"_w)});  // required: upper-cased
  finder.Next();
  finder.Next();
  EXPECT_EQ(Finding(), "fch 2@7 Čaj 7+3"_w);  // taken from the document, in its own case
}

TEST_F(SearchTest, AFindThatFindsNothingBlanksTheLabels) {
  Text("abc");
  text.Select(1, 2);
  finder.find = "z";
  finder.Start();
  EXPECT_EQ(Finding(), "fch -@- b 1+1");
  finder.PickHistory(1);
  EXPECT_EQ(finder.find, "b");
  finder.PickHistory(0);
  EXPECT_EQ(finder.find, "z");
}

TEST_F(SearchTest, AnEmptyTermWalksThroughTheText) {
  Text("ab");
  finder.find.clear();
  finder.Start();
  finder.Next();
  EXPECT_EQ(Finding(), "n 2@1  1+0");
  finder.Next();
  Text("");
  finder.find.clear();
  finder.Start();
  EXPECT_EQ(Finding(), "fch -@-  0+0");
}

TEST_F(SearchTest, TheSnapshotDoesNotFollowTheDocument) {
  Text("one\r\ntwo one\r\ntwo");
  finder.find = "e\r\ntwo";
  finder.Start();
  EXPECT_EQ(Selected(), "2+6");
  Text("short text");
  finder.Next();
  EXPECT_EQ(Selected(), "10+0");  // clipped to the live text
}

TEST_F(SearchTest, PrimitiveFindAsksItsWayThroughTheLiveText) {
  Text("ab ab");
  text.Select(0, 2);
  platform.inputs = {"ab", std::nullopt};  // a cancel is an empty term
  platform.answers = {Answer::kYes, Answer::kYes, Answer::kOk, Answer::kOk, Answer::kYes, Answer::kNo, Answer::kOk};
  FindPrimitively(text, platform);
  EXPECT_EQ(
      platform.TakeCalls(),
      (std::vector<std::string>{"input \"Vložte prosím text na hledání.\" \"Hledání\" \"ab\"",
                                "message 36 \"Nalezeno na 1 místě, pokračovat ?\" \"hledání\"",
                                "message 36 \"Nalezeno na 4 místě, pokračovat ?\" \"hledání\"",
                                "message 0 \"Nenalezeno !\" \"Hledání\"", "message 0 \"Nalezeno 2 X\" \"Hledání\""}));
  EXPECT_EQ(Selected(), "3+2");
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
  EXPECT_EQ(Replacing(), "sa 1/- a 0+1");
  replacer.Replace();
  EXPECT_EQ(text.Text(), "ba a a");
  EXPECT_EQ(Replacing(), "sa 2/1 a 1+1");  // required: the replacement's second character is found again
  replacer.Next();
  EXPECT_EQ(Replacing(), "sa 3/1 a 3+1");
  replacer.change = "X";
  replacer.Replace();
  replacer.Replace();
  EXPECT_EQ(text.Text(), "ba X X");
  EXPECT_EQ(platform.TakeCalls(), std::vector<std::string>{"message 0 \"Nenalezeno !\" \"Hledání\""});
  EXPECT_EQ(Replacing(), "frcla 4/3 a 6+0");  // required: replace all outlives the search
}

TEST_F(SearchTest, ReplaceWithoutCaseKeepsTheHistoryAsTyped) {
  Text("Čaj čaj"_w);
  replacer.case_sensitive = false;
  replacer.find = "čaj"_w;
  replacer.change = "voda";
  replacer.Start();
  replacer.Replace();
  EXPECT_EQ(text.Text(), "voda čaj"_w);
  EXPECT_EQ(replacer.Snapshot().Text(), "voda ČAJ"_w);
  EXPECT_EQ(Replacing(), "sa 2/1 ČAJ 5+3"_w);
  replacer.ReplaceAll();  // required: the folded term misses the lower-case occurrence
  EXPECT_EQ(text.Text(), "voda čaj"_w);
  EXPECT_EQ(Replacing().substr(0, 7), "frl -/-");  // required: the check mark stays off
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{"busy 1", "busy 0"}));
  replacer.change.clear();
  replacer.PickRow(1);
  EXPECT_EQ(replacer.change, "");
  replacer.PickRow(0);
  EXPECT_EQ(replacer.find, "čaj"_w);
  EXPECT_EQ(replacer.change, "voda");
}

TEST_F(SearchTest, AReplaceThatFindsNothingBlanksItsLabels) {
  Text("abc");
  text.Select(1, 2);
  replacer.find = "z";
  EXPECT_FALSE(replacer.Start());
  EXPECT_EQ(Replacing(), "frcla -/- b 1+1");
  replacer.find = "b";
  EXPECT_TRUE(replacer.Start());
  text.SetSelStart(0);
  replacer.New();
  EXPECT_EQ(Replacing(), "frla 1/- Text 0+0");
}

TEST(ReplaceAll, GoesThroughTheMarker) {
  EXPECT_EQ(ReplaceAllByMarker("a b a", "a", "xax"), "xax b xax");
  EXPECT_EQ(ReplaceAllByMarker("aaaab", "a", ""),
            "\xFF\xFF"
            "b");                                            // required: every second of adjacent hits stays
  EXPECT_EQ(ReplaceAllByMarker("x\xFFy", "q", "z"), "xzy");  // required: a character 255 of the text goes too
  EXPECT_EQ(ReplaceAllByMarker("abc", "", "z"), "abc");
  EXPECT_EQ(ReplaceAllByMarker("aba", "a", "x\xFF"),
            "x\xFF"
            "bx\xFF");  // would never end by the plain rule
}

}  // namespace
}  // namespace pelmar
