#include "html/test_page.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

struct TestPage : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
};

TEST_F(TestPage, ShowsASavedDocumentFromItsFileAfterAQuestion) {
  editor.documents.MakeCurrent("/home/jan/a.html");
  platform.answers = {Answer::kYes};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.TakeCallsInOneLine(),
            "message 52 \"Soubor je uložen, zobrazit uloženou verzi ?\" \"Nový\"; default program /home/jan/a.html; ");
}

TEST_F(TestPage, IsWrittenUnderOneNameAndOpenedUnderAnother) {  // required
  editor.text.SetText("<P>");
  platform.draws = {0.5};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.TakeCallsInOneLine(),
            "create /tmp/$$$PelmarTemp49999999.htm; default program /tmp/49999999.htm; ");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp49999999.htm"], "<P>\r\n");
  EXPECT_EQ(platform.reseeds, 1);
}

TEST_F(TestPage, NeverOverwritesAnotherFile) {
  platform.files["/tmp/$$$PelmarTemp0.html"] = "other";
  editor.text.SetText("<P>");
  platform.draws = {0.0, 0.0, 0.999999999};
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), "/tmp/$$$PelmarTemp99999998.html");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp0.html"], "other");
  EXPECT_EQ(platform.files["/tmp/$$$PelmarTemp99999998.html"], "<P>");
  EXPECT_FALSE(editor.file_number.IsOpen());
}

TEST_F(TestPage, IsReportedIfItCannotBeWritten) {
  platform.draws = {0.0};
  platform.write_errors["/tmp/$$$PelmarTemp0.htm"] = ENOSPC;
  platform.answers = {Answer::kOk};
  editor.commands.Run("mnutest");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Testovací stránku nelze zapsat do složky /tmp/\r\nKód chyby " +
                                       std::to_string(ENOSPC) + ": na disku není místo\" \"Testuj html\"");
  EXPECT_FALSE(editor.file_number.IsOpen());
}

TEST_F(TestPage, IsReportedIfTheFileNumberIsInUse) {
  editor.file_number.Open();
  platform.answers = {Answer::kOk};
  EXPECT_EQ(PageToShow(editor, PageEnd::kAsItIs), std::nullopt);
  EXPECT_TRUE(platform.calls.back().ends_with(": soubor nebo zařízení se právě používá\" \"Interní browser\""));
}

}  // namespace
}  // namespace pelmar
