// The commands of the HTML menu that need no dialog, the texts of the browser, and the reading of tags.
#include "html/tag_commands.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sstream>

#include "html/browser_texts.h"
#include "html/tag_editor.h"
#include "html/test_page.h"
#include "support/marked_text.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct TagCommandsTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};

  // What commands write one behind the other into an empty document.
  std::string Written(std::initializer_list<const char*> commands) {
    editor.text.SetText("");
    for (const char* command : commands) editor.commands.Run(command);
    return ToUtf8(editor.text.Text());
  }
  // What the command makes of a document "text-" with the text selected.
  std::string Made(const std::string& command, const std::string& text) {
    editor.text.SetText(text + "-");
    editor.text.Select(0, text.size());
    editor.commands.Run(command);
    return editor.text.Text();
  }
};

TEST_F(TagCommandsTest, WriteFixedTexts) {
  EXPECT_EQ(Written({"mnubr", "MnuHTMLeft", "MnuHTMLright", "mnuHTMLAnd", "MnuHTMLnobr", "mnuand", "mnudolar",
                     "mnucross", "mnuSS", "mnuZav", "mnubackslash", "mnucop", "mnureg", "mnutm"}),
            "<BR>&lt;&gt;&amp;&nbsp;&$#ß@\\©®™");
}

TEST_F(TagCommandsTest, WriteTheTimeAndTheProfile) {
  platform.now = {2026, 3, 9, 7, 5, 0};
  EXPECT_EQ(Written({"mnudate", "mnutime", "mnuemail"}), "03-09-202607:05:00\"\" <>");
  editor.settings.UserName = "Jan Novák"_w;
  editor.settings.UserEmail = "jan@x.cz";
  EXPECT_EQ(Written({"mnuemail"}), "\"Jan Novák\" <jan@x.cz>");
}

TEST_F(TagCommandsTest, WrapTheSelectionInTagsThatMatch) {
  for (const TagWrapper& tag : TagWrappers()) {
    EXPECT_EQ(Made(std::string(tag.command), "x"), std::string(tag.open) + "x" + std::string(tag.close) + "-");
    EXPECT_EQ(tag.close.substr(tag.close.find('/') + 1), std::string(tag.open.substr(1, tag.open.find('>'))));
  }
}

TEST_F(TagCommandsTest, WithoutASelectionWrapASample) {
  EXPECT_EQ(Written({"mnucenter"}), "<CENTER> Centrovaný text </CENTER>");
  EXPECT_EQ(Written({"Center"}), "<CENTER>Centrovaný text</CENTER>");  // required: without blanks
  EXPECT_EQ(Written({"mnutt", "mnuhttpbig"}), "<TT>Pevná šířka znaků</TT><BIG>Velké</BIG>");
}

TEST_F(TagCommandsTest, MakeListsOfLines) {
  const std::pair<const char*, const char*> cases[] = {
      {"a\r\n\r\nbc", "<UL><LI>a</LI>\r\n<LI></LI>\r\n<LI>b</LI></UL>-"},  // required: the last one is lost
      {"x", "<UL><LI></LI></UL>-"},
      {"a\nbc", "<UL><LI>a\n<LI>b</LI></UL>-"},
  };
  for (const auto& [lines, list] : cases) EXPECT_EQ(Made("mnu_HTML_sel_list", lines), list);
  EXPECT_EQ(Made("mnu_HTML_sel_num_list", "ab"), "<OL><LI>a</LI></OL>-");
  platform.answers = {Answer::kOk};
  EXPECT_EQ(Made("mnu_HTML_sel_num_list", ""), "-");  // needs a selection
  EXPECT_EQ(platform.TakeCallsInOneLine(), "message 0 \"Vyber text\" \"HTML list\"; ");
}

TEST_F(TagCommandsTest, StripTags) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "-"},
      {"a <b>c</b> > d", "a c > d-"},
      {"<a<b>c>d", "c>d-"},
      {"<P\r\nX>&lt;\r\n\x9e</P>\n<", "&lt;\r\n\x9e\n-"},
  };
  for (const auto& [html, plain] : cases) {
    EXPECT_EQ(Made("mnuNoHtml", html), plain);
    EXPECT_EQ(editor.text.SelStart(), editor.text.Size() - 1) << html;
    EXPECT_EQ(platform.TakeCallsInOneLine(), "busy 1; busy 0; ") << html;
  }
}

TEST_F(TagCommandsTest, ShowASavedDocumentFromItsFileAfterAQuestion) {
  editor.documents.MakeCurrent("/home/jan/a.html");
  platform.answers = {Answer::kYes};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.TakeCallsInOneLine(),
            "message 52 \"Soubor je uložen, zobrazit uloženou verzi ?\" \"Nový\"; default program /home/jan/a.html; ");
}

TEST_F(TagCommandsTest, OpenAPageByAnotherNameThanTheWrittenOne) {  // required
  editor.text.SetText("<P>");
  platform.draws = {0.5};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.TakeCallsInOneLine(),
            "create /tmp/$$$PelmarTemp49999999.htm; default program /tmp/49999999.htm; ");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp49999999.htm"], "<P>\r\n");
  EXPECT_EQ(platform.reseeds, 1);
}

TEST_F(TagCommandsTest, WriteAPageOverNoOtherFile) {
  platform.files["/tmp/$$$PelmarTemp0.html"] = "other";
  editor.text.SetText("<P>");
  platform.draws = {0.0, 0.0, 0.999999999};
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), "/tmp/$$$PelmarTemp99999998.html");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp0.html"], "other");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp99999998.html"], "<P>");
  EXPECT_FALSE(editor.file_number.IsOpen());
}

TEST_F(TagCommandsTest, ReportAPageThatCannotBeWritten) {
  platform.draws = {0.0};
  platform.write_errors["/tmp/$$$PelmarTemp0.htm"] = ENOSPC;
  platform.answers = {Answer::kOk};
  editor.commands.Run("mnutest");
  EXPECT_TRUE(platform.calls.back().starts_with("message 0 \"Testovací stránku nelze zapsat do složky /tmp/"));
  EXPECT_FALSE(editor.file_number.IsOpen());
}

TEST(BrowserTexts, TellHowFarAPageIs) {
  EXPECT_EQ(ProgressText(1, 3), "33,3333333333333%");
  EXPECT_EQ(ProgressText(1, 0), "");
}

TEST(BrowserTexts, KnowUtf8ThatDoesntSaySo) {
  EXPECT_TRUE(IsUndeclaredUtf8("kůň"));
  for (const char* page : {"\xEF\xBB\xBFkůň", "k\xF9\xF2", "kun", "CharSet=utf-8 kůň"})
    EXPECT_FALSE(IsUndeclaredUtf8(page)) << page;
}

constexpr std::size_t kNone = std::string::npos;

// A result in one line: place and length of the tag, its name, "|NAME:value" for each row, then the failed step.
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

// A second, slow implementation of the same.
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

// required: what a series of text replacements makes of a tag. A second blank, for example, gives an empty name.
TEST(TagEditor, ReadsRandomTagsAsASlowReaderDoes) {
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

  std::vector<std::string> Opened(const char* marked) {
    PutMarked(text, marked);
    platform.answers = {Answer::kOk};
    OpenTag(text, platform);
    return platform.TakeCalls();
  }
};

TEST_F(TagEditorOnText, OpeningSelectsTheTagOrSaysWhatIsWrong) {
  EXPECT_TRUE(Opened("ab<B>|c").empty());
  EXPECT_EQ(Marked(text), "ab[<B>|c");
  EXPECT_EQ(Opened("a[b|"), std::vector<std::string>{R"(message 0 "Není tag!" "EdiTag")"});
  EXPECT_EQ(Marked(text), "a[b|");
  EXPECT_EQ(Opened("<A HREF=>|"),
            std::vector<std::string>{
                "message 0 \"Došlo k chybě při zpracování tagu. Ujistěte se, že se jedná o html tag ve správném "
                "formátu\r\nKód chyby: Přepis\" \"EdiTag\""});
}

TEST_F(TagEditorOnText, AttributesGoIntoTheTagThatClosesBehindTheCaret) {
  const AttributeLists attributes{{"ID", "REL"}, {"x"}};  // out of step: the missing value is empty
  const std::pair<const char*, const char*> cases[] = {
      {"<[A>|b</A>", R"(<A ID="x" REL=""|>b</A>)"},  // the selection stays; ">" stands in front of the caret
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
