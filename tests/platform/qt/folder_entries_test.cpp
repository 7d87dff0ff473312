#include "platform/qt/folder_entries.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QElapsedTimer>
#include <filesystem>

#include "platform/qt/convert.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

std::string Joined(const QStringList& names) { return names.join(u' ').toStdString(); }

TEST(Mask, MatchesLikeAFileDialog) {
  const struct {
    const char *mask, *name;
    bool matches;
  } cases[] = {
      {"*.htm", "INDEX.HTM", true},
      {"*.htm", "a.html", false},
      {"*.htm;*.html", "a.html", true},
      {" *.htm ; *.txt", "a.txt", true},
      {"*.*", "README", true},
      {"", "README", true},
      {";", "README", true},
      {"*", "a.b", true},
      {"?.txt", "a.txt", true},
      {"?.txt", "ab.txt", false},
      {"*.Č*", "x.čárka", true},
      {"a*b*c", "aXbXbc", true},
      {"a*b*c", "aXcXb", false},
      {"*.t?t", "x.y.tet", true},
      {"*.txt", "txt", false},
      {"a.txt", "a.txt ", false},
      {"[a]*", "a", false},
      {"*a", "aaab", false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(MatchesMask(QString::fromUtf8(c.name), SplitMask(QString::fromUtf8(c.mask))), c.matches)
        << c.mask << ' ' << c.name;
}

TEST(FolderEntries, AreSortedInCzechAndTakenByKind) {
  const TempFolder temp;
  for (const char* name : {"čaj.txt", "Cesta.TXT", "chata.txt", "had.txt", "a.htm", "A.htm", ".skrytý.txt"})
    temp.Put(name, "");
  temp.Put("Žlutá/x", "");
  temp.Put("zelená/.git/y.txt", "");
  temp.Put("zelená/.git/objects/z", "");
  temp.Put(".config/x", "");
  std::filesystem::create_symlink("Žlutá", temp.File("link.txt"));
  std::filesystem::create_symlink("had.txt", temp.File("linked.txt"));
  std::filesystem::create_symlink("nothing", temp.File("broken.txt"));
  mkfifo(temp.File("pipe.txt").c_str(), 0600);

  const QString path = Utf8ToQString(temp.Path());
  EXPECT_EQ(Joined(FilesOf(path, QStringLiteral("*.txt"))), "Cesta.TXT čaj.txt had.txt chata.txt linked.txt");
  EXPECT_EQ(Joined(FilesOf(path, QStringLiteral("*.htm"))), "A.htm a.htm");
  EXPECT_EQ(Joined(FilesOf(path, QStringLiteral(".*"))), ".skrytý.txt");
  EXPECT_EQ(Joined(SubfoldersOf(path)), "link.txt zelená Žlutá");
  EXPECT_EQ(Joined(SubfoldersOf(path + QStringLiteral("/zelená/.git"))), "objects");
  EXPECT_EQ(Joined(SubfoldersOf(path + QStringLiteral("/zelená"))), "");
  EXPECT_EQ(Joined(FilesOf(path + QStringLiteral("/missing"), QStringLiteral("*"))), "");
  EXPECT_FALSE(IsReadableFolder(path + QStringLiteral("/had.txt")));
  EXPECT_FALSE(IsReadableFolder(path + QStringLiteral("/missing")));
}

TEST(FolderEntries, KeepTheBytesOfNamesThatAreNoUtf8) {
  const TempFolder temp;
  temp.Put("d\xE9/k\xF9\xF2.txt", "");
  temp.Put("d\xE9/ku\xED\xB2\x8D😀.txt", "");
  const QString folder = PathToQString(temp.File("d\xE9"));
  EXPECT_TRUE(IsReadableFolder(folder));
  EXPECT_EQ(CleanFolder(folder + QStringLiteral("/x/../")), folder);
  const QStringList names = FilesOf(folder, QStringLiteral("k?*.txt"));
  ASSERT_EQ(names.size(), 2);
  EXPECT_EQ(PathFromQString(names[0]), "ku\xED\xB2\x8D😀.txt");
  EXPECT_EQ(PathFromQString(names[1]), "k\xF9\xF2.txt");
  EXPECT_EQ(ShownPath(names[1]), QStringLiteral("kůň.txt"));
  EXPECT_EQ(Utf8ToQString("Žába k\xF9\xF2.txt"), QStringLiteral("Žába kůň.txt"));
  EXPECT_EQ(FilesOf(folder, QStringLiteral("*ůň*")).size(), 1);  // a mask is what a person sees
  for (const char* path : {"/k\xF9\xF2 %#?.txt", "/kůň %#?.txt"}) EXPECT_EQ(PathOfUrl(UrlOfPath(path)), path);
  EXPECT_EQ(UrlOfPath("/k\xF9 %.txt").toEncoded().toStdString(), "file:///k%F9%20%25.txt");
}

TEST(MountedPlaces, AreHomeRootAndTheUsualPlacesForDisks) {
  const TempFolder temp;
  const std::string mounts =
      temp.Put("mounts",
               "/dev/a / ext4 rw 0 0\nproc /proc proc rw 0 0\n/dev/b /media/jan/USB\\040disk vfat rw 0 0\n"
               "/dev/c /home ext4 rw 0 0\n/dev/d /mnt ext4 rw 0 0\n/dev/d /mnt ext4 rw 0 0\n"
               "/dev/e /mnt2 ext4 rw 0 0\n/dev/f /run/media/jan/A vfat rw 0 0\nbroken\n");
  const QString home = QStringLiteral("/home/jan");
  EXPECT_EQ(MountedPlaces(home, Utf8ToQString(mounts)),
            QStringList({home, QStringLiteral("/"), QStringLiteral("/media/jan/USB disk"), QStringLiteral("/mnt"),
                         QStringLiteral("/run/media/jan/A")}));
  EXPECT_EQ(MountedPlaces(QStringLiteral("/"), Utf8ToQString(temp.File("none"))), QStringList(QStringLiteral("/")));
}

TEST(PlaceOf, IsTheDeepestThatHoldsThePath) {
  const QStringList places{QStringLiteral("/home/jan"), QStringLiteral("/"), QStringLiteral("/mnt"),
                           QStringLiteral("/mnt/disk")};
  const struct {
    const char *path, *place;
  } cases[] = {
      {"/home/jan", "/home/jan"},
      {"/home/jan/x/", "/home/jan"},
      {"/home/janek", "/"},
      {"/ho", "/"},
      {"/mnt/disk/a", "/mnt/disk"},
      {"/mnt/a", "/mnt"},
      {"/mnt/../etc", "/"},
      {"", ""},
      {"relative", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(PlaceOf(QString::fromUtf8(c.path), places).toStdString(), c.place) << c.path;
}

}  // namespace
}  // namespace pelmar
