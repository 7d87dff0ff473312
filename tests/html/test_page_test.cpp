#include "html/test_page.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "html/browser_texts.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

using Calls = std::vector<std::string>;

struct PageTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
};

TEST_F(PageTest, TestHtmlAsksAndShowsTheSavedFile) {
  editor.documents.MakeCurrent("/home/jan/a.html");
  platform.answers = {Answer::kYes};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.calls, (Calls{"message 52 \"Soubor je uložen, zobrazit uloženou verzi ?\" \"Nový\"",
                                   "default program /home/jan/a.html"}));
}

TEST_F(PageTest, TestHtmlWritesOneNameAndOpensAnother) {  // required
  editor.text.SetText("<P>");
  platform.draws = {0.5};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.calls, (Calls{"create /tmp/$$$PelmarTemp49999999.htm", "default program /tmp/49999999.htm"}));
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp49999999.htm"], "<P>\r\n");
  EXPECT_EQ(platform.reseeds, 1);
}

TEST_F(PageTest, ANewPageNeverTakesTheNameOfAFileThatIsThere) {
  platform.files["/tmp/$$$PelmarTemp0.html"] = "somebody's";
  editor.text.SetText("<P>");
  platform.draws = {0.0, 0.0, 0.25, 0.999999999};
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), "/tmp/$$$PelmarTemp24999999.html");
  EXPECT_EQ(PageToShow(editor, PageEnd::kLineBreak), "/tmp/$$$PelmarTemp99999998.html");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp0.html"], "somebody's");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp24999999.html"], "<P>");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp99999998.html"], "<P>\r\n");
  EXPECT_FALSE(editor.file_number.IsOpen());
  platform.draws.assign(1000, 0.0);  // every name is taken: the search ends
  platform.answers = {Answer::kOk};
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), std::nullopt);
}

TEST_F(PageTest, APageThatCannotBeWrittenIsTold) {
  platform.draws = {0.0};
  platform.write_errors["/tmp/$$$PelmarTemp0.htm"] = ENOSPC;
  platform.answers = {Answer::kOk};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.calls, (Calls{"create /tmp/$$$PelmarTemp0.htm",
                                   "message 0 \"Testovací stránku nelze zapsat do složky /tmp/\r\nKód chyby 28: na "
                                   "disku není místo\" \"Testuj html\""}));
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
