#include "platform/qt/folder_entries.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/qt/convert.h"
#include "support/random_source.h"
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

bool Matches(const std::string& mask, const std::string& name) {
  return MatchesMask(QString::fromStdString(name), SplitMask(QString::fromStdString(mask)));
}

TEST(Mask, MatchesLikeAFileDialog) {
  RandomSource random(1);
  for (int round = 0; round < 3000; ++round) {
    const std::string mask = random.Text(6, "ab.*?[") + "a", name = random.Text(8, "ab.[");
    ASSERT_EQ(Matches(mask, name), SlowlyMatches(mask, name)) << mask << ' ' << name;
  }
  const struct {
    const char *mask, *name;
    bool matches;
  } cases[] = {
      {"*.htm", "INDEX.HTM", true},
      {"*.Č*", "x.čárka", true},
      {"*.*", "README", true},
      {"*.gif;*.html", "a.html", true},
      {"*.gif;*.htm", "b.txt", false},
      {" *.htm ; *.txt", "a.txt", true},
      {"", "README", true},
      {";", "README", true},
      {"a.txt", "a.txt ", false},
  };
  for (const auto& c : cases) EXPECT_EQ(Matches(c.mask, c.name), c.matches) << c.mask << ' ' << c.name;
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
  const auto files = [&](const char* mask) { return FilesOf(path, QString::fromUtf8(mask)).join(u' ').toStdString(); };
  const auto folders = [&](const char* below) {
    return SubfoldersOf(path + QString::fromUtf8(below)).join(u' ').toStdString();
  };
  EXPECT_EQ(files("*.txt"), "Cesta.TXT čaj.txt had.txt chata.txt linked.txt");
  EXPECT_EQ(files("*.htm"), "A.htm a.htm");
  EXPECT_EQ(files(".*"), ".skrytý.txt");
  EXPECT_EQ(folders(""), "link.txt zelená Žlutá");
  EXPECT_EQ(folders("/zelená"), "");
  EXPECT_EQ(folders("/zelená/.git"), "objects");
  EXPECT_EQ(folders("/missing"), "");
  for (const char* name : {"/had.txt", "/missing"}) EXPECT_FALSE(IsReadableFolder(path + QLatin1String(name)));
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
  const std::pair<const char*, const char*> cases[] = {{"/home/jan", "/home/jan"}, {"/home/jan/x/", "/home/jan"},
                                                       {"/home/janek", "/"},       {"/mnt/disk/a", "/mnt/disk"},
                                                       {"/mnt/../etc", "/"},       {"/mnt/a", "/mnt"},
                                                       {"relative", ""},           {"", ""}};
  for (const auto& [path, place] : cases) EXPECT_EQ(PlaceOf(QLatin1String(path), places).toStdString(), place) << path;
}

}  // namespace
}  // namespace pelmar
