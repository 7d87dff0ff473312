#include <gtest/gtest.h>

#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"
#include "texttools/find.h"
#include "texttools/replace.h"

namespace pelmar {
namespace {

constexpr const char* kNothingFound = "message 0 \"Nenalezeno !\" \"Hledání\"; ";

std::string On(std::initializer_list<std::pair<char, bool>> fields) {
  std::string on;
  for (const auto& [sign, is_on] : fields)
    if (is_on) on += sign;
  return on + ' ';
}

std::string Number(const std::optional<std::size_t>& number) { return number ? std::to_string(*number) : "-"; }

struct SearchTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer text;
  std::string told_by;  // the labels behind the last message

  // Both dialogs take steps as letters: L the load, S start, N next, W new, "i" ignores case, "x" puts another text
  // into the document, a digit picks a row of the history.
  template <class Search>
  void Do(Search& search, char step) {
    platform.calls.clear();
    platform.answers = {Answer::kOk};
    if (step == 'i') search.case_sensitive = false;
    if (step == 'L') search.Load();
    if (step == 'N') search.Next();
    if (step == 'W') search.New();
    if (step == 'x') text.SetText("short text");
  }
  // The term and the document, and what the last step told, "!" for nothing found with the labels behind it.
  std::string Texts(const std::string& term) {
    const std::string told = platform.TakeTold();
    return ' ' + term + ' ' + Marked(text) + (told == kNothingFound ? " !" + told_by : told);
  }
  // The fields that are on (find, case, history, next), count and position.
  std::string Finding(std::string_view document, std::string_view term, std::string_view steps) {
    PutMarked(text, document);
    Finder finder(text, platform);
    finder.find = term;
    finder.before_message = [&] { told_by = Number(finder.count) + '@' + Number(finder.position); };
    for (const char step : steps) {
      Do(finder, step);
      if (step == 'S') finder.Start();
      if (step >= '0' && step <= '9') finder.PickHistory(static_cast<std::size_t>(step - '0'));
    }
    return On({{'f', finder.find_on}, {'c', finder.case_on}, {'h', finder.history_on}, {'n', finder.next_on}}) +
           Number(finder.count) + '@' + Number(finder.position) + Texts(finder.find);
  }
  // The same (find, replacement, case, lists, steps, all), found and replaced. R replaces, A all, "=" writes "X" over
  // the replacement.
  std::string Replacing(std::string_view document, std::string_view term, std::string_view change,
                        std::string_view steps) {
    PutMarked(text, document);
    Replacer replacer(text, platform);
    replacer.find = term;
    replacer.before_message = [&] { told_by = Number(replacer.found_shown) + '/' + Number(replacer.replaced_shown); };
    replacer.change = change;
    for (const char step : steps) {
      Do(replacer, step);
      if (step == 'S') {
        EXPECT_EQ(replacer.Start(), replacer.step_on);
      }
      if (step == 'R') replacer.Replace();
      if (step == 'A') {
        replacer.ReplaceAll();
        EXPECT_EQ(platform.TakeTold(), "busy 1; busy 0; ");
      }
      if (step == '=') replacer.change = "X";
      if (step >= '0' && step <= '9') replacer.PickRow(static_cast<std::size_t>(step - '0'));
    }
    return On({{'f', replacer.find_on},
               {'r', replacer.change_on},
               {'c', replacer.case_on},
               {'l', replacer.lists_on},
               {'s', replacer.step_on},
               {'a', replacer.all_on}}) +
           Number(replacer.found_shown) + '/' + Number(replacer.replaced_shown) + Texts(replacer.find);
  }
};

TEST_F(SearchTest, FindStepsThroughASnapshot) {
  const std::string_view cases[][4] = {
      {"|aaaa", "", "L", "fch -@- Text |aaaa"},
      {"a[bc|", "", "L", "fch -@- bc a[bc|"},
      {"|aaaa", "aa", "S", "n 1@0 aa [aa|aa"},
      {"|aaaa", "aa", "SN", "n 2@1 aa a[aa|a"},
      {"|aaaa", "aa", "SNNN", "fch 3@2 aa aa[aa| !3@2"},  // required: the labels stay behind the last one
      {"|aaaa", "aa", "SNNNSW", "fh 1@0 aa [aa|aa"},      // required: the check mark stays off
      {"|aaaa", "aa", "SxW", "fh 1@0 Text |short text"},
      {"a[b|c", "z", "S", "fch -@- b a[b|c !-@-"},
      {"a[b|c", "z", "S10", "fch -@- z a[b|c"},
      {"|xx čaj Čaj"_w, "čaj"_w, "iS", "n 1@3 ČAJ xx [čaj| Čaj"_w},
      {"|xx čaj Čaj"_w, "čaj"_w, "iSNN", "fch 2@7 Čaj xx čaj [Čaj| !2@7"_w},  // as the document has it
      {"|xx čaj Čaj"_w, "čaj"_w, "iSNN0", "fch 2@7 ČAJ xx čaj [Čaj|"_w},      // required: upper-cased
      {"|ab", "", "S", "n 1@0  |ab"},
      {"|ab", "", "SNN", "fch 2@1  a|b !2@1"},
      {"|", "", "S", "fch -@-  | !-@-"},
      {"|one\r\ntwo one\r\ntwo", "e\r\ntwo", "S", "n 1@2 e\r\ntwo on[e\r\ntwo| one\r\ntwo"},
      {"|one\r\ntwo one\r\ntwo", "e\r\ntwo", "SxN", "n 2@11 e\r\ntwo short text|"},  // clipped to the live text
  };
  for (const auto& [document, term, steps, shown] : cases)
    EXPECT_EQ(Finding(document, term, steps), shown) << document << ' ' << steps;
}

TEST_F(SearchTest, ReplaceReadsItsReplacementAgain) {
  const std::string_view cases[][5] = {
      {"a[b|c", "", "", "L", "frcl -/- b a[b|c"},
      {"|a a a", "a", "ba", "S", "sa 1/- a [a| a a"},
      {"|a a a", "a", "ba", "SR", "sa 2/1 a b[a| a a"},   // required: the replacement's second character is found again
      {"|a a a", "a", "ba", "iSR", "sa 2/1 A ba [a| a"},  // it isn't upper-cased
      {"|a a a", "a", "ba", "SRN", "sa 3/1 a ba [a| a"},
      {"|aaa", "aa", "X", "SN", "sa 2/- aa a[aa|"},
      {"|a a a", "a", "ba", "SRN=RR", "frcla 4/3 a ba X X| !4/3"},  // required: replace all outlives the search
      {"a[b|c", "z", "", "S", "frcla -/- b a[b|c !-/-"},
      {"|a", "a", "", "SxS", "frcla -/- a |short text !-/-"},
      {"a[b|c", "b", "", "SxW", "frla 1/- Text |short text"},
      {"|a a a", "a", "b", "SxR", "sa 2/1 a bs[h|ort text"},
      {"|Čaj čaj"_w, "čaj"_w, "voda", "iSR", "sa 2/1 ČAJ voda [čaj|"_w},
      {"|Čaj čaj"_w, "čaj"_w, "voda", "iSA", "frl -/- ČAJ |Čaj čaj"_w},  // required: the folded term misses them
      {"|Čaj čaj"_w, "čaj"_w, "voda", "iS1", "sa 1/- ČAJ [Čaj| čaj"_w},
      {"|Čaj čaj"_w, "čaj"_w, "voda", "iS0", "sa 1/- čaj [Čaj| čaj"_w},  // required: as it was typed
      {"|Čaj čaj"_w, "čaj"_w, "voda", "S=0RA", "frcl -/- čaj |Čaj voda"_w},
      {"a| b a", "a", "xax", "A", "frcl -/- a |xax b xax"},
      {"|aaaab", "a", "", "A",
       "frcl -/- a |\xFF\xFF"
       "b"},                                          // required: every second of adjacent hits stays
      {"|x\xFFy", "q", "z", "A", "frcl -/- q |xzy"},  // required: a character 255 of the text goes too
      {"ab|c", "", "z", "A", "frcl -/-  |abc"},
      {"|aba", "a", "x\xFF", "A",
       "frcl -/- a |x\xFF"
       "bx\xFF"},  // would never end by the plain rule
  };
  for (const auto& [document, term, change, steps, shown] : cases)
    EXPECT_EQ(Replacing(document, term, change, steps), shown) << document << ' ' << steps;
}

TEST_F(SearchTest, PrimitiveFindAsksItsWayThroughTheLiveText) {
  PutMarked(text, "[ab| ab");
  platform.inputs = {"ab", std::nullopt};  // a cancel is an empty term
  platform.answers = {Answer::kYes, Answer::kYes, Answer::kOk, Answer::kOk, Answer::kYes, Answer::kNo, Answer::kOk};
  const std::string ask = "input \"Vložte prosím text na hledání.\" \"Hledání\" \"ab\"; ";
  const std::string first = "message 36 \"Nalezeno na 1 místě, pokračovat ?\" \"hledání\"; ";
  const std::string end = "message 0 \"Nalezeno 2 X\" \"Hledání\"; ";
  FindPrimitively(text, platform);
  EXPECT_EQ(platform.TakeTold(),
            ask + first + "message 36 \"Nalezeno na 4 místě, pokračovat ?\" \"hledání\"; " + kNothingFound + end);
  EXPECT_EQ(Marked(text), "ab [ab|");
  FindPrimitively(text, platform);
  EXPECT_EQ(platform.TakeTold(), ask + first + "message 36 \"Nalezeno na 2 místě, pokračovat ?\" \"hledání\"; " + end);
}

}  // namespace
}  // namespace pelmar
