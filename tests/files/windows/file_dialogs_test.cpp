#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <fstream>

#include "files/line_ends.h"
#include "files/windows/dir_setup.h"
#include "files/windows/dos_unix_conv.h"
#include "files/windows/otevri.h"
#include "files/windows/uloz.h"
#include "platform/qt/controls/drive_list.h"
#include "platform/qt/controls/file_browser.h"
#include "platform/qt/controls/file_list.h"
#include "platform/qt/controls/folder_list.h"
#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// The lists show the real disk; what the dialogs read and write is the scripted one, filled with the same names.
struct FileDialogsTest : testing::Test {
  QTemporaryDir folder;
  ScriptedPlatform platform;
  WholeEditor editor{platform};

  FileDialogsTest() {
    AddFile("a.TXT", "text of a");
    AddFile("b.html", "<B>");
    AddFile("big.txt", std::string(64001, 'x'));
  }
  [[nodiscard]] std::string PathOf(const char* name) const {
    return Utf8FromQString(folder.filePath(QLatin1String(name)));
  }
  void AddFile(const char* name, const std::string& content) {
    QFile file(folder.filePath(QLatin1String(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    platform.files[PathOf(name)] = content;
  }
  template <class Type>
  static Type* Find(const QWidget& dialog, const char* name) {
    return dialog.findChild<Type*>(QLatin1String(name));
  }
  static void Choose(const QWidget& dialog, const char* name) {
    auto* list = Find<FileList>(dialog, "File1");
    for (int row = 0; row < list->model()->rowCount(); ++row) {
      const QModelIndex index = list->model()->index(row, 0);
      if (index.data().toString() != QString::fromUtf8(name)) continue;
      return QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    }
    FAIL() << name << " isn't in the list";
  }
};

TEST_F(FileDialogsTest, OpenDialogPreviewsAsksAndOpens) {
  Otevri dialog(editor.opener, platform, nullptr);
  EXPECT_EQ(dialog.objectName(), QStringLiteral("Otevři"));
  dialog.show();
  auto* open = Find<QPushButton>(dialog, "Command1");
  EXPECT_FALSE(open->isEnabled());
  EXPECT_EQ(Find<QLabel>(dialog, "Label1")->text(), QStringLiteral("Nastav soubor !"));
  EXPECT_EQ(ViewOf(Find<TextBox>(dialog, "Text2")->Text()), "Není k dispozici"_w);
  Find<FolderList>(dialog, "Dir1")->SetPath(folder.path());
  EXPECT_EQ(Find<FileList>(dialog, "File1")->Path(), folder.path());
  QTest::keyClick(Find<QComboBox>(dialog, "Text1"), Qt::Key_Down);  // goes on from the mask that shows
  EXPECT_EQ(Find<FileList>(dialog, "File1")->Pattern(), QStringLiteral("*.html"));
  Find<QComboBox>(dialog, "Text1")->setCurrentText(QStringLiteral("*.txt"));
  EXPECT_EQ(Find<FileList>(dialog, "File1")->model()->rowCount(), 2);  // a mask ignores case

  Choose(dialog, "big.txt");
  EXPECT_TRUE(open->isEnabled());
  EXPECT_EQ(ViewOf(Find<TextBox>(dialog, "Text2")->Text()), "Není k dispozici"_w);
  auto* encoding = Find<QLabel>(dialog, "Label3");
  platform.files[PathOf("a.TXT")] = "kůň";
  Choose(dialog, "a.TXT");
  EXPECT_TRUE(encoding->text().contains(QStringLiteral("UTF-8")));
  platform.files[PathOf("a.TXT")] = "text of a";
  Choose(dialog, "a.TXT");
  EXPECT_TRUE(encoding->text().isEmpty());
  EXPECT_EQ(Utf8FromQString(Find<QLabel>(dialog, "Label1")->text()), PathOf("a.TXT"));
  EXPECT_EQ(ViewOf(Find<TextBox>(dialog, "Text2")->Text()), "text of a");
  platform.answers = {Answer::kNo, Answer::kYes};
  open->click();
  EXPECT_EQ(platform.calls.back(), "message 52 \"Opravdu otevřít soubor ?\" \"Soubor\"");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(editor.text.Empty());
  auto* list = Find<FileList>(dialog, "File1");
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->currentIndex()).center());
  EXPECT_EQ(editor.text.Text(), "text of a");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FileDialogsTest, ANameThatIsNoUtf8IsShownOpenedAndSavedByItsBytes) {
  const std::string path = Utf8FromQString(folder.path()) + "/k\xF9\xF2.txt";
  std::ofstream(path).close();
  platform.files[path] = "horse";
  Otevri open(editor.opener, platform, nullptr);
  Uloz save(editor.documents, editor.saver, nullptr);
  open.show();
  Find<FolderList>(open, "Dir1")->SetPath(folder.path());
  Choose(open, "kůň.txt");
  EXPECT_EQ(Find<QLabel>(open, "Label1")->text(), folder.filePath(QStringLiteral("kůň.txt")));
  platform.answers = {Answer::kYes};
  Find<QPushButton>(open, "Command1")->click();
  EXPECT_EQ(editor.text.Text(), "horse");
  EXPECT_EQ(editor.documents.CurrentPath(), path);
  EXPECT_EQ(editor.settings.RecentFiles[0], path);
  editor.text.SetText("mare");
  platform.answers = {Answer::kYes};
  Find<QPushButton>(save, "Command1")->click();
  EXPECT_EQ(platform.files[path], "mare");
  Find<QComboBox>(save, "Text2")->setCurrentText(QStringLiteral("htm"));  // the name is still the old one
  Find<QPushButton>(save, "Command1")->click();
  EXPECT_EQ(platform.files[path.substr(0, path.size() - 3) + "htm"], "mare");
}

TEST_F(FileDialogsTest, SaveDialogShowsItsTargetAsItIsMade) {
  Uloz dialog(editor.documents, editor.saver, nullptr);
  EXPECT_EQ(dialog.objectName(), QStringLiteral("Ulož"));
  dialog.show();
  auto* label = Find<QLabel>(dialog, "Label1");
  auto* save = Find<QPushButton>(dialog, "Command1");
  EXPECT_EQ(label->text(), QStringLiteral("Vložte údaje !"));
  EXPECT_FALSE(save->isEnabled());
  Find<FolderList>(dialog, "Dir1")->SetPath(folder.path());
  EXPECT_TRUE(save->isEnabled());
  EXPECT_EQ(label->text(), folder.filePath(QStringLiteral("Jméno.html")));
  Find<QLineEdit>(dialog, "Text1")->setText(QStringLiteral("new.x"));
  Find<QComboBox>(dialog, "Text2")->setCurrentText(QString());
  EXPECT_EQ(label->text(), folder.filePath(QStringLiteral("new.x.")));  // the dot is always there
  Find<QComboBox>(dialog, "Text2")->setCurrentText(QStringLiteral("čtu"));
  editor.text.SetText("content");
  save->click();
  EXPECT_EQ(platform.files[PathOf("new.x.") + "čtu"], "content");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FileDialogsTest, ExtensionIsTakenAsItIsTypedOrChosen) {
  Uloz dialog(editor.documents, editor.saver, nullptr);
  dialog.Present();
  auto* extension = Find<QComboBox>(dialog, "Text2");
  auto* save = Find<QPushButton>(dialog, "Command1");
  EXPECT_EQ(extension->currentText(), QStringLiteral("html"));
  QTest::keyClick(extension, Qt::Key_Return);
  EXPECT_FALSE(save->isEnabled());  // nothing was typed
  extension->showPopup();
  QTest::keyClick(extension->view(), Qt::Key_Return);  // "html" again
  EXPECT_TRUE(save->isEnabled());
  EXPECT_TRUE(Find<QLabel>(dialog, "Label1")->text().endsWith(QStringLiteral("/Jméno.html")));
  extension->lineEdit()->selectAll();
  QTest::keyClicks(extension, QStringLiteral("h"));
  EXPECT_TRUE(Find<QLabel>(dialog, "Label1")->text().endsWith(QStringLiteral("/Jméno.h")));
}

TEST_F(FileDialogsTest, SaveDialogHidesAfterARefusalToo) {
  Uloz dialog(editor.documents, editor.saver, nullptr);
  dialog.show();
  editor.opener.OpenPath(PathOf("b.html"));  // primes it
  EXPECT_EQ(Find<QLineEdit>(dialog, "Text1")->text(), QStringLiteral("b"));
  EXPECT_EQ(Find<QComboBox>(dialog, "Text2")->currentText(), QStringLiteral("html"));
  EXPECT_EQ(Utf8FromQString(Find<QLabel>(dialog, "Label1")->text()), PathOf("b.html"));
  EXPECT_EQ(Find<FolderList>(dialog, "Dir1")->Path(), folder.path());
  platform.answers = {Answer::kNo};
  Find<QPushButton>(dialog, "Command1")->click();
  EXPECT_FALSE(dialog.isVisible());
  Uloz late(editor.documents, editor.saver, nullptr);  // primed before it was made
  EXPECT_EQ(Utf8FromQString(Find<QLabel>(late, "Label1")->text()), PathOf("b.html"));
}

TEST_F(FileDialogsTest, ConversionWritesBesideTheChosenFile) {
  Dos_Unix_conv dialog(platform, nullptr);
  dialog.show();
  auto* to_unix = Find<QPushButton>(dialog, "Command1");
  auto* to_dos = Find<QPushButton>(dialog, "Command2");
  auto* to_page = Find<QPushButton>(dialog, "Command4");
  auto* to_utf8 = Find<QPushButton>(dialog, "Command5");
  EXPECT_FALSE(to_unix->isEnabled() || to_dos->isEnabled() || to_page->isEnabled() || to_utf8->isEnabled());
  Find<FolderList>(dialog, "Dir1")->SetPath(folder.path());
  Find<QComboBox>(dialog, "Text1")->setCurrentText(QStringLiteral("*.html"));
  Choose(dialog, "b.html");
  EXPECT_TRUE(to_unix->isEnabled() && to_dos->isEnabled());
  EXPECT_EQ(Utf8FromQString(Find<QLabel>(dialog, "Label2")->text()), PathOf("b.html"));
  platform.files[PathOf("b.html")] = "<B>\r\n";
  to_unix->click();
  to_dos->click();
  const std::string stem = ConvertedPath(PathOf("b.html"), "");
  EXPECT_EQ(platform.files[stem + "unx"], "<B>\n");
  EXPECT_EQ(platform.files[stem + "dos"], "<B>\r\r\n");
  to_page->click();
  EXPECT_EQ(platform.files[stem + "1250"], "<B>\r\n");
  Find<QCheckBox>(dialog, "Check1")->click();
  to_utf8->click();
  EXPECT_EQ(platform.files[stem + "utf8"], "\xEF\xBB\xBF<B>\r\n");
  EXPECT_TRUE(dialog.isVisible());
  Find<QPushButton>(dialog, "Command3")->click();
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FileDialogsTest, WorkingFolderReachesEveryDialog) {
  Otevri open(editor.opener, platform, nullptr);
  std::unique_ptr<Uloz> save;  // made when it is first needed
  const auto save_lists = [&] {
    if (!save) save = std::make_unique<Uloz>(editor.documents, editor.saver, nullptr);
    return FolderBrowserOf(*save);
  };
  const std::vector<std::function<FolderBrowser()>> dialogs = {save_lists, [&] { return FolderBrowserOf(open); }};
  DirSetup dialog(dialogs, nullptr);
  dialog.show();
  Find<FolderList>(dialog, "Dir1")->SetPath(folder.path());
  Find<DriveList>(dialog, "Drive1")->SetDrive(QStringLiteral("/"));
  Find<QPushButton>(dialog, "Command2")->click();
  EXPECT_EQ(save, nullptr);
  dialog.show();
  Find<QPushButton>(dialog, "Command1")->click();
  EXPECT_FALSE(dialog.isVisible());
  ASSERT_NE(save, nullptr);
  EXPECT_EQ(Find<FileList>(open, "File1")->Path(), folder.path());
  EXPECT_EQ(Find<DriveList>(open, "Drive1")->Drive(), QStringLiteral("/"));
  EXPECT_EQ(Find<QLabel>(*save, "Label1")->text(), folder.filePath(QStringLiteral("Jméno.html")));
  EXPECT_TRUE(Find<QPushButton>(*save, "Command1")->isEnabled());

  // A folder where a list stands already counts as well.
  Find<QPushButton>(*save, "Command1")->setEnabled(false);
  Find<QPushButton>(dialog, "Command1")->click();
  EXPECT_TRUE(Find<QPushButton>(*save, "Command1")->isEnabled());
}

TEST_F(FileDialogsTest, TheProgramKnowsAllDialogsThatPickFiles) {
  Program program(platform);
  auto& dialog = program.Windows().Get<DirSetup>();
  Find<FolderList>(dialog, "Dir1")->SetPath(folder.path());
  Find<QPushButton>(dialog, "Command1")->click();
  QStringList reached;
  for (const QWidget* widget : QApplication::allWidgets())
    if (const auto* folders = qobject_cast<const FolderList*>(widget); folders && folders->Path() == folder.path())
      reached.append(folders->window()->objectName());
  reached.sort();
  EXPECT_EQ(reached.join(u' ').toStdString(), "DirSetup Dos_Unix_conv Frame Obrazek OdkazNaJiný Otevři Ulož Vytvoř");
}

}  // namespace
}  // namespace pelmar
