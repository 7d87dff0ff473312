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

TEST_F(PageTest, TestHtmlShowsTheSavedFileOrWritesOneNameAndOpensAnother) {
  editor.documents.MakeCurrent("/home/jan/a.html");
  editor.text.SetText("<P>");
  platform.answers = {Answer::kYes, Answer::kNo};
  platform.draws = {0.5};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.TakeCalls(), (Calls{"message 52 \"Soubor je uložen, zobrazit uloženou verzi ?\" \"Nový\"",
                                         "default program /home/jan/a.html"}));
  EXPECT_TRUE(platform.files.empty());
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.reseeds, 1);
  platform.calls.erase(platform.calls.begin());
  EXPECT_EQ(platform.TakeCalls(),  // required
            (Calls{"create /tmp/$$$PelmarTemp49999999.htm", "default program /tmp/49999999.htm"}));
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp49999999.htm"], "<P>\r\n");
}

TEST_F(PageTest, ThePageToShowIsTheFileOrANewPageEachTime) {
  const std::string taken = "/tmp/$$$PelmarTemp0.html";
  platform.files[taken] = "somebody's";
  editor.text.SetText("<P>");
  platform.draws = {0.999999999, 0.0, 0.0, 0.25};
  EXPECT_EQ(PageToShow(editor, PageEnd::kLineBreak), "/tmp/$$$PelmarTemp99999998.html");
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), "/tmp/$$$PelmarTemp24999999.html");
  EXPECT_EQ(platform.files, (std::map<std::string, std::string>{{taken, "somebody's"},
                                                                {"/tmp/$$$PelmarTemp24999999.html", "<P>"},
                                                                {"/tmp/$$$PelmarTemp99999998.html", "<P>\r\n"}}));
  EXPECT_FALSE(editor.file_number.IsOpen());
  editor.documents.MakeCurrent("/home/jan/a.html");
  platform.TakeCalls();
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), "/home/jan/a.html");
  EXPECT_TRUE(platform.calls.empty());
}

TEST_F(PageTest, APageThatCannotBeWrittenIsTold) {
  editor.text.SetText("kept");
  platform.draws = {0.0};
  platform.write_errors["/tmp/$$$PelmarTemp0.htm"] = ENOSPC;
  platform.answers = {Answer::kOk, Answer::kOk, Answer::kOk};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.calls, (Calls{"create /tmp/$$$PelmarTemp0.htm",
                                   "message 0 \"Testovací stránku nelze zapsat do složky /tmp/\r\nKód chyby 28: na "
                                   "disku není místo\" \"Testuj html\""}));
  EXPECT_FALSE(editor.file_number.IsOpen());
  // Every name is taken: the search ends.
  platform.draws.assign(1000, 0.0);
  platform.files["/tmp/$$$PelmarTemp0.html"] = "somebody's";
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), std::nullopt);
  EXPECT_TRUE(platform.calls.back().ends_with("\" \"Interní browser\""));
  // File number 1 was left open by another command.
  editor.file_number.Open();
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), std::nullopt);
  EXPECT_TRUE(editor.file_number.IsOpen());
  EXPECT_EQ(editor.text.Text(), "kept");
}

TEST(BrowserTexts, TellHowFarAPageIsAndKnowUtf8ThatDoesntSaySo) {
  EXPECT_EQ(ProgressText(1, 3) + ' ' + ProgressText(5, 5) + ' ' + ProgressText(1, 0), "33,3333333333333% 100% ");
  const std::string late(1017, ' ');
  for (const auto& [page, undeclared] : {
           std::pair<std::string, bool>{"kůň", true},
           {"\xEF\xBB\xBFkůň", false},
           {"k\xF9\xF2", false},
           {"kun", false},
           {"CharSet=utf-8 kůň", false},
           {late + "charset kůň", false},  // its last letter is the last that is looked at
           {late + " charset kůň", true},
       })
    EXPECT_EQ(IsUndeclaredUtf8(page), undeclared) << page;
}

}  // namespace
}  // namespace pelmar
