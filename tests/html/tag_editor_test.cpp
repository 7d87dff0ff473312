#include "html/tag_editor.h"

#include <gtest/gtest.h>

#include <sstream>

#include "html/attributes.h"
#include "support/marked_text.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::size_t kNone = std::string::npos;

// A result in one line: start and length of the tag, its name, "|NAME:value" for each row, then the failed step.
std::string Shown(const TagAnalysis& analysis) {
  if (!analysis.has_tag)
    return analysis.range || !analysis.failed_in.empty() ? "none, but a range or a failure" : "none";
  std::string shown = "no range";
  if (analysis.range) shown = std::to_string(analysis.range->start) + '+' + std::to_string(analysis.range->length);
  shown += ' ' + analysis.name;
  for (std::size_t row = 0; row < analysis.attributes.names.size(); ++row) {
    shown += '|' + analysis.attributes.names[row];
    if (row < analysis.attributes.values.size()) shown += ':' + analysis.attributes.values[row];
  }
  return analysis.failed_in.empty() ? shown : shown + " !" + std::string(analysis.failed_in);
}

std::string Rewritten(std::string text, std::string_view find, std::string_view with) {
  constexpr std::string_view kMarker = "˙"_w;  // a "˙" of the tag itself becomes the new text too
  for (const auto& [from, to] : {std::pair{find, kMarker}, {kMarker, with}})
    for (std::size_t at = text.find(from); at != kNone; at = text.find(from, at + to.size()))
      text.replace(at, from.size(), to);
  return text;
}

// The same line from a second, slow implementation of AnalyseTag.
std::string ShownSlowly(const std::string& text, std::size_t caret) {
  const std::size_t start = text.substr(0, caret + 1).rfind('<');
  if (start == kNone || text.find('>', text.find('<')) == kNone) return "none";
  const std::string tag = text.substr(start, text.find('>', start) - start + 1);
  const std::size_t blank = tag.find(' '), size = tag.size();
  if (size < 2) return "no range  !Přeformátování";
  std::string shown = std::to_string(start) + '+' + std::to_string(size) + ' ';
  if (blank == kNone) return shown.append(Trimmed(tag.substr(1, size - 2)));
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

// required: a series of text replacements divides the tag. For example, a second blank gives an empty name.
TEST(TagEditor, ReadsRandomTagsLikeTheSlowImplementation) {
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

  std::vector<std::string> MessagesOfOpening(const char* marked) {
    PutMarked(text, marked);
    platform.answers = {Answer::kOk};
    OpenTag(text, platform);
    return platform.TakeCalls();
  }
};

TEST_F(TagEditorOnText, OpeningSelectsTheTagOrShowsAMessage) {
  EXPECT_TRUE(MessagesOfOpening("ab<B>|c").empty());
  EXPECT_EQ(Marked(text), "ab[<B>|c");
  EXPECT_EQ(MessagesOfOpening("a[b|"), std::vector<std::string>{R"(message 0 "Není tag!" "EdiTag")"});
  EXPECT_EQ(Marked(text), "a[b|");
  EXPECT_EQ(MessagesOfOpening("<A HREF=>|"),
            std::vector<std::string>{
                "message 0 \"Došlo k chybě při zpracování tagu. Ujistěte se, že se jedná o html tag ve správném "
                "formátu\r\nKód chyby: Přepis\" \"EdiTag\""});
}

TEST_F(TagEditorOnText, AttributesGoIntoTheTagThatClosesAfterTheCaret) {
  const AttributeLists attributes{{"ID", "REL"}, {"x"}};  // a missing value is empty
  const std::pair<const char*, const char*> cases[] = {
      {"<[A>|b</A>", R"(<A ID="x" REL=""|>b</A>)"},  // the selection stays; ">" may be just before the caret
      {"<A>b|</A>", R"(<A>b</A ID="x" REL=""|>)"},
  };
  for (const auto& [before, after] : cases) {
    PutMarked(text, before);
    EXPECT_TRUE(AddAttributes(text, attributes, platform));
    EXPECT_EQ(Marked(text), after);
  }
}

}  // namespace
}  // namespace pelmar
