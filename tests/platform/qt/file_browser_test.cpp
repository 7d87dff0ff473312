#include <gtest/gtest.h>
#include <unistd.h>

#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <filesystem>

#include "platform/qt/controls/drive_list.h"
#include "platform/qt/controls/file_browser.h"
#include "platform/qt/controls/file_list.h"
#include "platform/qt/controls/folder_list.h"
#include "platform/qt/convert.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

QStringList RowsOf(const QAbstractItemView& list) {
  QStringList rows;
  for (int row = 0; row < list.model()->rowCount(); ++row) rows.append(list.model()->index(row, 0).data().toString());
  return rows;
}

void Click(QAbstractItemView& list, const QString& name, bool twice = false) {
  const int row = static_cast<int>(RowsOf(list).indexOf(name));
  ASSERT_GE(row, 0) << name.toStdString();
  const QPoint at = list.visualRect(list.model()->index(row, 0)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
  if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
}

class FolderListTest : public testing::Test {
 protected:
  FolderListTest() {
    temp_.Put("b/inner/x", "");
    temp_.Put("Č/x", "");
    temp_.Put("file", "");
    list_.resize(300, 400);
    list_.show();
    list_.setProperty("Path", base_);
  }
  QStringList Subfolders() const { return RowsOf(list_).mid(QDir(base_).path().count(u'/') + 1); }

  TempFolder temp_;
  QString base_ = Utf8ToQString(temp_.Path());
  FolderList list_;
  QSignalSpy changes_{&list_, &FolderList::PathChanged};
};

TEST_F(FolderListTest, ShowsTheWayAndTheSubfolders) {
  const QStringList rows = RowsOf(list_);
  EXPECT_EQ(rows.first(), QStringLiteral("/"));
  EXPECT_EQ(rows.mid(1, base_.count(u'/')).join(u'/'), base_.mid(1));
  EXPECT_EQ(Subfolders(), QStringList({QStringLiteral("b"), QStringLiteral("Č")}));
  EXPECT_EQ(list_.HighlightedPath(), base_);
}

TEST_F(FolderListTest, TellsAPathOnlyWhenItChanges) {
  changes_.clear();
  for (const QString& path : {base_, base_ + u'/', base_ + QStringLiteral("/b/.."), QString(),
                              base_ + QStringLiteral("/file"), base_ + QStringLiteral("/missing")})
    list_.SetPath(path);
  EXPECT_EQ(list_.property("Path").toString(), base_);
  EXPECT_EQ(changes_.size(), 0);
  list_.SetPath(base_ + QStringLiteral("/b/"));
  EXPECT_EQ(list_.Path(), base_ + QStringLiteral("/b"));
  ASSERT_EQ(changes_.size(), 1);
  EXPECT_EQ(changes_[0][0].toString(), list_.Path());
  list_.SetPath(QStringLiteral("/"));
  EXPECT_EQ(list_.Path(), QStringLiteral("/"));
  EXPECT_EQ(RowsOf(list_).count(QStringLiteral("/")), 1);
}

TEST_F(FolderListTest, AClickHighlightsADoubleClickMoves) {
  changes_.clear();
  Click(list_, QStringLiteral("b"));
  EXPECT_EQ(list_.HighlightedPath(), base_ + QStringLiteral("/b"));
  EXPECT_EQ(list_.Path(), base_);
  EXPECT_EQ(changes_.size(), 0);
  Click(list_, QStringLiteral("b"), true);
  EXPECT_EQ(list_.Path(), base_ + QStringLiteral("/b"));
  EXPECT_EQ(Subfolders().last(), QStringLiteral("inner"));
  Click(list_, QFileInfo(base_).fileName(), true);
  EXPECT_EQ(list_.Path(), base_);
  EXPECT_EQ(changes_.size(), 2);
}

TEST_F(FolderListTest, EnterMovesAndEveryKeyIsToldWhenReleased) {
  QSignalSpy keys(&list_, &FolderList::KeyReleased);
  QTest::keyClick(&list_, Qt::Key_Down);
  EXPECT_EQ(list_.HighlightedPath(), base_ + QStringLiteral("/b"));
  EXPECT_EQ(list_.Path(), base_);
  QTest::keyClick(&list_, Qt::Key_Return);
  EXPECT_EQ(list_.Path(), base_ + QStringLiteral("/b"));
  ASSERT_EQ(keys.size(), 2);
  EXPECT_EQ(keys[0][0].toInt(), Qt::Key_Down);
  EXPECT_EQ(keys[1][0].toInt(), Qt::Key_Return);
}

TEST_F(FolderListTest, TheHighlightComesBackFromAFolderThatCantBeEntered) {
  list_.setCurrentIndex(list_.model()->index(list_.model()->rowCount() - 1, 0));
  const QString gone = list_.HighlightedPath();
  ASSERT_NE(gone, list_.Path());
  ASSERT_TRUE(QDir(gone).removeRecursively());
  changes_.clear();
  QTest::keyClick(&list_, Qt::Key_Return);
  EXPECT_EQ(list_.HighlightedPath(), list_.Path());
  EXPECT_EQ(changes_.count(), 0);
}

TEST_F(FolderListTest, SeesWhatChangedWhileHidden) {
  list_.SetPath(base_ + QStringLiteral("/b/inner"));
  list_.hide();
  std::filesystem::remove_all(temp_.File("b"));
  temp_.Put("new/x", "");
  changes_.clear();
  list_.show();
  EXPECT_EQ(list_.Path(), base_);
  EXPECT_EQ(changes_.size(), 1);
  EXPECT_EQ(Subfolders(), QStringList({QStringLiteral("Č"), QStringLiteral("new")}));
}

class FileListTest : public testing::Test {
 protected:
  FileListTest() {
    for (const char* name : {"a.txt", "b.HTM", "c.htm", "d"}) temp_.Put(name, "");
    temp_.Put("sub/c.htm", "");
    list_.resize(300, 400);
    list_.show();
    list_.setProperty("Path", base_);
  }

  TempFolder temp_;
  QString base_ = Utf8ToQString(temp_.Path());
  FileList list_;
  QSignalSpy clicks_{&list_, &FileList::FileClicked};
};

TEST_F(FileListTest, ShowsTheFilesOfTheMask) {
  EXPECT_EQ(RowsOf(list_).join(u' '), QStringLiteral("a.txt b.HTM c.htm d"));
  list_.setProperty("Pattern", QStringLiteral("*.htm"));
  EXPECT_EQ(RowsOf(list_).join(u' '), QStringLiteral("b.HTM c.htm"));
  list_.SetPath(base_ + QStringLiteral("/sub"));
  list_.SetPath(base_ + QStringLiteral("/missing"));
  EXPECT_EQ(list_.Path(), base_ + QStringLiteral("/sub"));
  EXPECT_EQ(RowsOf(list_).join(u' '), QStringLiteral("c.htm"));
}

TEST_F(FileListTest, TheProgramsChoiceRaisesNoClick) {
  QSignalSpy paths(&list_, &FileList::PathChanged), patterns(&list_, &FileList::PatternChanged);
  EXPECT_EQ(list_.FileName(), QString());
  list_.setProperty("FileName", QStringLiteral("c.htm"));
  EXPECT_EQ(list_.property("FileName").toString(), QStringLiteral("c.htm"));
  list_.SetPattern(QStringLiteral("*.htm"));
  list_.SetPath(base_);
  EXPECT_EQ(list_.FileName(), QStringLiteral("c.htm"));  // still in the list
  list_.SetPattern(QStringLiteral("*.txt"));
  EXPECT_EQ(list_.FileName(), QString());
  list_.SetFileName(QStringLiteral("a.txt"));
  list_.SetFileName(QStringLiteral("missing"));
  EXPECT_EQ(list_.FileName(), QString());
  list_.SetPattern(QStringLiteral("*.*"));
  list_.SetFileName(QStringLiteral("c.htm"));
  list_.SetPath(base_ + QStringLiteral("/sub"));
  EXPECT_EQ(list_.FileName(), QString());  // another file of the same name
  EXPECT_EQ(clicks_.size(), 0);
  EXPECT_EQ(paths.size(), 1);
  EXPECT_EQ(patterns.size(), 3);
}

TEST_F(FileListTest, FollowsTheFolderWhileItIsOnShow) {
  const auto shows = [this](const char* names) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return RowsOf(list_).join(u' ') == QLatin1String(names); }, 5000))
        << RowsOf(list_).join(u' ').toStdString();
  };
  QSignalSpy gone(&list_, &FileList::FileGone);
  const auto drop = [this](const char* name) { std::filesystem::remove(temp_.File(name)); };
  list_.SetFileName(QStringLiteral("c.htm"));
  temp_.Put("aa.txt", "");
  drop("b.HTM");
  shows("a.txt aa.txt c.htm d");
  EXPECT_EQ(list_.FileName(), QStringLiteral("c.htm"));
  EXPECT_EQ(gone.size(), 0);
  drop("c.htm");
  shows("a.txt aa.txt d");
  EXPECT_EQ(list_.FileName(), QString());
  EXPECT_EQ(gone.size(), 1);
  list_.hide();
  drop("a.txt");
  list_.show();  // what changed meanwhile
  EXPECT_EQ(RowsOf(list_).first(), QStringLiteral("aa.txt"));
  list_.SetPath(base_ + QStringLiteral("/sub"));
  temp_.Put("sub/e.htm", "");
  shows("c.htm e.htm");
  EXPECT_EQ(clicks_.size(), 0);
}

TEST_F(FileListTest, StaysScrolledAsTheFolderChanges) {
  for (int i = 100; i < 300; ++i) temp_.Put("f" + std::to_string(i), "");
  list_.SetPath(base_);
  list_.SetFileName(QStringLiteral("a.txt"));
  list_.scrollTo(list_.model()->index(150, 0));
  const int scrolled = list_.verticalScrollBar()->value();
  ASSERT_GT(scrolled, 0);
  temp_.Put("zz", "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return RowsOf(list_).last() == QLatin1String("zz"); }, 5000));
  EXPECT_EQ(list_.verticalScrollBar()->value(), scrolled);
  EXPECT_EQ(list_.FileName(), QStringLiteral("a.txt"));
}

TEST_F(FileListTest, ThePersonsChoiceIsOneClickEach) {
  Click(list_, QStringLiteral("b.HTM"));
  EXPECT_EQ(list_.FileName(), QStringLiteral("b.HTM"));
  EXPECT_EQ(clicks_.size(), 1);
  Click(list_, QStringLiteral("b.HTM"));
  EXPECT_EQ(clicks_.size(), 2);
  QTest::keyClick(&list_, Qt::Key_Down);
  EXPECT_EQ(list_.FileName(), QStringLiteral("c.htm"));
  EXPECT_EQ(clicks_.size(), 3);
  QTest::keyClick(&list_, Qt::Key_Shift);
  QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, QPoint(50, 390));  // below the last row
  EXPECT_EQ(clicks_.size(), 3);
}

TEST_F(FileListTest, TheFirstArrowKeyChoosesTheFirstRow) {
  QApplication::setActiveWindow(&list_);
  list_.setFocus();
  EXPECT_EQ(list_.FileName(), QString());  // coming into focus chooses nothing
  QTest::keyClick(&list_, Qt::Key_Down);
  EXPECT_EQ(list_.FileName(), QStringLiteral("a.txt"));
  QTest::keyClick(&list_, Qt::Key_Down);
  EXPECT_EQ(list_.FileName(), QStringLiteral("b.HTM"));
  EXPECT_EQ(clicks_.size(), 2);
}

TEST_F(FileListTest, DoubleClickAndEnterActivate) {
  int activated = 0;
  const auto listening = QObject::connect(&list_, &FileList::FileActivated, [&] { ++activated; });
  QTest::keyClick(&list_, Qt::Key_Return);
  EXPECT_EQ(activated, 0);  // nothing is chosen
  Click(list_, QStringLiteral("d"), true);
  EXPECT_EQ(activated, 1);
  EXPECT_EQ(clicks_.size(), 1);
  QTest::keyClick(&list_, Qt::Key_Enter);
  EXPECT_EQ(activated, 2);
  QObject::disconnect(listening);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&list_, &enter);
  EXPECT_FALSE(enter.isAccepted());
}

TEST(FileListSpeed, TwentyThousandFilesOpenAtOnce) {
  const TempFolder temp;
  for (int i = 0; i < 20'000; ++i) temp.Put("Soubor číslo " + std::to_string(i * 7919 % 20'000) + ".html", "");
  FileList list;
  list.resize(300, 400);
  list.show();
  QElapsedTimer clock;
  clock.start();
  list.SetPath(Utf8ToQString(temp.Path()));
  list.grab();
  RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
  EXPECT_LT(clock.elapsed(), 1000);  // 200 by intent; a loaded machine gets its share
  EXPECT_EQ(list.model()->rowCount(), 20'000);
}

TEST(DriveList, FollowsAPathSilentlyAndTellsAChoice) {
  DriveList drives;
  QSignalSpy changes(&drives, &DriveList::DriveChanged);
  drives.setProperty("Drive", QDir::homePath() + QStringLiteral("/some/where"));
  EXPECT_EQ(drives.property("Drive").toString(), QDir::homePath());
  drives.SetDrive(QStringLiteral("/et"));
  EXPECT_EQ(drives.Drive(), QStringLiteral("/"));
  drives.SetDrive(QString());
  EXPECT_EQ(drives.Drive(), QStringLiteral("/"));
  drives.show();
  drives.showPopup();
  drives.hidePopup();
  EXPECT_EQ(drives.Drive(), QStringLiteral("/"));
  EXPECT_EQ(changes.size(), 0);
  QTest::keyClick(&drives, Qt::Key_Home);
  ASSERT_EQ(changes.size(), 1);
  EXPECT_EQ(changes[0][0].toString(), QDir::homePath());
}

TEST(FileBrowser, PlaceLeadsFoldersLeadFilesUnderTheMask) {
  const TempFolder temp;
  temp.Put("inner/one.gif", "");
  temp.Put("inner/two.txt", "");
  temp.Put("a.gif", "");
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
  EXPECT_EQ(files.Pattern(), QStringLiteral("*.GIF"));
  EXPECT_EQ(files.model()->rowCount() + folders.model()->rowCount(), 0);  // neither reads a folder before it shows
  folders.show();
  files.show();

  folders.SetPath(base);
  EXPECT_EQ(RowsOf(files), QStringList(QStringLiteral("a.gif")));
  folders.setCurrentIndex(folders.model()->index(folders.model()->rowCount() - 1, 0));
  QTest::keyRelease(&folders, Qt::Key_Down);  // shows the files without moving
  EXPECT_EQ(RowsOf(files), QStringList(QStringLiteral("one.gif")));
  EXPECT_EQ(folders.Path(), base);
  mask.setEditText(QStringLiteral("*.txt"));
  EXPECT_EQ(RowsOf(files), QStringList(QStringLiteral("two.txt")));
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
