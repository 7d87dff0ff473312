// The searches of the dialogs Hledání and Záměna, and the primitive search.
#include <gtest/gtest.h>

#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"
#include "texttools/find.h"
#include "texttools/replace.h"

namespace pelmar {
namespace {

using Calls = std::vector<std::string>;
constexpr const char* kNothingFound = "message 0 \"Nenalezeno !\" \"Hledání\"";

using Number = std::optional<std::size_t>;

// A search in a document, and the steps of a person in its dialog.
template <class Search>
struct Searching {
  ScriptedPlatform platform;
  TextBuffer text;
  Search search{text, platform};

  using Step = void (*)(Searching&);
  static void Start(Searching& s) { s.search.Start(); }
  static void Next(Searching& s) { s.search.Next(); }
  static void New(Searching& s) { s.search.New(); }
  static void IgnoreCase(Searching& s) { s.search.case_sensitive = false; }
  static void OtherText(Searching& s) { s.text.SetText("short text"); }

  // The document after the steps, with " !" if the last step found nothing and said so.
  std::string After(std::string_view document, std::string_view term, const std::vector<Step>& steps) {
    PutMarked(text, document);
    search.find = FromUtf8(term);
    for (const Step step : steps) {
      platform.TakeCalls();
      platform.answers = {Answer::kOk};
      step(*this);
    }
    return Marked(text) + (platform.TakeCalls() == Calls{kNothingFound} ? " !" : "");
  }
};

struct Finding : Searching<Finder> {
  static void PickFirst(Searching& s) { s.search.PickHistory(0); }
};

TEST(Find, SearchesTheTextAsItWasAtTheStart) {
  using F = Finding;
  const struct {
    const char *document, *term;
    std::vector<F::Step> steps;
    const char *after, *new_term;
    Number count, position;
    bool searching = false;
  } cases[] = {
      // Document, term, steps; afterwards: document, term, number of hits, last position, whether the search continues.
      {"|aaaa", "aa", {F::Start}, "[aa|aa", "aa", 1, 0, true},
      {"|aaaa", "aa", {F::Start, F::Next}, "a[aa|a", "aa", 2, 1, true},
      {"|aa", "a", {F::Start, F::Next, F::Next}, "a[a| !", "a", 2, 1},  // required: the numbers stay
      {"a[b|c", "z", {F::Start}, "a[b|c !", "b", {}, {}},
      {"|xx čaj Čaj", "čaj", {F::IgnoreCase, F::Start}, "xx [čaj| Čaj", "ČAJ", 1, 3, true},
      // After the last hit the term is as in the document. required: in the history the term is in upper case.
      {"|čaj Čaj", "čaj", {F::IgnoreCase, F::Start, F::Next, F::Next}, "čaj [Čaj| !", "Čaj", 2, 4},
      {"|čaj", "čaj", {F::IgnoreCase, F::Start, F::Next, F::PickFirst}, "[čaj|", "ČAJ", 1, 0},
      {"|ab", "", {F::Start, F::Next}, "a|b", "", 2, 1, true},
      {"|", "", {F::Start}, "| !", "", {}, {}},
      {"|one", "one", {F::Start, F::OtherText, F::New, F::Start}, "|short text !", "Text", {}, {}},
      {"|one two one", "one", {F::Start, F::OtherText, F::Next}, "short te[xt|", "one", 2, 8, true},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.document) + " to " + c.after);
    Finding finding;
    EXPECT_EQ(finding.After(c.document, c.term, c.steps), c.after);
    EXPECT_EQ(ToUtf8(finding.search.find), c.new_term);
    EXPECT_EQ(finding.search.count, c.count);
    EXPECT_EQ(finding.search.position, c.position);
    EXPECT_EQ(finding.search.next_on, c.searching);
    EXPECT_EQ(finding.search.find_on, !c.searching);
    EXPECT_EQ(finding.search.case_on, !c.searching);
    EXPECT_EQ(finding.search.history_on, !c.searching);
  }
}

TEST(Find, ANewSearchLeavesTheCheckBoxOfTheCaseDisabled) {  // required
  Finding finding;
  finding.After("|aa", "a", {Finding::Start, Finding::New});
  EXPECT_TRUE(finding.search.find_on);
  EXPECT_TRUE(finding.search.history_on);
  EXPECT_FALSE(finding.search.case_on);
  EXPECT_FALSE(finding.search.next_on);
}

struct Replacing : Searching<Replacer> {
  static void Replace(Searching& s) { s.search.Replace(); }
  static void All(Searching& s) { s.search.ReplaceAll(); }
  static void PickFirst(Searching& s) { s.search.PickRow(0); }
  static void PickSecond(Searching& s) { s.search.PickRow(1); }
  static void ChangeToX(Searching& s) { s.search.change = "X"; }
};

TEST(Replace, ContinuesAtTheSecondCharacterOfTheReplacement) {  // required
  using R = Replacing;
  const struct {
    const char *document, *term, *change;
    std::vector<R::Step> steps;
    const char *after, *new_term;
    Number found, replaced;
    bool searching = false;
  } cases[] = {
      // Document, term, replacement, steps; afterwards: document, term, both counts, whether the search continues.
      {"|aaa", "aa", "X", {R::Start, R::Next}, "a[aa|", "aa", 2, {}, true},
      {"|a a a", "a", "ba", {R::Start, R::Replace}, "b[a| a a", "a", 2, 1, true},
      {"|a a a", "a", "ba", {R::Start, R::Replace, R::Next}, "ba [a| a", "a", 3, 1, true},
      {"|a a a", "a", "ba", {R::IgnoreCase, R::Start, R::Replace}, "ba [a| a", "A", 2, 1, true},
      {"|a", "a", "X", {R::Start, R::Replace}, "X| !", "a", 1, 1},
      {"a[b|c", "z", "", {R::Start}, "a[b|c !", "b", {}, {}},
      {"|a", "a", "X", {R::Start, R::Replace, R::OtherText, R::New, R::Start}, "|short text !", "Text", {}, {}},
      {"|a a", "a", "b", {R::Start, R::OtherText, R::Replace}, "bs[h|ort text", "a", 2, 1, true},
      // required: the list has the term as it was typed
      {"|Čaj", "čaj", "x", {R::IgnoreCase, R::Start, R::PickSecond}, "[Čaj|", "ČAJ", 1, {}, true},
      {"|Čaj", "čaj", "x", {R::IgnoreCase, R::Start, R::PickFirst}, "[Čaj|", "čaj", 1, {}, true},
      {"|a", "a", "b", {R::Start, R::ChangeToX, R::PickFirst, R::Replace}, "b| !", "a", 1, 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.document) + " to " + c.after);
    Replacing replacing;
    replacing.search.change = c.change;
    EXPECT_EQ(replacing.After(c.document, c.term, c.steps), c.after);
    EXPECT_EQ(ToUtf8(replacing.search.find), c.new_term);
    EXPECT_EQ(replacing.search.found_shown, c.found);
    EXPECT_EQ(replacing.search.replaced_shown, c.replaced);
    EXPECT_EQ(replacing.search.step_on, c.searching);
    EXPECT_EQ(replacing.search.find_on, !c.searching);
    EXPECT_EQ(replacing.search.change_on, !c.searching);
    EXPECT_EQ(replacing.search.case_on, !c.searching);
    EXPECT_EQ(replacing.search.lists_on, !c.searching);
    EXPECT_TRUE(replacing.search.all_on);  // required: the button stays enabled after the search
  }
}

TEST(Replace, ANewSearchLeavesTheCheckBoxOfTheCaseDisabled) {  // required
  Replacing replacing;
  EXPECT_EQ(replacing.After("ab|", "b", {Replacing::Start, Replacing::OtherText, Replacing::New}), "|short text");
  EXPECT_EQ(replacing.search.find, "Text");
  EXPECT_FALSE(replacing.search.case_on);
  EXPECT_TRUE(replacing.search.find_on);
  EXPECT_FALSE(replacing.search.step_on);
  EXPECT_TRUE(replacing.search.all_on);
}

TEST(Replace, AllWithoutCaseSearchesTheTermInUpperCaseAndEndsTheSearch) {  // required
  Replacing replacing;
  EXPECT_EQ(replacing.After("|Čaj", "čaj", {Replacing::IgnoreCase, Replacing::Start, Replacing::All}), "|Čaj");
  EXPECT_EQ(ToUtf8(replacing.search.find), "ČAJ");
  EXPECT_EQ(replacing.search.found_shown, std::nullopt);
  EXPECT_FALSE(replacing.search.all_on);
}

TEST(Replace, AllUsesCharacter255AsAMarker) {
  const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
      {"a b a", "a", "xax", "xax b xax"},
      {"aaaab", "a", "", "\377\377b"},  // required: every second of adjacent hits becomes character 255 and stays
      {"x\377y", "q", "z", "xzy"},      // required: a character 255 of the text is replaced too
      {"abc", "", "z", "abc"},
      // A new character 255 is not replaced again, otherwise the loop would never end.
      {"aba", "a", "x\377", "x\377bx\377"},
  };
  for (const auto& [text, term, change, after] : cases) EXPECT_EQ(ReplaceAllByMarker(text, term, change), after);
}

TEST(PrimitiveFind, AsksAtEachHitUntilNothingIsFoundOrThePersonSaysNo) {
  const auto hit = [](int place) {
    return "message 36 \"Nalezeno na " + std::to_string(place) + " místě, pokračovat ?\" \"hledání\"";
  };
  const std::string ask = "input \"Vložte prosím text na hledání.\" \"Hledání\" \"ab\"";
  const std::string end = "message 0 \"Nalezeno 2 X\" \"Hledání\"";
  ScriptedPlatform platform;
  TextBuffer text;
  PutMarked(text, "[ab| ab");
  platform.inputs = {"ab", std::nullopt};
  platform.answers = {Answer::kYes, Answer::kYes, Answer::kOk, Answer::kOk, Answer::kYes, Answer::kNo, Answer::kOk};
  FindPrimitively(text, platform);
  EXPECT_EQ(platform.TakeCalls(), (Calls{ask, hit(1), hit(4), kNothingFound, end}));
  EXPECT_EQ(Marked(text), "ab [ab|");
  FindPrimitively(text, platform);  // a cancelled question is an empty term
  EXPECT_EQ(platform.calls, (Calls{ask, hit(1), hit(2), end}));
}

}  // namespace
}  // namespace pelmar
