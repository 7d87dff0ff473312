#include "platform/qt/controls/file_browser.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <filesystem>

#include "platform/qt/controls/drive_list.h"
#include "platform/qt/controls/file_list.h"
#include "platform/qt/controls/folder_list.h"
#include "platform/qt/convert.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

QStringList NamesIn(const QAbstractItemView& list) {
  QStringList names;
  for (int row = 0; row < list.model()->rowCount(); ++row) names.append(list.model()->index(row, 0).data().toString());
  return names;
}

std::string RowsOf(const QAbstractItemView& list) { return NamesIn(list).join(u' ').toStdString(); }

void Click(QAbstractItemView& list, const QString& name, bool twice = false) {
  const int row = static_cast<int>(NamesIn(list).indexOf(name));
  ASSERT_GE(row, 0) << name.toStdString();
  const QPoint at = list.visualRect(list.model()->index(row, 0)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
  if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
}

template <typename List>
struct ListTest : testing::Test {
  explicit ListTest(std::initializer_list<const char*> files) {
    for (const char* file : files) temp.Put(file, "");
    list.resize(300, 400);
    list.show();
    list.setProperty("Path", base);
  }
  [[nodiscard]] QString In(const char* name) const { return base + QString::fromUtf8(name); }

  TempFolder temp;
  QString base = Utf8ToQString(temp.Path());
  List list;
};

struct FolderListTest : ListTest<FolderList> {
  FolderListTest() : ListTest({"b/inner/x", "Č/x", "file"}) { changes.clear(); }
  [[nodiscard]] std::string Subfolders() const {
    return NamesIn(list).mid(list.Path().count(u'/') + 1).join(u' ').toStdString();
  }
  QSignalSpy changes{&list, &FolderList::PathChanged};
};

TEST_F(FolderListTest, ShowsTheWayAndTheSubfoldersAndTellsAPathOnlyWhenItChanges) {
  EXPECT_EQ(NamesIn(list).first(), QStringLiteral("/"));
  EXPECT_EQ(NamesIn(list).mid(1, base.count(u'/')).join(u'/'), base.mid(1));
  EXPECT_EQ(Subfolders(), "b Č");
  for (const QString& path : {base, In("/"), In("/b/.."), QString(), In("/file"), In("/missing")}) list.SetPath(path);
  EXPECT_EQ(list.property("Path").toString(), base);
  EXPECT_EQ(list.HighlightedPath(), base);
  EXPECT_EQ(changes.size(), 0);
  list.SetPath(In("/b/"));
  EXPECT_EQ(list.Path(), In("/b"));
  EXPECT_EQ(changes.value(0).value(0).toString(), In("/b"));
  list.SetPath(QStringLiteral("/"));
  EXPECT_EQ(NamesIn(list).count(QStringLiteral("/")), 1);
}

TEST_F(FolderListTest, AClickHighlightsADoubleClickOrEnterMoves) {
  QSignalSpy keys(&list, &FolderList::KeyReleased);
  Click(list, QStringLiteral("Č"));
  QTest::keyClick(&list, Qt::Key_Up);
  EXPECT_EQ(list.HighlightedPath(), In("/b"));
  EXPECT_EQ(list.Path(), base);
  EXPECT_EQ(changes.size(), 0);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(list.Path(), In("/b"));
  EXPECT_EQ(Subfolders(), "inner");
  EXPECT_EQ(keys.value(0).value(0).toInt(), Qt::Key_Up);
  EXPECT_EQ(keys.value(1).value(0).toInt(), Qt::Key_Return);
  Click(list, QFileInfo(base).fileName(), true);
  EXPECT_EQ(list.Path(), base);
  EXPECT_EQ(changes.size(), 2);

  // The highlight comes back from a folder that can't be entered.
  Click(list, QStringLiteral("Č"));
  std::filesystem::remove_all(temp.File("Č"));
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(list.HighlightedPath(), base);
  EXPECT_EQ(changes.size(), 2);
}

TEST_F(FolderListTest, SeesWhatChangedWhileHidden) {
  list.SetPath(In("/b/inner"));
  list.hide();
  std::filesystem::remove_all(temp.File("b"));
  temp.Put("new/x", "");
  changes.clear();
  list.show();
  EXPECT_EQ(list.Path(), base);
  EXPECT_EQ(changes.size(), 1);
  EXPECT_EQ(Subfolders(), "Č new");
}

struct FileListTest : ListTest<FileList> {
  FileListTest() : ListTest({"a.txt", "b.HTM", "c.htm", "d", "sub/c.htm"}) {}
  [[nodiscard]] std::string Chosen() const { return list.FileName().toStdString(); }
  void Shows(const char* names) const {
    EXPECT_TRUE(QTest::qWaitFor([&] { return RowsOf(list) == names; }, 5000)) << RowsOf(list);
  }
  QSignalSpy clicks{&list, &FileList::FileClicked};
};

TEST_F(FileListTest, ShowsTheFilesOfTheMaskAndTheProgramsChoiceRaisesNoClick) {
  QSignalSpy paths(&list, &FileList::PathChanged), patterns(&list, &FileList::PatternChanged);
  EXPECT_EQ(RowsOf(list), "a.txt b.HTM c.htm d");
  list.setProperty("FileName", QStringLiteral("c.htm"));
  list.setProperty("Pattern", QStringLiteral("*.htm"));
  list.SetPath(base);
  EXPECT_EQ(RowsOf(list), "b.HTM c.htm");
  EXPECT_EQ(Chosen(), "c.htm");  // still in the list
  list.SetPattern(QStringLiteral("*.txt"));
  EXPECT_EQ(Chosen(), "");
  list.SetFileName(QStringLiteral("a.txt"));
  list.SetFileName(QStringLiteral("missing"));
  EXPECT_EQ(Chosen(), "");
  list.SetPattern(QStringLiteral("*.*"));
  list.SetFileName(QStringLiteral("c.htm"));
  list.SetPath(In("/sub"));
  list.SetPath(In("/missing"));
  EXPECT_EQ(list.Path(), In("/sub"));
  EXPECT_EQ(RowsOf(list), "c.htm");
  EXPECT_EQ(Chosen(), "");  // another file of the same name
  EXPECT_EQ(clicks.size(), 0);
  EXPECT_EQ(paths.size(), 1);
  EXPECT_EQ(patterns.size(), 3);
}

TEST_F(FileListTest, FollowsTheFolderWhileItIsOnShow) {
  QSignalSpy gone(&list, &FileList::FileGone);
  list.SetFileName(QStringLiteral("c.htm"));
  temp.Put("aa.txt", "");
  std::filesystem::remove(temp.File("b.HTM"));
  Shows("a.txt aa.txt c.htm d");
  EXPECT_EQ(Chosen(), "c.htm");
  EXPECT_EQ(gone.size(), 0);
  std::filesystem::remove(temp.File("c.htm"));
  Shows("a.txt aa.txt d");
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(gone.size(), 1);
  list.hide();
  std::filesystem::remove(temp.File("a.txt"));
  list.show();  // what changed meanwhile
  EXPECT_EQ(RowsOf(list), "aa.txt d");
  list.SetPath(In("/sub"));
  temp.Put("sub/e.htm", "");
  Shows("c.htm e.htm");

  for (int i = 100; i < 300; ++i) temp.Put("many/f" + std::to_string(i), "");
  list.SetPath(In("/many"));
  list.SetFileName(QStringLiteral("f100"));
  list.scrollTo(list.model()->index(150, 0));
  const int scrolled = list.verticalScrollBar()->value();
  temp.Put("many/zz", "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return NamesIn(list).last() == QLatin1String("zz"); }, 5000));
  EXPECT_EQ(list.verticalScrollBar()->value(), scrolled);  // stays there
  EXPECT_EQ(Chosen(), "f100");
  EXPECT_EQ(clicks.size(), 0);
}

TEST_F(FileListTest, ThePersonsChoiceIsOneClickEachAndDoubleClickOrEnterActivate) {
  int activated = 0;
  const auto listening = QObject::connect(&list, &FileList::FileActivated, [&] { ++activated; });
  QApplication::setActiveWindow(&list);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(Chosen(), "");  // coming into focus chooses nothing
  EXPECT_EQ(activated, 0);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(Chosen(), "a.txt");
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(Chosen(), "b.HTM");
  EXPECT_EQ(clicks.size(), 2);
  Click(list, QStringLiteral("c.htm"));
  Click(list, QStringLiteral("c.htm"));
  EXPECT_EQ(Chosen(), "c.htm");
  EXPECT_EQ(clicks.size(), 4);
  QTest::keyClick(&list, Qt::Key_Shift);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(50, 390));  // below the last row
  EXPECT_EQ(clicks.size(), 4);
  EXPECT_EQ(activated, 0);

  Click(list, QStringLiteral("d"), true);
  EXPECT_EQ(clicks.size(), 5);
  QTest::keyClick(&list, Qt::Key_Enter);
  EXPECT_EQ(activated, 2);
  QObject::disconnect(listening);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&list, &enter);
  EXPECT_FALSE(enter.isAccepted());  // for the dialog's button
}

TEST(DriveList, FollowsAPathSilentlyAndTellsAChoice) {
  DriveList drives;
  QSignalSpy changes(&drives, &DriveList::DriveChanged);
  drives.setProperty("Drive", QDir::homePath() + QStringLiteral("/some/where"));
  EXPECT_EQ(drives.property("Drive").toString(), QDir::homePath());
  drives.SetDrive(QStringLiteral("/et"));
  drives.SetDrive(QString());
  EXPECT_EQ(drives.Drive(), QStringLiteral("/"));
  drives.show();
  drives.showPopup();
  drives.hidePopup();
  EXPECT_EQ(drives.Drive(), QStringLiteral("/"));
  EXPECT_EQ(changes.size(), 0);
  QTest::keyClick(&drives, Qt::Key_Home);
  EXPECT_EQ(changes.value(0).value(0).toString(), QDir::homePath());
}

TEST(FileBrowser, PlaceLeadsFoldersLeadFilesUnderTheMask) {
  const TempFolder temp;
  for (const char* name : {"inner/one.gif", "inner/two.txt", "a.gif"}) temp.Put(name, "");
  const QString base = Utf8ToQString(temp.Path());
  DriveList place;
  FolderList folders;
  FileList files;
  QComboBox mask;
  mask.setEditable(true);
  mask.setEditText(QStringLiteral("*.GIF"));
  LinkFileBrowser(&place, &folders, &files, &mask);
  EXPECT_EQ(folders.Path(), QDir::currentPath());
  EXPECT_EQ(files.Path(), QDir::currentPath());
  EXPECT_EQ(RowsOf(files) + RowsOf(folders), "");  // neither reads a folder before it shows
  folders.show();
  files.show();

  folders.SetPath(base);
  EXPECT_EQ(RowsOf(files), "a.gif");
  Click(folders, QStringLiteral("inner"));
  QTest::keyRelease(&folders, Qt::Key_Down);  // shows the files without moving
  EXPECT_EQ(RowsOf(files), "one.gif");
  EXPECT_EQ(folders.Path(), base);
  mask.setEditText(QStringLiteral("*.txt"));
  EXPECT_EQ(RowsOf(files), "two.txt");
  EXPECT_EQ(PickedPath(files), temp.Path() + "/inner/");
  files.SetFileName(QStringLiteral("two.txt"));
  EXPECT_EQ(PickedPath(files), temp.Path() + "/inner/two.txt");
  QTest::keyClick(&folders, Qt::Key_Return);
  EXPECT_EQ(folders.Path(), base + QStringLiteral("/inner"));
  Q_EMIT place.DriveChanged(base);
  EXPECT_EQ(files.Path(), base);
}

}  // namespace
}  // namespace pelmar
