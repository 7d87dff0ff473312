#include "html/tag_editor.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

using Names = std::vector<std::string>;

// The analysis of a text that is one tag, and what "&Ok" makes of it.
struct GrammarCase {
  std::string_view tag;
  std::string_view name;
  AttributeLists attributes;
  std::string_view written;
};

TEST(TagEditor, ReadsAndWritesByItsGrammar) {
  const GrammarCase cases[] = {
      {"<BR>", "BR", {}, "<BR>"},
      {"</B>", "/B", {}, "</B>"},
      {"<>", "", {}, "<>"},
      {"< B>", "", {{"B"}, {"True"}}, "< B=\"True\">"},
      {"<FONT SIZE=3 COLOR=red>", "FONT", {{"SIZE", "COLOR"}, {"3", "red"}}, R"(<FONT SIZE="3" COLOR="red">)"},
      // Quoted or not, blanks around "=", blanks between attributes: all the same.
      {R"(<FONT SIZE="3" COLOR="red">)", "FONT", {{"SIZE", "COLOR"}, {"3", "red"}}, R"(<FONT SIZE="3" COLOR="red">)"},
      {"<FONT SIZE = 3   COLOR= red >", "FONT", {{"SIZE", "COLOR"}, {"3", "red"}}, R"(<FONT SIZE="3" COLOR="red">)"},
      {"<FONT SIZE =\"3\"    COLOR=  \"red\">",
       "FONT",
       {{"SIZE", "COLOR"}, {"3", "red"}},
       R"(<FONT SIZE="3" COLOR="red">)"},
      {"<A HREF=\"\">", "A", {{"HREF"}, {""}}, "<A HREF=\"\">"},
      {"<A HREF=\"\" ID=x>", "A", {{"HREF", "ID"}, {"", "x"}}, R"(<A HREF="" ID="x">)"},
      {"<A HREF= ID=x>", "A", {{"HREF"}, {"ID=\"x"}}, "<A HREF=\"ID=\"x\">"},
      // Values with blanks survive, but runs of blanks collapse.
      {R"(<IMG ALT="a b" SRC=c>)", "IMG", {{"ALT", "SRC"}, {"a b", "c"}}, R"(<IMG ALT="a b" SRC="c">)"},
      {R"(<IMG ALT="a   b  c">)", "IMG", {{"ALT"}, {"a b c"}}, R"(<IMG ALT="a b c">)"},
      {R"(<IMG ALT=" x">)", "IMG", {{"ALT"}, {"x"}}, R"(<IMG ALT="x">)"},
      {R"(<IMG ALT=" ">)", "IMG", {{"ALT"}, {""}}, R"(<IMG ALT="">)"},
      // Other quotes and white space are ordinary characters.
      {"<A ID='x y'>", "A", {{"ID"}, {"'x y'"}}, "<A ID=\"'x y'\">"},
      {"<A\tID=x>", "A\tID=x", {}, "<A\tID=x>"},
      {"<A ID=x\r\nREL=y>", "A", {{"ID"}, {"x\r\nREL=\"y"}}, "<A ID=\"x\r\nREL=\"y\">"},
      // Bare attributes.
      {"<TD NOWRAP>", "TD", {{"NOWRAP"}, {"True"}}, R"(<TD NOWRAP="True">)"},
      {"<TD NOWRAP ALIGN=LEFT>", "TD", {{"NOWRAP", "ALIGN"}, {"True", "LEFT"}}, R"(<TD NOWRAP="True" ALIGN="LEFT">)"},
      {"<TD NOWRAP COMPACT>", "TD", {{"NOWRAP COMPACT"}, {"True"}}, R"(<TD NOWRAP COMPACT="True">)"},
      {R"(<TD ALIGN="LEFT" NOWRAP>)", "TD", {{"ALIGN"}, {"LEFT NOWRAP"}}, R"(<TD ALIGN="LEFT NOWRAP">)"},
      {"<IMG SRC=\"x\" />", "IMG", {{"SRC"}, {"x /"}}, "<IMG SRC=\"x /\">"},
      {"<TD \"NOWRAP\">", "TD", {{"NOWRAP"}, {"True"}}, R"(<TD NOWRAP="True">)"},
      // A "=" inside a value gains a quote.
      {"<A HREF=a?b=c>", "A", {{"HREF"}, {"a?b=\"c"}}, "<A HREF=\"a?b=\"c\">"},
      // Two blanks behind the name, or one before ">", leave a lone quote: an attribute without a name.
      {"<FONT  SIZE = 3 COLOR=\"red\">",
       "FONT",
       {{"", "SIZE", "COLOR"}, {"True", "3", "red"}},
       R"(<FONT ="True" SIZE="3" COLOR="red">)"},
      {"<B >", "B", {{""}, {"True"}}, R"(<B ="True">)"},
      // The marker of the rewriting turns into what replaces it.
      {"<A ID˙x REL ˙y>"_w, "A", {{"ID", ""}, {"x REL", "y"}}, "<A ID=\"x REL\" =\"y\">"},
  };
  for (const GrammarCase& c : cases) {
    const TagAnalysis analysis = AnalyseTag(c.tag, 0);
    EXPECT_TRUE(analysis.has_tag) << c.tag;
    EXPECT_EQ(analysis.range, (TagRange{0, c.tag.size()})) << c.tag;
    EXPECT_EQ(analysis.failed_in, std::nullopt) << c.tag;
    EXPECT_EQ(analysis.name, c.name) << c.tag;
    EXPECT_EQ(analysis.attributes.names, c.attributes.names) << c.tag;
    EXPECT_EQ(analysis.attributes.values, c.attributes.values) << c.tag;
    EXPECT_EQ(TagText(analysis.name, analysis.attributes), c.written);
  }
}

struct SearchCase {
  std::string_view text;
  std::size_t caret;
  std::optional<TagRange> range;
  std::string_view name;
};

TEST(TagEditor, FindsTheLastTagThatBeginsBeforeTheCaret) {
  const SearchCase cases[] = {
      {"<B>x</B>", 8, TagRange{4, 4}, "/B"},         // behind all
      {"<B>x</B> text", 12, TagRange{4, 4}, "/B"},   // long closed
      {"<B>x</B>", 4, TagRange{4, 4}, "/B"},         // "<" directly behind the caret
      {"<B>x</B>", 3, TagRange{0, 3}, "B"},          // the next "<" is two characters behind
      {"<B>x</B>", 1, TagRange{0, 3}, "B"},          // inside
      {"x <B>", 1, std::nullopt, ""},                // begins two characters behind the caret
      {"x <B>", 2, TagRange{2, 3}, "B"},             //
      {"text", 4, std::nullopt, ""},                 //
      {"", 0, std::nullopt, ""},                     //
      {"a > b <", 7, std::nullopt, ""},              // no ">" behind the first "<"
      {"<a><b c", 7, TagRange{3, 4}, "b"},           // never closed: up to the end, without the last character
      {"<a><bcd", 7, TagRange{3, 4}, "bc"},          //
      {"<A ALT=\"x>y\">", 3, TagRange{0, 10}, "A"},  // ">" in a value ends the tag
      {"<A <B>", 1, TagRange{0, 6}, "A"},            // "<" inside
  };
  for (const SearchCase& c : cases) {
    const TagAnalysis analysis = AnalyseTag(c.text, c.caret);
    EXPECT_EQ(analysis.has_tag, c.range.has_value()) << c.text << c.caret;
    EXPECT_EQ(analysis.range, c.range) << c.text << c.caret;
    EXPECT_EQ(analysis.name, c.name) << c.text << c.caret;
  }
}

TEST(TagEditor, KeepsWhatWasFilledBeforeAFailure) {
  const TagAnalysis empty_value = AnalyseTag("<A ID=x HREF=>", 0);
  EXPECT_EQ(empty_value.failed_in, TagStep::kFill);
  EXPECT_EQ(empty_value.name, "A");
  EXPECT_EQ(empty_value.attributes.names, (Names{"ID", "HREF"}));
  EXPECT_EQ(empty_value.attributes.values, (Names{"x"}));
  EXPECT_EQ(TagText(empty_value.name, empty_value.attributes), R"(<A ID="x" HREF="">)");
  const TagAnalysis lone = AnalyseTag("<a><", 3);
  EXPECT_TRUE(lone.has_tag);
  EXPECT_EQ(lone.failed_in, TagStep::kReformat);
  EXPECT_EQ(lone.range, std::nullopt);
  const TagAnalysis unclosed = AnalyseTag("<a><b ", 6);
  EXPECT_EQ(unclosed.failed_in, TagStep::kReformat);
  EXPECT_EQ(unclosed.name, "b");
  EXPECT_EQ(unclosed.range, (TagRange{3, 3}));
}

struct TagEditorOnText : testing::Test {
  ScriptedPlatform platform;
  TextBuffer text;

  void Put(std::string_view content, std::size_t start, std::size_t length = 0) {
    text.SetText(std::string(content));
    text.Select(start, start + length);
  }
};

TEST_F(TagEditorOnText, SelectsTheTagOrTellsThePerson) {
  Put("ab<B>c", 5);
  OpenTag(text, platform);
  EXPECT_EQ(text.SelText(), "<B>");
  EXPECT_TRUE(platform.TakeCalls().empty());
  Put("ab", 1, 1);
  platform.answers = {Answer::kOk};
  OpenTag(text, platform);
  EXPECT_EQ(text.SelText(), "b");
  EXPECT_EQ(platform.TakeCalls(), Names{R"(message 0 "Není tag!" "EdiTag")"});
  const std::pair<std::string_view, std::string> failures[] = {{"<A HREF=>", "Přepis"}, {"<>x<", "Přeformátování"}};
  for (const auto& [tag, step] : failures) {
    Put(tag, tag.size());
    platform.answers = {Answer::kOk};
    OpenTag(text, platform);
    EXPECT_EQ(platform.TakeCalls(),
              Names{"message 0 \"Došlo k chybě při zpracování tagu. Ujistěte se, že se jedná o html tag ve správném "
                    "formátu\r\nKód chyby: " +
                    step + "\" \"EdiTag\""});
  }
}

TEST_F(TagEditorOnText, AddsAttributesToTheTagThatClosesBehindTheCaret) {
  const AttributeLists attributes{{"ID", "REL"}, {"x"}};  // out of step: the missing value is empty
  const std::tuple<std::string_view, std::size_t, std::string_view> cases[] = {
      {"<A>b</A>", 1, R"(<A ID="x" REL="">b</A>)"},
      {"<A>b</A>", 3, R"(<A ID="x" REL="">b</A>)"},  // the character in front of the caret is looked at too
      {"<A>b</A>", 4, R"(<A>b</A ID="x" REL="">)"},
  };
  for (const auto& [before, caret, after] : cases) {
    Put(before, caret, 2);  // a selection stays in the text
    EXPECT_TRUE(AddAttributes(text, attributes, platform));
    EXPECT_EQ(text.Text(), after);
    EXPECT_EQ(text.SelStart(), text.Text().find("\"\">") + 2);
    EXPECT_FALSE(text.HasSelection());
  }
  for (const auto& [before, caret] : {std::pair{"<A>b", 0}, {"<A>b", 4}, {"", 0}}) {
    Put(before, static_cast<std::size_t>(caret));
    platform.answers = {Answer::kOk};
    EXPECT_FALSE(AddAttributes(text, attributes, platform));
    EXPECT_EQ(text.Text(), before);
    EXPECT_EQ(platform.TakeCalls().size(), 1u);
  }
}

TEST_F(TagEditorOnText, InsertsACustomTag) {
  const CustomTag open{"X", {{"ID"}, {"1"}}, false};
  const CustomTag closed{"X", {{"ID"}, {"1"}}, true};
  const std::tuple<CustomTag, std::size_t, std::string_view> cases[] = {
      {open, 1, R"(<X ID="1">a)"},
      {open, 0, R"(<X ID="1">a)"},
      {closed, 1, R"(<X ID="1">a</X>)"},
      {closed, 0, R"(<X ID="1">Vlastní tag</X>a)"_w},
  };
  for (const auto& [tag, selected, after] : cases) {
    Put("a", 0, selected);
    InsertCustomTag(text, tag);
    EXPECT_EQ(text.Text(), after);
  }
}

// Whatever the text is, only the tag's range changes.
TEST(TagEditor, TouchesOnlyTheTagOfARandomText) {
  std::mt19937 random(20240506);
  const std::string alphabet = std::string("<>= \"'/a\t\r\n") + std::string("˙"_w);
  for (int round = 0; round < 20000; ++round) {
    std::string text(random() % 24, ' ');
    for (char& ch : text) ch = alphabet[random() % alphabet.size()];
    const std::size_t caret = random() % (text.size() + 1);
    const TagAnalysis analysis = AnalyseTag(text, caret);
    if (!analysis.range) continue;
    const auto [start, length] = *analysis.range;
    ASSERT_LE(start, caret) << text;
    ASSERT_EQ(text[start], '<') << text;
    const bool closed = text[start + length - 1] == '>';
    ASSERT_TRUE(closed || start + length == text.size()) << text;
    ASSERT_EQ(text.substr(start, length).find('>'), closed ? length - 1 : std::string::npos) << text;
    ASSERT_EQ(analysis.attributes.names.size(),
              analysis.attributes.values.size() + (analysis.failed_in == TagStep::kFill ? 1 : 0))
        << text;
    TextBuffer box;
    box.SetText(text);
    box.Select(start, start + length);
    box.ReplaceSelection(TagText(analysis.name, analysis.attributes));
    ASSERT_EQ(box.Text().substr(0, start), text.substr(0, start));
    ASSERT_TRUE(box.Text().ends_with(text.substr(start + length)));
  }
}

}  // namespace
}  // namespace pelmar
