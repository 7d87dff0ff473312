#include "html/tag_editor.h"

#include <gtest/gtest.h>

#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

using Calls = std::vector<std::string>;

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

void ExpectShown(std::initializer_list<std::pair<std::string_view, std::string_view>> cases) {
  for (const auto& [marked, shown] : cases) {
    const CaretText at(marked);
    EXPECT_EQ(Shown(AnalyseTag(at.text, at.caret)), shown) << marked;
  }
}

// required: all of it is what a row of text rewritings makes of a tag
TEST(TagEditor, ReadsATagByItsGrammar) {
  ExpectShown({
      {"^<>", "0+2 "},
      {"^</B>", "0+4 /B"},
      {"^< B>", "0+4 |B:True"},
      {"^<A\tID=x>", "0+8 A\tID=x"},  // only a blank ends the name
      {"^<F SIZE=3 COLOR=red>", "0+20 F|SIZE:3|COLOR:red"},
      {R"(^<F SIZE ="3"    COLOR=  "r d" ID= x >)", "0+37 F|SIZE:3|COLOR:r d|ID:x"},
      {R"(^<A HREF="" ID=x>)", "0+16 A|HREF:|ID:x"},
      {R"(^<A HREF= ID=x>)", R"(0+14 A|HREF:ID="x)"},  // a "=" inside a value gains a quote
      {R"(^<I ALT="a   b  c" T=" x" U=" ">)", "0+31 I|ALT:a b c|T:x|U:"},
      {"^<A ID='x y' R=a\r\nREL=z>",
       "0+23 A|ID:'x y'|R:a\r\nREL=\"z"},  // other quotes and white space are nothing special
      {R"(^<T "NOWRAP" X ALIGN=LEFT Y />)", "0+29 T|NOWRAP X:True|ALIGN:LEFT Y /"},
      {R"(^<F  SIZE = 3>)", "0+13 F|:True|SIZE:3"},  // a second blank leaves a lone quote: a row without a name
      {"^<B >", "0+4 B|:True"},
      {"^<A ID˙x REL ˙y>"_w, "0+15 A|ID:x REL|:y"},  // the marker of the rewriting turns into what replaces it
  });
}

TEST(TagEditor, FindsTheLastTagThatBeginsBeforeTheCaret) {
  ExpectShown({
      {"<B>x</B> text^", "4+4 /B"},  // long closed
      {"<B>x^</B>", "4+4 /B"},       // "<" directly behind the caret
      {"<B>^x</B>", "0+3 B"},
      {"x^ <B>", "none"},
      {"^", "none"},
      {"a > b <^", "none"},                  // no ">" behind the first "<"
      {"<a><b c^", "3+4 b|:True"},           // never closed: up to the end, without the last character
      {"<a><bcd^", "3+4 bc"},                //
      {"<A AL^T=\"x>y\">", "0+10 A|ALT:x"},  // ">" in a value ends the tag
      {"<^A <B>", "0+6 A|<B:True"},
      // What was filled before a failure stays.
      {"^<A ID=x HREF=>", "0+14 A|ID:x|HREF !Přepis"},
      {"<a>^<", "no place  !Přeformátování"},
      {"<a><b ^", "3+3 b !Přeformátování"},
  });
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
            (Calls{R"(message 0 "Není tag!" "EdiTag")",
                   "message 0 \"Došlo k chybě při zpracování tagu. Ujistěte se, že se jedná o html tag ve správném "
                   "formátu\r\nKód chyby: Přepis\" \"EdiTag\""}));
}

TEST_F(TagEditorOnText, AddsAttributesToTheTagThatClosesBehindTheCaret) {
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
    EXPECT_EQ(platform.TakeCalls().size(), 1u);
  }
}

TEST_F(TagEditorOnText, InsertsACustomTag) {
  const std::tuple<bool, std::size_t, std::string_view> cases[] = {
      {false, 1, R"(<X ID="1">a)"}, {true, 1, R"(<X ID="1">a</X>)"}, {true, 0, R"(<X ID="1">Vlastní tag</X>a)"_w}};
  for (const auto& [closed, selected, after] : cases) {
    Put("^a", selected);
    InsertCustomTag(text, {"X", {{"ID"}, {"1"}}, closed});
    EXPECT_EQ(text.Text(), after);
  }
}

// Whatever the text is, the place is that of one tag, and there is a value to each name.
TEST(TagEditor, StaysWithinTheTagOfARandomText) {
  RandomSource random(20240506);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = random.Text(23, "<>= \"'/a\t\r\n˙"_w);
    const std::size_t caret = random.Below(text.size() + 1);
    const TagAnalysis analysis = AnalyseTag(text, caret);
    if (!analysis.range) continue;
    const auto [start, length] = *analysis.range;
    ASSERT_TRUE(start <= caret && start + length <= text.size()) << text;
    const std::string tag = text.substr(start, length);
    const bool closed = tag.back() == '>';
    ASSERT_TRUE(tag[0] == '<' && (closed || start + length == text.size())) << text;
    ASSERT_EQ(tag.find('>'), closed ? length - 1 : std::string::npos) << text;
    ASSERT_EQ(analysis.attributes.names.size(),
              analysis.attributes.values.size() + (analysis.failed_in == TagStep::kFill ? 1 : 0));
  }
}

}  // namespace
}  // namespace pelmar
