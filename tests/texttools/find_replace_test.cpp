// The searches of the dialogs Hledání and Záměna, and the primitive one.
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

std::string Shown(const std::optional<std::size_t>& number) { return number ? std::to_string(*number) : "-"; }

// A search of a document, and what a person does in its dialog.
template <class Search>
struct Searching {
  ScriptedPlatform platform;
  TextBuffer text;
  Search search{text, platform};

  using Step = void (*)(Searching&);
  static void Load(Searching& s) { s.search.Load(); }
  static void Start(Searching& s) { s.search.Start(); }
  static void Next(Searching& s) { s.search.Next(); }
  static void New(Searching& s) { s.search.New(); }
  static void IgnoreCase(Searching& s) { s.search.case_sensitive = false; }
  static void OtherText(Searching& s) { s.text.SetText("short text"); }

  // The document behind the steps, with "!" where the last one told that there is nothing.
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
  [[nodiscard]] std::string Term() const { return ToUtf8(search.find); }
};

struct Finding : Searching<Finder> {
  static void PickFirst(Searching& s) { s.search.PickHistory(0); }
  static void PickSecond(Searching& s) { s.search.PickHistory(1); }
  [[nodiscard]] std::string On() const {
    return std::string(search.find_on ? "term " : "") + (search.case_on ? "case " : "") +
           (search.history_on ? "history " : "") + (search.next_on ? "next " : "");
  }
  [[nodiscard]] std::string Labels() const { return Shown(search.count) + " at " + Shown(search.position); }
};

TEST(Find, StepsThroughTheTextOfTheStart) {
  using F = Finding;
  const struct {
    const char *document, *term;
    std::vector<F::Step> steps;
    const char *after, *new_term, *labels;
    const char* on = "term case history ";
  } cases[] = {
      {"|aaaa", "", {F::Load}, "|aaaa", "Text", "- at -"},
      {"a[bc|", "", {F::Load}, "a[bc|", "bc", "- at -"},
      {"|aaaa", "aa", {F::Start}, "[aa|aa", "aa", "1 at 0", "next "},
      {"|aaaa", "aa", {F::Start, F::Next}, "a[aa|a", "aa", "2 at 1", "next "},
      {"|aa", "a", {F::Start, F::Next, F::Next}, "a[a| !", "a", "2 at 1"},       // required: the labels stay
      {"|aa", "a", {F::Start, F::New}, "[a|a", "a", "1 at 0", "term history "},  // required: case stays off
      {"a[b|c", "z", {F::Start}, "a[b|c !", "b", "- at -"},
      {"a[b|c", "z", {F::Start, F::PickFirst, F::PickSecond}, "a[b|c", "z", "- at -"},
      {"|xx čaj Čaj", "čaj", {F::IgnoreCase, F::Start}, "xx [čaj| Čaj", "ČAJ", "1 at 3", "next "},
      // Behind the last hit the term is as the document has it. required: in the history it is in upper case.
      {"|čaj Čaj", "čaj", {F::IgnoreCase, F::Start, F::Next, F::Next}, "čaj [Čaj| !", "Čaj", "2 at 4"},
      {"|čaj", "čaj", {F::IgnoreCase, F::Start, F::Next, F::PickFirst}, "[čaj|", "ČAJ", "1 at 0"},
      {"|ab", "", {F::Start, F::Next}, "a|b", "", "2 at 1", "next "},
      {"|", "", {F::Start}, "| !", "", "- at -"},
      {"|one¶two", "e\r\ntwo", {F::Start}, "on[e¶two|", "e\r\ntwo", "1 at 2", "next "},
      {"|one two one", "one", {F::Start, F::OtherText, F::Next}, "short te[xt|", "one", "2 at 8", "next "},
  };
  for (const auto& c : cases) {
    Finding finding;
    EXPECT_EQ(finding.After(c.document, c.term, c.steps), c.after);
    EXPECT_EQ(finding.Term(), c.new_term) << c.document << " to " << c.after;
    EXPECT_EQ(finding.Labels(), c.labels) << c.document << " to " << c.after;
    EXPECT_EQ(finding.On(), c.on) << c.document << " to " << c.after;
  }
}

struct Replacing : Searching<Replacer> {
  static void Replace(Searching& s) { s.search.Replace(); }
  static void All(Searching& s) { s.search.ReplaceAll(); }
  static void PickFirst(Searching& s) { s.search.PickRow(0); }
  static void PickSecond(Searching& s) { s.search.PickRow(1); }
  static void ChangeToX(Searching& s) { s.search.change = "X"; }
  [[nodiscard]] std::string On() const {
    return std::string(search.find_on ? "term " : "") + (search.change_on ? "change " : "") +
           (search.case_on ? "case " : "") + (search.lists_on ? "lists " : "") + (search.step_on ? "step " : "") +
           (search.all_on ? "all " : "");
  }
  [[nodiscard]] std::string Labels() const {
    return Shown(search.found_shown) + " found, " + Shown(search.replaced_shown) + " replaced";
  }
};

TEST(Replace, ReadsItsReplacementAgainFromTheSecondCharacterOn) {  // required
  using R = Replacing;
  const struct {
    const char *document, *term, *change;
    std::vector<R::Step> steps;
    const char *after, *new_term, *labels;
    const char* on = "step all ";
  } cases[] = {
      {"a[b|c", "", "", {R::Load}, "a[b|c", "b", "- found, - replaced", "term change case lists "},
      {"|aaa", "aa", "X", {R::Start, R::Next}, "a[aa|", "aa", "2 found, - replaced"},
      {"|a a a", "a", "ba", {R::Start, R::Replace}, "b[a| a a", "a", "2 found, 1 replaced"},
      {"|a a a", "a", "ba", {R::Start, R::Replace, R::Next}, "ba [a| a", "a", "3 found, 1 replaced"},
      {"|a a a", "a", "ba", {R::IgnoreCase, R::Start, R::Replace}, "ba [a| a", "A", "2 found, 1 replaced"},
      // required: replace all outlives the search
      {"|a", "a", "X", {R::Start, R::Replace}, "X| !", "a", "1 found, 1 replaced", "term change case lists all "},
      {"a[b|c", "z", "", {R::Start}, "a[b|c !", "b", "- found, - replaced", "term change case lists all "},
      {"ab|",
       "b",
       "",
       {R::Start, R::OtherText, R::New},
       "|short text",
       "Text",
       "1 found, - replaced",
       "term change lists all "},
      {"|a a", "a", "b", {R::Start, R::OtherText, R::Replace}, "bs[h|ort text", "a", "2 found, 1 replaced"},
      // required: in the list the term is as it was typed
      {"|Čaj", "čaj", "x", {R::IgnoreCase, R::Start, R::PickSecond}, "[Čaj|", "ČAJ", "1 found, - replaced"},
      {"|Čaj", "čaj", "x", {R::IgnoreCase, R::Start, R::PickFirst}, "[Čaj|", "čaj", "1 found, - replaced"},
      {"|a",
       "a",
       "b",
       {R::Start, R::ChangeToX, R::PickFirst, R::Replace},
       "b| !",
       "a",
       "1 found, 1 replaced",
       "term change case lists all "},
      // required: the term in upper case misses them
      {"|Čaj",
       "čaj",
       "x",
       {R::IgnoreCase, R::Start, R::All},
       "|Čaj",
       "ČAJ",
       "- found, - replaced",
       "term change lists "},
  };
  for (const auto& c : cases) {
    Replacing replacing;
    replacing.search.change = c.change;
    EXPECT_EQ(replacing.After(c.document, c.term, c.steps), c.after);
    EXPECT_EQ(replacing.Term(), c.new_term) << c.document << " to " << c.after;
    EXPECT_EQ(replacing.Labels(), c.labels) << c.document << " to " << c.after;
    EXPECT_EQ(replacing.On(), c.on) << c.document << " to " << c.after;
  }
}

TEST(Replace, AllGoesByCharacter255) {
  const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
      {"a b a", "a", "xax", "xax b xax"},
      {"aaaab", "a", "",
       "\xFF\xFF"
       "b"},                        // required: every second of adjacent hits stays
      {"x\xFFy", "q", "z", "xzy"},  // required: a character 255 of the text goes too
      {"abc", "", "z", "abc"},
      {"aba", "a", "x\xFF",
       "x\xFF"
       "bx\xFF"},  // would never end by the plain rule
  };
  for (const auto& [text, term, change, after] : cases) EXPECT_EQ(ReplaceAllByMarker(text, term, change), after);
}

struct PrimitiveFindTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer text;
  const std::string ask = "input \"Vložte prosím text na hledání.\" \"Hledání\" \"ab\"";
  static std::string Hit(int place) {
    return "message 36 \"Nalezeno na " + std::to_string(place) + " místě, pokračovat ?\" \"hledání\"";
  }
  const std::string end = "message 0 \"Nalezeno 2 X\" \"Hledání\"";
};

TEST_F(PrimitiveFindTest, AsksAtEachHitUntilNothingIsFound) {
  PutMarked(text, "[ab| ab");
  platform.inputs = {"ab"};
  platform.answers = {Answer::kYes, Answer::kYes, Answer::kOk, Answer::kOk};
  FindPrimitively(text, platform);
  EXPECT_EQ(platform.calls, (Calls{ask, Hit(1), Hit(4), kNothingFound, end}));
  EXPECT_EQ(Marked(text), "ab [ab|");
}

TEST_F(PrimitiveFindTest, ACancelIsAnEmptyTermAndNoEndsTheSearch) {
  PutMarked(text, "[ab| ab");
  platform.inputs = {std::nullopt};
  platform.answers = {Answer::kYes, Answer::kNo, Answer::kOk};
  FindPrimitively(text, platform);
  EXPECT_EQ(platform.calls, (Calls{ask, Hit(1), Hit(2), end}));
}

}  // namespace
}  // namespace pelmar
