#include "platform/qt/filelists/file_browser.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QSignalSpy>
#include <QTest>
#include <QtWidgets>
#include <filesystem>

#include "platform/qt/convert.h"
#include "platform/qt/filelists/drive_list.h"
#include "platform/qt/filelists/file_list.h"
#include "platform/qt/filelists/folder_list.h"
#include "platform/qt/folder_entries.h"
#include "support/steps.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

TEST(FolderEntries, AreSortedInCzechAndFilteredByKindAndMask) {
  const TempFolder temp;
  for (const char* name : {"čaj.txt", "Cesta.TXT", "chata.txt", "had.txt", "a.htm", "A.htm", ".skrytý.txt", "README",
                           "Žlutá/x", "zelená/.git/y.txt", "zelená/.git/objects/z", ".config/x", "b.Čárka", "x[1].c"})
    temp.Put(name, "");
  std::filesystem::create_symlink("Žlutá", temp.File("link.txt"));
  std::filesystem::create_symlink("had.txt", temp.File("linked.txt"));
  std::filesystem::create_symlink("nothing", temp.File("broken.txt"));
  mkfifo(temp.File("pipe.txt").c_str(), 0600);
  const std::string all = "A.htm a.htm b.Čárka Cesta.TXT čaj.txt had.txt chata.txt linked.txt README x[1].c";
  const QString path = Utf8ToQString(temp.Path());
  const auto files = [&](const char* mask) { return FilesOf(path, QString::fromUtf8(mask)).join(u' ').toStdString(); };
  EXPECT_EQ(files("*.txt"), "Cesta.TXT čaj.txt had.txt chata.txt linked.txt");
  EXPECT_EQ(files(" *.HTM ; *.č*"), "A.htm a.htm b.Čárka");
  EXPECT_EQ(files(".*") + files("readme"), ".skrytý.txtREADME");
  EXPECT_EQ(files("?[1].*"), "x[1].c");
  for (const char* mask : {"*.*", "", ";"}) EXPECT_EQ(files(mask), all);
  QStringList folders;
  for (const char* subfolder : {"", "/zelená", "/zelená/.git", "/missing", "/had.txt"})
    folders += SubfoldersOf(path + QString::fromUtf8(subfolder));
  EXPECT_EQ(folders.join(u' ').toStdString(), "link.txt zelená Žlutá objects");
  for (const char* name : {"/had.txt", "/missing"}) EXPECT_FALSE(IsReadableFolder(path + QLatin1String(name)));
}

TEST(FolderEntries, KeepTheBytesOfNamesThatAreNotUtf8) {
  const TempFolder temp;
  temp.Put("d\xFF/k\xF9\xF2.txt", "");
  temp.Put("d\xFF/ku\xED\xB2\x80💀.txt", "");
  const QString folder = PathToQString(temp.File("d\xFF"));
  EXPECT_TRUE(IsReadableFolder(folder) && CleanFolder(folder + QStringLiteral("/x/../")) == folder);
  const QStringList names = FilesOf(folder, QStringLiteral("k?*.txt"));
  EXPECT_EQ(PathFromQString(names.join(u'|')), "ku\xED\xB2\x80💀.txt|k\xF9\xF2.txt");
  EXPECT_EQ(ShownPath(names.last()), QStringLiteral("kůň.txt"));
  EXPECT_EQ(Utf8ToQString("Žába k\xF9\xF2.txt"), QStringLiteral("Žába kůň.txt"));
  EXPECT_EQ(FilesOf(folder, QStringLiteral("*ůň*")).size(), 1);  // a mask matches the shown name
  for (const char* path : {"/d\xFF/%41 k\xF9.txt", "/ž #?"}) EXPECT_EQ(PathOfUrl(UrlOfPath(path)), path);
  EXPECT_EQ(PathOfUrl(QUrl(QStringLiteral("file://localhost/%F9"))), "/\xF9");
}

TEST(MountedPlaces, AreHomeRootAndMountedDisks) {
  const TempFolder temp;
  const std::string mounts =
      temp.Put("mounts",
               "/dev/a / ext4 rw 0 0\nproc /proc proc rw 0 0\n/dev/b /media/jan/USB\\040disk vfat rw 0 0\n"
               "/dev/c /home ext4 rw 0 0\n/dev/d /mnt ext4 rw 0 0\n/dev/d /mnt ext4 rw 0 0\n"
               "/dev/e /mnt2 ext4 rw 0 0\n/dev/f /run/media/jan/A vfat rw 0 0\nbroken\n");
  const QStringList places = MountedPlaces(QStringLiteral("/home/jan"), Utf8ToQString(mounts));
  EXPECT_EQ(places.join(u'|').toStdString(), "/home/jan|/|/media/jan/USB disk|/mnt|/run/media/jan/A");
  EXPECT_EQ(MountedPlaces(QStringLiteral("/"), Utf8ToQString(temp.File("none"))), QStringList(QStringLiteral("/")));
}

struct FileBrowserTest : testing::Test {
  FileBrowserTest() {
    for (const char* file : {"a.txt", "b.HTM", "c.htm", "d", "sub/c.htm", "sub/inner/x", "Č/x"}) temp.Put(file, "");
    mask.setEditable(true);
    mask.addItem(QStringLiteral("*.*"));
    mask.setCurrentIndex(-1);
    mask.setEditText(QStringLiteral("*.*"));
    LinkFileBrowser(&place, &folders, &files, &mask);
  }
  // Shows the test's folder in both lists, then records their events.
  void Show() {
    folders.resize(300, 400);
    files.resize(300, 400);
    SetVisible(true);
    folders.SetPath(base);
    files.activateWindow();
    files.setFocus();
    Listen(&FolderList::PathChanged, folders, "folder");
    Listen(&FileList::PathChanged, files, "files");
    Listen(&FileList::PatternChanged, files, "mask");
    QObject::connect(&files, &FileList::FileClicked, [this] { events.push_back("clicked"); });
    QObject::connect(&files, &FileList::FileActivated, [this] { events.push_back("activated"); });
  }
  template <class List, class Signal>
  void Listen(Signal signal, const List& list, const char* name) {
    QObject::connect(&list, signal, [this, name](QString value) {
      events.push_back(std::string(name) + ' ' + value.replace(base, QStringLiteral(".")).toStdString());
    });
  }
  void SetVisible(bool visible) {
    folders.setVisible(visible);
    files.setVisible(visible);
  }
  static void Click(QAbstractItemView& list, const QString& row, bool twice = false) {
    const QModelIndexList found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, row);
    ASSERT_EQ(found.size(), 1) << row.toStdString();
    const QPoint at = list.visualRect(found.first()).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    if (!twice) return;
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, at);
  }

  // The rows with "|" between them and ">" before the selected row. The folder of the test is written as ".".
  [[nodiscard]] std::string Files() { return Shown(&files).toStdString(); }
  [[nodiscard]] std::string Folders() {
    QStringList rows = Shown(&folders).split(u'|').mid(base.count(u'/'));
    if (!rows.isEmpty()) rows[0] = QLatin1String(rows[0].startsWith(u'>') ? ">." : ".");
    return rows.join(u'|').toStdString();
  }
  std::vector<std::string> TakeEvents() { return std::exchange(events, {}); }

  using Events = std::vector<std::string>;
  TempFolder temp;
  QString base = Utf8ToQString(temp.Path());
  Events events;
  DriveList place;
  FolderList folders;
  FileList files;
  QComboBox mask;
};

TEST_F(FileBrowserTest, ArrowKeysSelectFilesBeginningWithTheFirst) {
  Show();
  QTest::keyClick(&files, Qt::Key_Return);
  EXPECT_EQ(Files(), "a.txt|b.HTM|c.htm|d");  // the focus alone selects nothing
  QTest::keyClick(&files, Qt::Key_Down);
  EXPECT_EQ(Files(), ">a.txt|b.HTM|c.htm|d");
  QTest::keyClick(&files, Qt::Key_Down);
  EXPECT_EQ(Files(), "a.txt|>b.HTM|c.htm|d");
  EXPECT_EQ(events, (Events{"clicked", "clicked"}));
}

TEST_F(FileBrowserTest, ADoubleClickOrEnterActivatesAFile) {
  Show();
  Click(files, QStringLiteral("d"), true);
  Click(files, QStringLiteral("d"), true);
  EXPECT_EQ(TakeEvents(), (Events{"clicked", "activated", "clicked", "activated"}));
  QTest::keyClick(&files, Qt::Key_Enter);
  EXPECT_EQ(TakeEvents(), Events{"activated"});
  QTest::keyClick(&files, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(files.FileName(), QStringLiteral("d"));
}

TEST_F(FileBrowserTest, AClickHighlightsAFolderAndAKeyShowsItsFiles) {
  Show();
  Click(folders, QStringLiteral("Č"));
  EXPECT_EQ(Folders(), ".|>Č|sub");
  EXPECT_EQ(Files(), "a.txt|b.HTM|c.htm|d");
  QTest::keyClick(&folders, Qt::Key_Down);
  EXPECT_EQ(Folders(), ".|Č|>sub");
  EXPECT_EQ(Files(), "c.htm");
  EXPECT_EQ(events, Events{"files ./sub"});
  folders.SetPath(base);  // entered already
  EXPECT_EQ(Files(), "a.txt|b.HTM|c.htm|d");
}

TEST_F(FileBrowserTest, ADoubleClickOrEnterEntersAFolder) {
  Show();
  Click(folders, QStringLiteral("sub"), true);
  EXPECT_EQ(Folders(), ".|>sub|inner");
  EXPECT_EQ(TakeEvents(), (Events{"files ./sub", "folder ./sub"}));
  QTest::keyClick(&folders, Qt::Key_Return);
  EXPECT_EQ(TakeEvents(), Events{});
  Click(folders, QFileInfo(base).fileName());
  QTest::keyClick(&folders, Qt::Key_Return);
  EXPECT_EQ(Folders(), ">.|Č|sub");
  EXPECT_EQ(TakeEvents(), (Events{"files .", "folder ."}));
}

TEST_F(FileBrowserTest, OnlyANewReadableFolderIsNotified) {
  Show();
  for (const char* same : {"", "/", "/sub/..", "/d", "/missing"}) folders.SetPath(base + QLatin1String(same));
  folders.SetPath({});
  files.SetPath(base + QStringLiteral("/missing"));
  EXPECT_EQ(Folders(), ">.|Č|sub");
  EXPECT_EQ(events, Events{});
  folders.SetPath(base + QStringLiteral("/sub/"));
  EXPECT_EQ(events, (Events{"files ./sub", "folder ./sub"}));
}

TEST_F(FileBrowserTest, AMaskKeepsTheSelectionAsLongAsTheFileIsListed) {
  Show();
  EXPECT_EQ(mask.currentIndex(), 0);  // the arrow keys begin at the row of the shown mask
  files.SetFileName(QStringLiteral("c.htm"));
  mask.setEditText(QStringLiteral("c*"));
  EXPECT_EQ(Files(), ">c.htm");
  mask.setEditText(QStringLiteral("*.txt"));
  EXPECT_EQ(Files(), "a.txt");
  EXPECT_EQ(events, (Events{"mask c*", "mask *.txt"}));
}

TEST_F(FileBrowserTest, ReadsItsFolderAgainWhenItIsShownAgain) {
  Show();
  SetVisible(false);
  for (const char* name : {"a.txt", "Č"}) std::filesystem::remove_all(temp.File(name));
  temp.Put("new/x", "");
  SetVisible(true);
  EXPECT_EQ(Folders(), ">.|new|sub");
  EXPECT_EQ(Files(), "b.HTM|c.htm|d");
}

TEST(DriveList, NotifiesAChoiceButNoPathThatItFollows) {
  DriveList place;
  const QSignalSpy changes(&place, &DriveList::DriveChanged);
  place.SetDrive(QDir::homePath() + QStringLiteral("/some/where"));
  EXPECT_EQ(place.Drive(), QDir::homePath());
  for (const QString& path : {QString(QDir::homePath() + u'x'), QStringLiteral("/et"), QString()}) {
    place.SetDrive(path);
    EXPECT_EQ(place.Drive(), QStringLiteral("/")) << path.toStdString();
  }
  EXPECT_EQ(changes.size(), 0);
  EXPECT_EQ(place.count(), MountedPlaces(QDir::homePath()).size());
  QTest::keyClick(&place, Qt::Key_Up);
  EXPECT_EQ(changes.value(0).value(0).toString(), QDir::homePath());
  EXPECT_EQ(place.toolTip(), QDir::homePath());
}

}  // namespace
}  // namespace pelmar
