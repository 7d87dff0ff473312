// The commands of the HTML menu that need no dialog, and the texts of the browser.
#include "html/tag_commands.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "html/browser_texts.h"
#include "html/test_page.h"
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
  EXPECT_EQ(platform.calls.back(),
            "message 0 \"Testovací stránku nelze zapsat do složky /tmp/\r\nKód chyby 28: na disku není místo\" "
            "\"Testuj html\"");
  EXPECT_FALSE(editor.file_number.IsOpen());
}

TEST(BrowserTexts, TellHowFarAPageIs) {
  EXPECT_EQ(ProgressText(1, 3), "33,3333333333333%");
  EXPECT_EQ(ProgressText(5, 5), "100%");
  EXPECT_EQ(ProgressText(1, 0), "");
}

TEST(BrowserTexts, KnowUtf8ThatDoesntSaySo) {
  EXPECT_TRUE(IsUndeclaredUtf8("kůň"));
  for (const char* page : {"\xEF\xBB\xBFkůň", "k\xF9\xF2", "kun", "CharSet=utf-8 kůň"})
    EXPECT_FALSE(IsUndeclaredUtf8(page)) << page;
}

}  // namespace
}  // namespace pelmar
