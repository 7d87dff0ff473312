#include <gtest/gtest.h>

#include <QLineEdit>

#include "files/windows/dir_setup.h"
#include "files/windows/dos_unix_conv.h"
#include "files/windows/otevri.h"
#include "files/windows/uloz.h"
#include "platform/qt/filelists/drive_list.h"
#include "platform/qt/filelists/file_list.h"
#include "program/program.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "support/temp_folder.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

// The lists show the real disk; what the dialogs read and write is the scripted one, filled with the same names.
struct FileDialogsTest : testing::Test {
  TempFolder folder;
  ScriptedPlatform platform;
  WholeEditor editor{platform};

  FileDialogsTest() {
    Put("a.TXT", "text");
    Put("b.html", "<B>\r\n");
    Put("big.txt", std::string(64001, 'x'));
  }
  void Put(const char* name, const std::string& bytes) { platform.files[folder.Put(name, "")] = bytes; }
  // "~" is the folder.
  void Expect(const QWidget& dialog, std::string steps, std::string state) const {
    for (std::string* line : {&steps, &state})
      for (std::size_t at; (at = line->find('~')) != std::string::npos;) line->replace(at, 1, folder.Path());
    ExpectState(dialog, steps.c_str(), state.c_str());
  }
};

TEST_F(FileDialogsTest, OtevriPreviewsAsksAndOpens) {
  Otevri dialog(editor.opener, platform, nullptr);
  dialog.show();
  Expect(dialog, "", "Command1=(&Otevři) Label1='Nastav soubor !' Text1=*.* Text2='Není k dispozici' Label3=");
  QTest::keyClick(Find<QComboBox>(dialog, "Text1"), Qt::Key_Down);  // goes on from the mask that shows
  Expect(dialog, "", "Text1=*.html");
  Expect(dialog, "Dir1=~ File1=b.html", "Command1=&Otevři Label1=~/b.html Text2=<B>\r\n File1=>b.html");
  // In any case.
  Expect(dialog, "Text1=*.txt File1=big.txt", "File1=a.TXT|>big.txt Text2='Není k dispozici'");
  Put("a.TXT", "kůň");
  Expect(dialog, "File1=a.TXT",
         "Label3='Soubor je v UTF-8, čte se jako Windows-1250. Převede ho „Konverze dos - unix“ v nabídce Soubor.'");
  Put("a.TXT", "text");
  auto* list = Find<FileList>(dialog, "File1");
  const QPoint row = list->visualRect(list->currentIndex()).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
  platform.answers = {Answer::kNo, Answer::kYes};
  Expect(dialog, "Command1!", "Label1=~/a.TXT Text2=text Label3=");
  EXPECT_EQ(platform.TakeTold(), "message 52 \"Opravdu otevřít soubor ?\" \"Soubor\"; ");
  EXPECT_TRUE(dialog.isVisible() && editor.text.Empty());
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, row);
  EXPECT_EQ(editor.text.Text(), "text");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FileDialogsTest, ANameThatIsNoUtf8IsShownOpenedAndSavedByItsBytes) {
  const std::string path = folder.Put("k\xF9\xF2.txt", "");
  platform.files[path] = "horse";
  Otevri open(editor.opener, platform, nullptr);
  Uloz save(editor.documents, editor.saver, nullptr);
  open.show();
  platform.answers = {Answer::kYes, Answer::kYes};
  Expect(open, "Dir1=~ File1=kůň.txt Command1!", "Label1=~/kůň.txt");
  EXPECT_EQ(editor.text.Text(), "horse");
  EXPECT_EQ(editor.documents.CurrentPath(), path);
  editor.text.SetText("mare");
  Work(save, "Command1!");
  EXPECT_EQ(platform.files[path], "mare");
  Work(save, "Text2=htm Command1!");  // the name is still the old one
  EXPECT_EQ(platform.files[folder.File("k\xF9\xF2.htm")], "mare");
}

TEST_F(FileDialogsTest, UlozShowsItsTargetAsItIsMadeAndHides) {
  Uloz dialog(editor.documents, editor.saver, nullptr);
  dialog.Present();
  Expect(dialog, "Text2:\r", "Text1=Jméno Text2=html Label1='Vložte údaje !' Command1=(&Ulož)");
  auto* extension = Find<QComboBox>(dialog, "Text2");
  extension->showPopup();
  QTest::keyClick(extension->view(), Qt::Key_Return);  // "html" again counts
  Expect(dialog, "", "Command1=&Ulož");
  extension->lineEdit()->selectAll();
  Expect(dialog, "Dir1=~ Text2:h", "Text2=h Label1=~/Jméno.h");  // nothing is completed
  Expect(dialog, "Text1=new.x Text2=", "Label1=~/new.x.");
  editor.text.SetText("content");
  Work(dialog, "Text2=čtu Command1!");
  EXPECT_EQ(platform.files[folder.File("new.x.čtu")], "content");
  EXPECT_FALSE(dialog.isVisible());
  dialog.show();
  editor.opener.OpenPath(folder.File("b.html"));  // primes it
  platform.answers = {Answer::kNo};
  Expect(dialog, "Command1!", "Text1=b Text2=html Label1=~/b.html");
  EXPECT_FALSE(dialog.isVisible());
  Uloz late(editor.documents, editor.saver, nullptr);  // primed before it was made
  Expect(late, "", "Text1=b Label1=~/b.html Command1=&Ulož");
  EXPECT_EQ(Utf8FromQString(Find<FolderList>(late, "Dir1")->Path()), folder.Path());
  Named(late, "Command1")->setEnabled(false);
  editor.documents.Target().Prime(folder.File("b.html"));  // which changes no field
  Expect(late, "", "Command1=&Ulož");
}

TEST_F(FileDialogsTest, ConversionWritesBesideTheChosenFile) {
  Dos_Unix_conv dialog(platform, nullptr);
  dialog.show();
  ExpectState(dialog, "",
              "Text1=*.* Label2= Command1='(&DOS --> UNIX)' Command2='(&UNIX --> DOS)' Command4='(U&TF-8 --> 1250)' "
              "Command5='(&1250 --> UTF-8)'");
  Expect(dialog, "Dir1=~ Text1=*.html File1=b.html Command1! Command2! Command4! Check1! Command5!", "Label2=~/b.html");
  const std::string stem = folder.Path() + "/b.";
  EXPECT_EQ(platform.files[stem + "unx"] + '|' + platform.files[stem + "dos"] + '|' + platform.files[stem + "1250"] +
                '|' + platform.files[stem + "utf8"],
            "<B>\n|<B>\r\r\n|<B>\r\n|\xEF\xBB\xBF<B>\r\n");
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(FileDialogsTest, DirSetupLeadsEveryDialogThatPicksFiles) {
  Program program(platform);
  auto& dialog = program.Windows().Get<DirSetup>();
  const auto reached = [&] {
    QStringList names;
    for (const QWidget* widget : QApplication::allWidgets())
      if (const auto* folders = qobject_cast<const FolderList*>(widget);
          folders && Utf8FromQString(folders->Path()) == folder.Path())
        names.append(folders->window()->objectName());
    names.sort();
    return names.join(u' ').toStdString();
  };
  Find<DriveList>(dialog, "Drive1")->SetDrive(QStringLiteral("/"));
  Expect(dialog, "Dir1=~ Command2!", "Drive1=/");
  EXPECT_EQ(reached(), "DirSetup");
  dialog.show();
  Work(dialog, "Command1!");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(reached(), "DirSetup Dos_Unix_conv Frame Obrazek OdkazNaJiný Otevři Ulož Vytvoř");
  auto& save = program.Windows().Get<Uloz>();
  Expect(save, "", "Label1=~/Jméno.html Command1=&Ulož Drive1=/");
  // A folder where a list stands already counts as well.
  Named(save, "Command1")->setEnabled(false);
  Work(dialog, "Command1!");
  Expect(save, "", "Command1=&Ulož");
}

}  // namespace
}  // namespace pelmar
