#include <gtest/gtest.h>

#include "support/program_test.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

// The lists show a real folder. The dialogs read and write scripted files of the same names.
struct FileDialogsTest : ProgramTest {
  TempFolder folder;

  FileDialogsTest() {
    Put("a.TXT", "text");
    Put("b.html", "<B>\r\n");
    Put("big.txt", std::string(64001, 'x'));
  }
  void Put(const char* name, const std::string& bytes) { platform.files[folder.Put(name, "")] = bytes; }
  // Like ExpectState, with "~" for the folder in both lines.
  void Expect(const QWidget& dialog, std::string steps, std::string state) const {
    for (std::string* line : {&steps, &state})
      for (std::size_t at; (at = line->find('~')) != std::string::npos;) line->replace(at, 1, folder.Path());
    ExpectState(dialog, steps.c_str(), state.c_str());
  }
};

struct OpenDialogTest : FileDialogsTest {
  QWidget& dialog = Open("mnuopen");
};

TEST_F(OpenDialogTest, BeginsWithoutAFile) {
  Expect(dialog, "", "Command1=(&Otevři) Label1='Nastav soubor !' Text1=*.* Text2='Není k dispozici' Label3=");
}

TEST_F(OpenDialogTest, PreviewsTheSelectedFile) {
  Expect(dialog, "Dir1=~ File1=b.html", "Command1=&Otevři Label1=~/b.html Text2=<B>\r\n File1=a.TXT|>b.html|big.txt");
  Expect(dialog, "Text1=*.txt File1=big.txt", "File1=a.TXT|>big.txt Text2='Není k dispozici'");
}

TEST_F(OpenDialogTest, OpensAfterAQuestionAndHides) {
  platform.answers = {Answer::kNo};
  Expect(dialog, "Dir1=~ File1=a.TXT Command1!", "Label1=~/a.TXT");
  EXPECT_EQ(platform.calls.back(), "message 52 \"Opravdu otevřít soubor ?\" \"Soubor\"");
  EXPECT_TRUE(dialog.isVisible() && text.Empty());
  platform.answers = {Answer::kYes};
  Work(dialog, "Command1!");
  EXPECT_EQ(text.Text(), "text");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(OpenDialogTest, EnterOnAFileOpensIt) {
  platform.answers = {Answer::kYes};
  Expect(dialog, "Dir1=~ File1=a.TXT File1:\r", "Label1=~/a.TXT");
  EXPECT_EQ(text.Text(), "text");
}

TEST_F(OpenDialogTest, ANameThatIsNotUtf8IsOpenedAndSavedByItsBytes) {
  const std::string path = folder.Put("k\xF9\xF2.txt", "");
  platform.files[path] = "horse";
  platform.answers = {Answer::kYes};
  Expect(dialog, "Dir1=~ File1=kůň.txt Command1!", "Label1=~/kůň.txt");
  EXPECT_EQ(text.Text(), "horse");
  Work(Open("mnusave"), "Text2=htm Command1!");
  EXPECT_EQ(platform.files[folder.File("k\xF9\xF2.htm")], "horse");
}

struct SaveDialogTest : FileDialogsTest {
  QWidget& dialog = Open("mnusave");
};

TEST_F(SaveDialogTest, WaitsForAChoiceBeforeItSaves) {
  Expect(dialog, "Text2:\r", "Text1=Jméno Text2=html Label1='Vložte údaje !' Command1=(&Ulož)");
  auto* extension = Find<QComboBox>(dialog, "Text2");
  extension->showPopup();
  QTest::keyClick(extension->view(), Qt::Key_Return);  // choosing "html" again is a choice too
  Expect(dialog, "", "Command1=&Ulož");
}

TEST_F(SaveDialogTest, UpdatesTheTargetPathWithEachField) {
  Find<QComboBox>(dialog, "Text2")->lineEdit()->selectAll();
  Expect(dialog, "Text2:h Dir1=~", "Text2=h Label1=~/Jméno.h");  // no automatic completion
  Expect(dialog, "Text1=new.x Text2=", "Label1=~/new.x.");
}

TEST_F(SaveDialogTest, HidesAfterASaveAndAfterTheAnswerNo) {
  text.SetText("content");
  Expect(dialog, "Dir1=~ Text1=new.x Text2=čtu Command1!", "Label1=~/new.x.čtu");
  EXPECT_EQ(platform.files[folder.File("new.x.čtu")], "content");
  EXPECT_FALSE(dialog.isVisible());
  dialog.show();
  platform.answers = {Answer::kNo};
  Expect(dialog, "Text1=b Text2=html Command1!", "Label1=~/b.html");
  EXPECT_EQ(platform.files[folder.File("b.html")], "<B>\r\n");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(SaveDialogTest, AnOpenedFileSetsItsFields) {
  parts.files.opener.OpenPath(folder.File("b.html"));
  Expect(dialog, "", "Text1=b Text2=html Label1=~/b.html Command1=&Ulož");
  EXPECT_EQ(Utf8FromQString(Find<FolderList>(dialog, "Dir1")->Path()), folder.Path());
  Named(dialog, "Command1")->setEnabled(false);
  parts.files.opener.OpenPath(folder.File("b.html"));  // this changes no field
  Expect(dialog, "", "Command1=&Ulož");
}

TEST_F(SaveDialogTest, ASaveToANameWithoutAnExtensionShowsThePathOfTheFields) {
  platform.answers = {Answer::kOk};
  parts.files.saver.SaveToPath(Utf8FromQString(Find<FolderList>(dialog, "Dir1")->Path()) + "/bez");
  const std::string path = Utf8FromQString(Find<FolderList>(dialog, "Dir1")->Path()) + "/Jméno.html";
  ExpectState(dialog, "", ("Command1=&Ulož Label1=" + path).c_str());
}

TEST_F(FileDialogsTest, AnOpenedFileSetsTheFieldsOfALaterSaveDialog) {
  parts.files.opener.OpenPath(folder.File("a.TXT"));
  Put("bez", "");
  EXPECT_THROW(parts.files.opener.OpenPath(folder.File("bez")), RuntimeError);  // required: keeps the earlier name
  Expect(Open("mnusave"), "", "Text1=a Text2=TXT Label1=~/a.TXT Command1=&Ulož");
}

TEST_F(FileDialogsTest, ConversionsNeedAFileAndWriteBesideIt) {
  QWidget& dialog = Open("mnu_utiliti_dos_unix");
  ExpectState(dialog, "",
              "Text1=*.* Label2= Command1='(&DOS --> UNIX)' Command2='(&UNIX --> DOS)' Command4='(U&TF-8 --> 1250)' "
              "Command5='(&1250 --> UTF-8)'");
  Expect(dialog, "Dir1=~ Text1=*.html File1=b.html Command1! Command2! Command4! Check1! Command5!", "Label2=~/b.html");
  EXPECT_EQ(platform.files[folder.File("b.unx")], "<B>\n");
  EXPECT_EQ(platform.files[folder.File("b.dos")], "<B>\r\r\n");
  EXPECT_EQ(platform.files[folder.File("b.1250")], "<B>\r\n");
  EXPECT_EQ(platform.files[folder.File("b.utf8")], "\xEF\xBB\xBF<B>\r\n");
  Put("c.html", "");
  Expect(dialog, "Command1!", "File1=>b.html|c.html");  // a conversion reads the folder again
}

TEST_F(FileDialogsTest, OkInDirSetupSetsTheFolderOfEveryFolderList) {
  QWidget& dialog = Open("mnudir");
  const auto windows_at_the_folder = [this] {
    std::vector<std::string> names;
    for (const QWidget* widget : QApplication::allWidgets()) {
      const auto* folders = qobject_cast<const FolderList*>(widget);
      if (folders && Utf8FromQString(folders->Path()) == folder.Path())
        names.push_back(folders->window()->objectName().toStdString());
    }
    std::ranges::sort(names);
    return names;
  };
  Work(dialog, "Drive1=0 Drive1:↓");
  EXPECT_EQ(Find<FolderList>(dialog, "Dir1")->Path(), QStringLiteral("/"));
  Expect(dialog, "Dir1=~ Command2!", "Drive1=/");
  EXPECT_EQ(windows_at_the_folder(), std::vector<std::string>{"DirSetup"});
  dialog.show();
  Work(dialog, "Command1!");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(windows_at_the_folder(), (std::vector<std::string>{"DirSetup", "Dos_Unix_conv", "Frame", "Obrazek",
                                                               "OdkazNaJiný", "Otevři", "Ulož", "Vytvoř"}));
}

}  // namespace
}  // namespace pelmar
