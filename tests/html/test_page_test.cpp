#include "html/test_page.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

using Calls = std::vector<std::string>;

TEST(StripHtml, DropsFromEachLessThanToTheNextGreaterThan) {
  const struct {
    std::string_view html, plain;
  } cases[] = {
      {"", ""},
      {"a <b>c</b> > d", "a c > d"},
      {"a < b", "a "},
      {"<a<b>c>d", "c>d"},
      {"<P>&lt;\r\n\x9e</P>\n", "&lt;\r\n\x9e\n"},
      {"<!-- a > b -->c",
       " b --\x3e"
       "c"},
      {"<SCRIPT>if (a<b) c>d</SCRIPT>e", "if (ade"},
      {"<a\r\nhref=\"x\">\r\n", "\r\n"},
  };
  for (const auto& c : cases) EXPECT_EQ(StripHtml(c.html), c.plain) << c.html;
}

struct PageTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
};

TEST_F(PageTest, NoHtmlCleansTheSelectionAlone) {
  editor.text.SetText("<B>a</B><I>b</I>");
  int changes = 0;
  const Listening heard = editor.text.OnChange([&changes](const TextChange&) { ++changes; });
  editor.commands.Run("mnuNoHtml");
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(editor.text.Text(), "<B>a</B><I>b</I>");
  editor.text.Select(0, 8);
  platform.TakeCalls();
  editor.commands.Run("mnuNoHtml");
  EXPECT_EQ(editor.text.Text(), "a<I>b</I>");
  EXPECT_EQ(editor.text.SelStart(), 1u);
  EXPECT_EQ(platform.calls, (Calls{"busy 1", "busy 0"}));
}

TEST_F(PageTest, TestHtmlShowsTheSavedFile) {
  editor.documents.MakeCurrent("/home/jan/a.html");
  editor.text.SetText("unsaved");
  platform.answers = {Answer::kYes};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.calls, (Calls{"message 52 \"Soubor je uložen, zobrazit uloženou verzi ?\" \"Nový\"",
                                   "default program /home/jan/a.html"}));
  EXPECT_TRUE(platform.files.empty());
}

TEST_F(PageTest, TestHtmlWritesOneNameAndOpensAnother) {
  editor.text.SetText("<P>");
  platform.draws = {0.5};
  platform.opens_programs = false;  // its result is nobody's affair
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.reseeds, 1);
  EXPECT_EQ(platform.calls, (Calls{"create /tmp/$$$PelmarTemp49999999.htm", "default program /tmp/49999999.htm"}));
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp49999999.htm"], "<P>\r\n");

  editor.documents.MakeCurrent("/home/jan/a.html");
  platform.answers = {Answer::kNo};
  platform.draws = {0.0};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.calls.back(), "default program /tmp/0.htm");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp0.htm"], "<P>\r\n");
}

TEST_F(PageTest, ThePageToShowIsTheFileOrANewPageEachTime) {
  editor.text.SetText("<P>");
  platform.draws = {0.999999999, 0.25};
  EXPECT_EQ(PageToShow(editor, PageEnd::kLineBreak), "/tmp/$$$PelmarTemp99999998.html");
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), "/tmp/$$$PelmarTemp24999999.html");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp99999998.html"], "<P>\r\n");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp24999999.html"], "<P>");
  editor.documents.MakeCurrent("/home/jan/a.html");
  platform.TakeCalls();
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), "/home/jan/a.html");
  EXPECT_TRUE(platform.calls.empty());
}

TEST_F(PageTest, ANameThatIsTakenIsPassedOver) {
  platform.files["/tmp/$$$PelmarTemp0.html"] = "somebody's";
  platform.draws = {0.0, 0.0, 0.5};
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), "/tmp/$$$PelmarTemp49999999.html");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp0.html"], "somebody's");
  EXPECT_FALSE(editor.file_number.IsOpen());
}

TEST_F(PageTest, APageThatCannotBeWrittenIsTold) {
  editor.text.SetText("kept");
  platform.draws = {0.0};
  platform.write_errors["/tmp/$$$PelmarTemp0.htm"] = ENOSPC;
  platform.answers = {Answer::kOk};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.calls, (Calls{"create /tmp/$$$PelmarTemp0.htm",
                                   "message 0 \"Testovací stránku nelze zapsat do složky /tmp/\r\nKód chyby " +
                                       std::to_string(ENOSPC) + "\" \"Testuj html\""}));
  EXPECT_FALSE(editor.file_number.IsOpen());

  // Every name is taken: the search ends.
  platform.draws.assign(1000, 0.0);
  platform.files["/tmp/$$$PelmarTemp0.html"] = "somebody's";
  platform.answers = {Answer::kOk};
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), std::nullopt);
  // File number 1 was left open by another command.
  editor.file_number.Open();
  platform.answers = {Answer::kOk};
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), std::nullopt);
  EXPECT_TRUE(editor.file_number.IsOpen());
  EXPECT_EQ(editor.text.Text(), "kept");
}

}  // namespace
}  // namespace pelmar
