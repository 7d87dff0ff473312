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
#include "support/random_source.h"
#include "support/steps.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

// Tries every way to share the name out to the stars.
bool SlowlyMatches(std::string_view mask, std::string_view name) {
  if (mask.empty()) return name.empty();
  if (mask[0] == '*')
    return SlowlyMatches(mask.substr(1), name) || (!name.empty() && SlowlyMatches(mask, name.substr(1)));
  return !name.empty() && (mask[0] == '?' || mask[0] == name[0]) && SlowlyMatches(mask.substr(1), name.substr(1));
}

TEST(Mask, MatchesAsEveryWayToShareTheNameOut) {
  RandomSource random(1);
  for (int round = 0; round < 3000; ++round) {
    const std::string mask = random.Text(6, "ab.*?[") + "a", name = random.Text(8, "ab.[");
    ASSERT_EQ(QString::fromStdString(name).contains(MaskPattern(QString::fromStdString(mask))),
              SlowlyMatches(mask, name))
        << mask << ' ' << name;
  }
}

TEST(FolderEntries, AreSortedInCzechAndTakenByKindAndMask) {
  const TempFolder temp;
  for (const char* name : {"čaj.txt", "Cesta.TXT", "chata.txt", "had.txt", "a.htm", "A.htm", ".skrytý.txt", "README",
                           "Žlutá/x", "zelená/.git/y.txt", "zelená/.git/objects/z", ".config/x", "b.Čárka"})
    temp.Put(name, "");
  std::filesystem::create_symlink("Žlutá", temp.File("link.txt"));
  std::filesystem::create_symlink("had.txt", temp.File("linked.txt"));
  std::filesystem::create_symlink("nothing", temp.File("broken.txt"));
  mkfifo(temp.File("pipe.txt").c_str(), 0600);
  const std::string all = "A.htm a.htm b.Čárka Cesta.TXT čaj.txt had.txt chata.txt linked.txt README";
  const QString path = Utf8ToQString(temp.Path());
  const auto files = [&](const char* mask) { return FilesOf(path, QString::fromUtf8(mask)).join(u' ').toStdString(); };
  EXPECT_EQ(files("*.txt"), "Cesta.TXT čaj.txt had.txt chata.txt linked.txt");
  EXPECT_EQ(files(" *.HTM ; *.č*"), "A.htm a.htm b.Čárka");
  EXPECT_EQ(files(".*") + files("readme"), ".skrytý.txtREADME");
  for (const char* mask : {"*.*", "", ";"}) EXPECT_EQ(files(mask), all);
  QStringList folders;
  for (const char* below : {"", "/zelená", "/zelená/.git", "/missing", "/had.txt"})
    folders += SubfoldersOf(path + QString::fromUtf8(below));
  EXPECT_EQ(folders.join(u' ').toStdString(), "link.txt zelená Žlutá objects");
  for (const char* name : {"/had.txt", "/missing"}) EXPECT_FALSE(IsReadableFolder(path + QLatin1String(name)));
}

TEST(FolderEntries, KeepTheBytesOfNamesThatAreNoUtf8) {
  const TempFolder temp;
  temp.Put("d\xE9/k\xF9\xF2.txt", "");
  temp.Put("d\xE9/ku\xED\xB2\x8D😀.txt", "");
  const QString folder = PathToQString(temp.File("d\xE9"));
  EXPECT_TRUE(IsReadableFolder(folder) && CleanFolder(folder + QStringLiteral("/x/../")) == folder);
  const QStringList names = FilesOf(folder, QStringLiteral("k?*.txt"));
  EXPECT_EQ(PathFromQString(names.join(u'|')), "ku\xED\xB2\x8D😀.txt|k\xF9\xF2.txt");
  EXPECT_EQ(ShownPath(names.last()), QStringLiteral("kůň.txt"));
  EXPECT_EQ(Utf8ToQString("Žába k\xF9\xF2.txt"), QStringLiteral("Žába kůň.txt"));
  EXPECT_EQ(FilesOf(folder, QStringLiteral("*ůň*")).size(), 1);  // a mask is what a person sees
  for (const char* path : {"/k\xF9\xF2 %#?.txt", "/kůň %#?.txt"}) EXPECT_EQ(PathOfUrl(UrlOfPath(path)), path);
  EXPECT_EQ(UrlOfPath("/k\xF9 %.txt").toEncoded().toStdString(), "file:///k%F9%20%25.txt");
}

TEST(MountedPlaces, AreHomeRootAndTheUsualPlacesForDisksWhichHoldPaths) {
  const TempFolder temp;
  const std::string mounts =
      temp.Put("mounts",
               "/dev/a / ext4 rw 0 0\nproc /proc proc rw 0 0\n/dev/b /media/jan/USB\\040disk vfat rw 0 0\n"
               "/dev/c /home ext4 rw 0 0\n/dev/d /mnt ext4 rw 0 0\n/dev/d /mnt ext4 rw 0 0\n"
               "/dev/e /mnt2 ext4 rw 0 0\n/dev/f /run/media/jan/A vfat rw 0 0\nbroken\n");
  const QStringList places = MountedPlaces(QStringLiteral("/home/jan"), Utf8ToQString(mounts));
  EXPECT_EQ(places.join(u'|').toStdString(), "/home/jan|/|/media/jan/USB disk|/mnt|/run/media/jan/A");
  EXPECT_EQ(MountedPlaces(QStringLiteral("/"), Utf8ToQString(temp.File("none"))), QStringList(QStringLiteral("/")));
  // The deepest that holds it.
  const std::pair<const char*, const char*> cases[] = {
      {"/home/jan", "/home/jan"}, {"/home/jan/x/", "/home/jan"},
      {"/home/janek", "/"},       {"/run/media/jan/A/b", "/run/media/jan/A"},
      {"/mnt/../etc", "/"},       {"/mnt/a", "/mnt"},
      {"relative", ""},           {"", ""}};
  for (const auto& [path, place] : cases) EXPECT_EQ(PlaceOf(QLatin1String(path), places).toStdString(), place) << path;
}

// Folders "d" and files "f" of a temporary folder, which is called "." here.
struct FileBrowserTest : testing::Test {
  FileBrowserTest() {
    for (const char* file : {"a.txt", "b.HTM", "c.htm", "d", "sub/c.htm", "sub/inner/x", "Č/x"}) temp.Put(file, "");
    mask.setEditable(true);
    mask.addItem(QStringLiteral("*.*"));
    mask.setCurrentIndex(-1);
    mask.setEditText(QStringLiteral("*.*"));
    LinkFileBrowser(&place, &folders, &files, &mask);
    EXPECT_EQ(mask.currentIndex(), 0);  // where the arrow keys go on from
    EXPECT_EQ(folders.Path() + files.Path(), QDir::currentPath() + QDir::currentPath());
    EXPECT_EQ(Shown(&folders) + Shown(&files), QString());  // neither reads a folder before it shows
    for (QListView* list : {static_cast<QListView*>(&folders), static_cast<QListView*>(&files)}) {
      list->resize(300, 400);
      list->show();
    }
    folders.SetPath(base);
    QObject::connect(&folders, &FolderList::PathChanged, [this](const QString& path) { Tell("d=", path); });
    QObject::connect(&files, &FileList::PathChanged, [this](const QString& path) { Tell("f=", path); });
    QObject::connect(&files, &FileList::PatternChanged, [this](const QString& to) { Tell("mask=", to); });
    QObject::connect(&files, &FileList::FileClicked, [this] { Tell("click "); });
    QObject::connect(&files, &FileList::FileActivated, [this] { Tell("act "); });
  }

  void Tell(const char* what, QString value = {}) {
    told += QLatin1String(" ") + QLatin1String(what) + value.replace(base, QStringLiteral("."));
  }
  // Words: "d@x" clicks a row, "d!x" twice, "d+Down" is a key; "d=./sub" sets a path, "file=x" the chosen file,
  // "mask=x" the mask; "put=x" and "rm=x" make and remove files; "hide=" and "show=" do it to both lists.
  void Do(const char* steps) {
    for (const QString& step : QString::fromUtf8(steps).split(u' ', Qt::SkipEmptyParts)) {
      QAbstractItemView* list = step[0] == u'd' ? static_cast<QAbstractItemView*>(&folders) : &files;
      const QString what = step.left(step.indexOf(u'=')), value = step.mid(what.size() + 1), key = step.mid(2);
      const std::string path = temp.File(Utf8FromQString(value));
      if (step[1] == u'+') {
        QTest::keySequence(list, QKeySequence(key));
      } else if (step[1] == u'@' || step[1] == u'!') {
        const QString row = key == QStringLiteral(".") ? QFileInfo(base).fileName() : key;
        const QModelIndexList found = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, row);
        ASSERT_EQ(found.size(), 1) << steps;
        const QPoint at = list->visualRect(found.first()).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        if (step[1] == u'@') continue;
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, at);
      } else if (what == QStringLiteral("file")) {
        files.setProperty("FileName", value);
      } else if (what == QStringLiteral("mask")) {
        mask.setEditText(value);
      } else if (what == QStringLiteral("put")) {
        temp.Put(Utf8FromQString(value), "");
      } else if (what == QStringLiteral("rm")) {
        std::filesystem::remove_all(path);
      } else if (what == QStringLiteral("hide") || what == QStringLiteral("show")) {
        folders.setVisible(what == QStringLiteral("show"));
        files.setVisible(what == QStringLiteral("show"));
      } else {
        list->setProperty("Path", value.startsWith(u'.') ? base + value.mid(1) : value);
      }
    }
  }
  // The rows from "." on, with ">" before the chosen ones, and what was told.
  [[nodiscard]] std::string State() const {
    QStringList rows = Shown(&folders).split(u'|').mid(base.count(u'/'));
    if (!rows.isEmpty()) rows[0] = QLatin1String(rows[0].startsWith(u'>') ? ">." : ".");
    return (rows.join(u' ') + u'/' + Shown(&files).replace(u'|', u' ') + u'/' + told.simplified()).toStdString();
  }
  TempFolder temp;
  QString base = Utf8ToQString(temp.Path()), told;
  DriveList place;
  FolderList folders;
  FileList files;
  QComboBox mask;
};

TEST_F(FileBrowserTest, FoldersLeadFilesAndBothFollowThePersonTheProgramAndTheDisk) {
  EXPECT_TRUE(Shown(&folders).startsWith(QStringLiteral("/|") + base.mid(1).replace(u'/', u'|').section(u'|', 0, -2)));
  QApplication::setActiveWindow(&files);
  files.setFocus();
  for (const std::string& line : KeptLines(QT_TESTCASE_SOURCEDIR "/platform/qt/filelists/file_browser.txt")) {
    const std::size_t arrow = line.find(" -> ");
    told.clear();
    Do(line.substr(0, arrow).c_str());
    EXPECT_TRUE(QTest::qWaitFor([&] { return State() == line.substr(arrow + 4); }, 5000))
        << line << ", not " << State();
  }
  QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, QPoint(50, 390));  // below the last row
  EXPECT_EQ(PickedPath(files), temp.Path() + "/");
  Do("file=d");
  EXPECT_EQ(PickedPath(files), temp.File("d"));
  QObject::disconnect(&files, &FileList::FileActivated, nullptr, nullptr);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&files, &enter);
  EXPECT_FALSE(enter.isAccepted());  // for the dialog's button

  for (int i = 100; i < 300; ++i) temp.Put("many/f" + std::to_string(i), "");
  Do("f=./many file=f100");
  files.scrollTo(files.model()->index(150, 0));
  const int scrolled = files.verticalScrollBar()->value();
  temp.Put("many/zz", "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return files.model()->rowCount() == 201; }, 5000));
  EXPECT_EQ(files.verticalScrollBar()->value(), scrolled);  // stays there
  EXPECT_EQ(files.property("FileName").toString(), QStringLiteral("f100"));
  Do("d=/");
  EXPECT_EQ(Shown(&folders).count(u'/'), 1);
}

TEST_F(FileBrowserTest, ThePlaceFollowsAPathSilentlyAndTellsAChoice) {
  QSignalSpy changes(&place, &DriveList::DriveChanged);
  place.setProperty("Drive", QDir::homePath() + QStringLiteral("/some/where"));
  EXPECT_EQ(place.property("Drive").toString(), QDir::homePath());
  for (const char* path : {"/et", ""}) place.SetDrive(QLatin1String(path));
  EXPECT_EQ(place.Drive(), QStringLiteral("/"));
  // What is mounted by now, and another home for it, is found as the list opens.
  const QByteArray home = qgetenv("HOME");
  qputenv("HOME", ToBytes(temp.Path()));
  place.show();
  place.showPopup();
  place.hidePopup();
  qputenv("HOME", home);
  EXPECT_EQ(place.Drive(), QStringLiteral("/"));
  EXPECT_EQ(changes.size(), 0);
  QTest::keyClick(&place, Qt::Key_Home);
  EXPECT_EQ(changes.value(0).value(0).toString(), base);
  EXPECT_EQ(folders.Path(), base);
}

}  // namespace
}  // namespace pelmar
