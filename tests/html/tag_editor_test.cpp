#include "html/tag_editor.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::size_t kNone = std::string::npos;

// A text whose first "^" stands for the caret and is no part of it.
struct CaretText {
  explicit CaretText(std::string_view marked) : text(marked), caret(text.find('^')) { text.erase(caret, 1); }
  std::string text;
  std::size_t caret;
};

// The place and the length of the tag, its name, "|NAME:value" for each row, at the end the step that failed.
std::string Shown(const TagAnalysis& analysis) {
  if (!analysis.has_tag) return analysis.range || analysis.failed_in ? "none, but more" : "none";
  std::string shown = "no place";
  if (analysis.range) shown = std::to_string(analysis.range->start) + '+' + std::to_string(analysis.range->length);
  shown += ' ' + analysis.name;
  for (std::size_t row = 0; row < analysis.attributes.names.size(); ++row) {
    shown += '|' + analysis.attributes.names[row];
    if (row < analysis.attributes.values.size()) shown += ':' + analysis.attributes.values[row];
  }
  return analysis.failed_in ? shown + " !" + std::string(TagStepName(*analysis.failed_in)) : shown;
}

std::string Rewritten(std::string text, std::string_view find, std::string_view with) {
  constexpr std::string_view kMarker = "˙"_w;  // what the tag has of it turns into the new text as well
  for (const auto& [from, to] : {std::pair{find, kMarker}, {kMarker, with}})
    for (std::size_t at = 0; (at = text.find(from, at)) != kNone; at += to.size()) text.replace(at, from.size(), to);
  return text;
}

std::string Trimmed(std::string text) {
  while (text.starts_with(' ')) text.erase(0, 1);
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

// The same, step by step as with pencil and rubber.
std::string ShownSlowly(const std::string& text, std::size_t caret) {
  const std::size_t start = text.substr(0, caret + 1).rfind('<');
  if (start == kNone || text.find('>', text.find('<')) == kNone) return "none";
  const std::string tag = text.substr(start, text.find('>', start) - start + 1);
  const std::size_t blank = tag.find(' '), size = tag.size();
  if (size < 2) return "no place  !Přeformátování";
  std::string shown = std::to_string(start) + '+' + std::to_string(size) + ' ';
  if (blank == kNone) return shown + Trimmed(tag.substr(1, size - 2));
  shown += Trimmed(tag.substr(1, blank - 1));
  if (size < blank + 2) return shown + " !Přeformátování";
  std::string rest = tag.substr(blank + 1, size - blank - 2) + ' ';
  while (rest.find("  ") != kNone) rest.erase(rest.find("  "), 1);
  for (const auto& [find, with] :
       {std::pair{" =", "="}, {"= ", "="}, {"\" ", " "}, {" ", "\" "}, {"=\"", "="}, {"=", "=\""}})
    rest = Rewritten(rest, find, with);
  std::istringstream pieces(rest);
  std::vector<std::string> parts;
  for (std::string part; std::getline(pieces, part, ' ');) parts.push_back(part);
  for (std::size_t at = parts.size() - 1; at > 0; --at) {
    if (parts[at].find('=') != kNone) continue;
    parts[at - 1].pop_back();
    parts[at - 1] += ' ' + parts[at];
    parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(at));
  }
  for (const std::string& part : parts) {
    const std::size_t equals = part.find('=');
    shown += '|' + (equals == kNone ? Rewritten(part, "\"", "") + ":True" : part.substr(0, equals));
    if (equals == kNone) continue;
    if (part.size() < equals + 3) return shown + " !Přepis";
    shown += ':' + part.substr(equals + 2, part.size() - equals - 3);
  }
  return shown;
}

// required: all of it is what a row of text rewritings makes of a tag
TEST(TagEditor, ReadsATagByItsGrammar) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"x^ <B>", "none"},
      {"a > b <^", "none"},          // no ">" behind the first "<"
      {"<B>x</B> text^", "4+4 /B"},  // long closed
      {"<B>x^</B>", "4+4 /B"},       // "<" directly behind the caret
      {"<a><b c^", "3+4 b|:True"},   // never closed: up to the end, without the last character
      {"<a>^<", "no place  !Přeformátování"},
      {R"(^<F SIZE ="3"    COLOR=  "r d" ID= x >)", "0+37 F|SIZE:3|COLOR:r d|ID:x"},
      {R"(^<A HREF= ID='x y' R=a>)", R"(0+22 A|HREF:ID="'x y'|R:a)"},  // a "=" inside a value gains a quote
      {R"(^<T "NOWRAP" X ALIGN=LEFT Y />)", "0+29 T|NOWRAP X:True|ALIGN:LEFT Y /"},
      {R"(^<F  SIZE = 3>)", "0+13 F|:True|SIZE:3"},  // a second blank leaves a lone quote: a row without a name
      {"^<A ID=x HREF=>", "0+14 A|ID:x|HREF !Přepis"},
  };
  for (const auto& [marked, shown] : cases) {
    const CaretText at(marked);
    EXPECT_EQ(Shown(AnalyseTag(at.text, at.caret)), shown) << marked;
  }
  RandomSource random(20240506);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = random.Text(23, "<<>== \"'/aab\t\r\n˙  "_w);
    const std::size_t caret = random.Below(text.size() + 1);
    ASSERT_EQ(Shown(AnalyseTag(text, caret)), ShownSlowly(text, caret)) << caret << ": " << text;
  }
}

struct TagEditorOnText : testing::Test {
  ScriptedPlatform platform;
  TextBuffer text;

  void Put(std::string_view marked, std::size_t selected = 0) {
    const CaretText at(marked);
    text.SetText(at.text);
    text.Select(at.caret, at.caret + selected);
  }
};

TEST_F(TagEditorOnText, SelectsTheTagOrTellsThePerson) {
  Put("ab<B>^c");
  OpenTag(text, platform);
  EXPECT_EQ(text.SelText(), "<B>");
  EXPECT_TRUE(platform.TakeCalls().empty());
  Put("a^b", 1);
  platform.answers = {Answer::kOk, Answer::kOk};
  OpenTag(text, platform);
  EXPECT_EQ(text.SelText(), "b");
  Put("<A HREF=>^");
  OpenTag(text, platform);
  EXPECT_EQ(platform.TakeCalls(),
            (std::vector<std::string>{
                R"(message 0 "Není tag!" "EdiTag")",
                "message 0 \"Došlo k chybě při zpracování tagu. Ujistěte se, že se jedná o html tag ve správném "
                "formátu\r\nKód chyby: Přepis\" \"EdiTag\""}));
}

TEST_F(TagEditorOnText, AddsAttributesToTheTagThatClosesBehindTheCaret) {
  const std::string at_start =
      R"(message 0 "Na úplný začátek textu atributy vložit nelze. Posuňte kurzor do tagu." "Atribut")";
  const std::string behind_all =
      R"(message 0 "Za kurzorem už žádný tag nekončí. Posuňte kurzor do tagu nebo před něj." "Atribut")";
  const AttributeLists attributes{{"ID", "REL"}, {"x"}};  // out of step: the missing value is empty
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"<^A>b</A>", R"(<A ID="x" REL="">b</A>)"},
      {"<A>^b</A>", R"(<A ID="x" REL="">b</A>)"},  // the character in front of the caret is looked at too
      {"<A>b^</A>", R"(<A>b</A ID="x" REL="">)"},
  };
  for (const auto& [before, after] : cases) {
    Put(before, 2);  // a selection stays in the text
    EXPECT_TRUE(AddAttributes(text, attributes, platform));
    EXPECT_EQ(text.Text(), after);
    EXPECT_EQ(text.SelStart(), text.Text().find("\"\">") + 2);
    EXPECT_FALSE(text.HasSelection());
  }
  for (const std::string_view nowhere : {"^<A>b", "<A>b^", "^"}) {
    Put(nowhere);
    platform.answers = {Answer::kOk};
    EXPECT_FALSE(AddAttributes(text, attributes, platform));
    EXPECT_EQ(text.Text(), CaretText(nowhere).text);
  }
  EXPECT_EQ(platform.calls, (std::vector<std::string>{at_start, behind_all, at_start}));
}

}  // namespace
}  // namespace pelmar
