#include "platform/qt/disk_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>

#include "files/line_ends.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

namespace fs = std::filesystem;

// Permissions bind nobody but an ordinary user.
void AsOrdinaryUser(const std::function<void()>& act) {
  constexpr uid_t kNobody = 65534;
  const uid_t user = geteuid();
  ASSERT_EQ(seteuid(user == 0 ? kNobody : user), 0);
  act();
  ASSERT_EQ(seteuid(user), 0);
}

// No file may grow beyond `bytes`: what a full disk looks like to the program.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit tight{bytes, old_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  void (*handler_)(int);
  rlimit old_{};
};

std::size_t EntriesOf(const TempFolder& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.Path()), {}));
}

fs::perms ModeOf(const std::string& path) { return fs::status(path).permissions() & fs::perms::mask; }

TEST(ReadWholeFile, GivesEveryByteUpToTheLimit) {
  const TempFolder folder;
  std::string all;
  for (int round = 0; round < 300; ++round)
    for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  const std::string path = folder.Put("all", all);
  EXPECT_EQ(ReadWholeFile(path, {}).bytes, all);
  for (const std::uint64_t limit : {std::uint64_t{0}, std::uint64_t{64001}, std::uint64_t{65537}, UINT64_MAX}) {
    const FileBytes read = ReadWholeFile(path, limit);
    EXPECT_EQ(read.error, 0);
    EXPECT_EQ(read.bytes, all.substr(0, limit)) << limit;
  }
}

TEST(ReadWholeFile, TakesRegularFilesOnlyAndNeverWaits) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo(folder.File("pipe").c_str(), 0600), 0);
  fs::create_symlink(folder.Path(), folder.File("link"));
  const struct {
    std::string path;
    int error;
  } cases[] = {
      {folder.File("missing"), ENOENT},
      {folder.Path(), EISDIR},
      {folder.File("link"), EISDIR},
      {folder.File("pipe"), EINVAL},
      {"/dev/zero", EINVAL},
      {"", ENOENT},
      {folder.Put("file", "x") + "/", ENOTDIR},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadWholeFile(c.path, {}).error, c.error) << c.path;
    EXPECT_FALSE(CanReadFile(c.path)) << c.path;
  }
  EXPECT_TRUE(CanReadFile(folder.File("file")));
  fs::permissions(folder.Path(), fs::perms::all);
  fs::permissions(folder.File("file"), fs::perms::none);
  AsOrdinaryUser([&] {
    EXPECT_FALSE(CanReadFile(folder.File("file")));
    EXPECT_EQ(ReadWholeFile(folder.File("file"), {}).error, EACCES);
  });
}

TEST(ReplaceFile, KeepsPermissionsAndLinks) {
  const TempFolder folder;
  const std::string path = folder.Put("inner/old", "a long old content");
  fs::permissions(path, fs::perms::owner_all | fs::perms::group_read);
  fs::create_symlink("inner/old", folder.File("link"));
  fs::create_symlink("link", folder.File("link to link"));
  fs::create_symlink("inner/new", folder.File("link to nothing"));
  fs::create_symlink("circle", folder.File("circle"));

  EXPECT_EQ(ReplaceFile(folder.File("link to link"), "new"), 0);
  EXPECT_EQ(Content(path), "new");
  EXPECT_EQ(ModeOf(path), fs::perms::owner_all | fs::perms::group_read);
  EXPECT_TRUE(fs::is_symlink(folder.File("link")));
  EXPECT_EQ(ReplaceFile(folder.File("link to nothing"), "made"), 0);
  EXPECT_EQ(Content(folder.File("inner/new")), "made");
  EXPECT_EQ(ReplaceFile(folder.File("circle"), "x"), ELOOP);

  const mode_t mask = umask(027);
  EXPECT_EQ(ReplaceFile(folder.File("fresh"), ""), 0);
  EXPECT_EQ(ReplaceFile(folder.File("secret"), "", 0600), 0);
  umask(mask);
  EXPECT_EQ(Content(folder.File("fresh")), "");
  EXPECT_EQ(ModeOf(folder.File("fresh")), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  EXPECT_EQ(ModeOf(folder.File("secret")), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(ReplaceFile, KeepsTheOwner) {
  // Only root can make a file of another owner, so there is nothing to keep for anyone else.
  if (geteuid() != 0) GTEST_SKIP() << "only root may write others' files";
  const TempFolder folder;
  const std::string path = folder.Put("theirs", "old");
  ASSERT_EQ(chown(path.c_str(), 1234, 2345), 0);
  EXPECT_EQ(ReplaceFile(path, "new"), 0);
  struct stat state {};
  ASSERT_EQ(stat(path.c_str(), &state), 0);
  EXPECT_EQ(state.st_uid, 1234U);
  EXPECT_EQ(state.st_gid, 2345U);
}

TEST(ReplaceFile, TellsTheErrorAndLeavesNothingBehind) {
  const TempFolder folder;
  const std::string path = folder.Put("old", "old content");
  const struct {
    std::string path;
    int error;
  } cases[] = {
      {folder.Path(), EISDIR},
      {folder.Path() + "/", EISDIR},
      {folder.File("missing/file"), ENOENT},
      {folder.File("new/"), ENOENT},
      {folder.File("old/file"), ENOTDIR},
      {"/dev/full", ENOSPC},
      {folder.File(std::string(256, 'x')), ENAMETOOLONG},
  };
  for (const auto& c : cases) EXPECT_EQ(ReplaceFile(c.path, "bytes"), c.error) << c.path;
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
  {
    const FullDisk full(4096);
    EXPECT_EQ(ReplaceFile(path, std::string(5000, 'x')), EFBIG);
    EXPECT_EQ(ReplaceFile(folder.File("new"), std::string(5000, 'x')), EFBIG);
  }
  EXPECT_EQ(Content(path), "old content");
  EXPECT_EQ(EntriesOf(folder), 1U);
}

TEST(ReplaceFile, RespectsAReadOnlyFile) {
  const TempFolder folder;
  const std::string path = folder.Put("read only", "old");
  fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  fs::permissions(folder.Path(), fs::perms::all);
  AsOrdinaryUser([&] { EXPECT_EQ(ReplaceFile(path, "new"), EACCES); });
  EXPECT_EQ(Content(path), "old");
}

TEST(ReplaceFile, WritesInPlaceWhereTheFolderRefuses) {
  const TempFolder folder;
  const std::string path = folder.Put("file", "old content");
  fs::permissions(path, fs::perms::all);
  const auto readable = fs::perms::all & ~(fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write);
  const auto sticky = fs::perms::all | fs::perms::sticky_bit;  // as the common temporary folder
  for (const auto mode : {readable, sticky}) {
    fs::permissions(folder.Path(), mode);
    AsOrdinaryUser([&] {
      for (const std::string& content : {std::string("short"), std::string(100'000, 'x'), std::string()}) {
        EXPECT_EQ(ReplaceFile(path, content), 0);
        EXPECT_TRUE(Content(path) == content) << content.size();
      }
      EXPECT_EQ(ReplaceFile(path, "old content"), 0);
      const FullDisk full(4096);
      EXPECT_EQ(ReplaceFile(path, std::string(5000, 'x')), EFBIG);
    });
    EXPECT_EQ(Content(path), "old content");
    EXPECT_EQ(EntriesOf(folder), 1U);
  }
  fs::permissions(folder.Path(), readable);
  AsOrdinaryUser([&] { EXPECT_EQ(ReplaceFile(folder.File("new"), "x"), EACCES); });
}

TEST(CreateFile, WritesForTheOwnerAndNeverOverAnything) {
  const TempFolder folder;
  const mode_t mask = umask(0);
  EXPECT_EQ(CreateFile(folder.File("page"), "<P>"), 0);
  umask(mask);
  EXPECT_EQ(Content(folder.File("page")), "<P>");
  EXPECT_EQ(ModeOf(folder.File("page")), fs::perms::owner_read | fs::perms::owner_write);

  const std::string theirs = folder.Put("theirs", "old");
  fs::create_symlink("theirs", folder.File("link"));
  fs::create_symlink("planted", folder.File("link to nothing"));
  fs::create_directory(folder.File("folder"));
  for (const char* name : {"page", "theirs", "link", "link to nothing", "folder"})
    EXPECT_EQ(CreateFile(folder.File(name), "x"), EEXIST) << name;
  EXPECT_EQ(Content(theirs), "old");
  EXPECT_EQ(Content(folder.File("page")), "<P>");
  EXPECT_FALSE(fs::exists(folder.File("planted")));

  EXPECT_EQ(CreateFile(folder.File("missing/page"), "x"), ENOENT);
  const FullDisk full(4096);
  EXPECT_EQ(CreateFile(folder.File("big"), std::string(5000, 'x')), EFBIG);
  EXPECT_FALSE(fs::exists(folder.File("big")));
}

// Lines of all lengths, many times longer than what is read at once.
std::string LongText(std::string_view line_end) {
  std::string text;
  for (int i = 0; i < 20'000; ++i) text.append(static_cast<std::size_t>(i * 7919 % 300), 'x').append(line_end);
  return text;
}

TEST(RewriteFileByPieces, BordersBetweenPiecesAreNotSeen) {
  const TempFolder folder;
  const std::string dos = folder.Put("a.txt", LongText("\r\n"));
  const std::string unx = folder.File("a.unx");
  ToLineFeeds to_line_feeds;
  ASSERT_EQ(RewriteFileByPieces(dos, unx, OldTail::kKeep, to_line_feeds), 0);
  EXPECT_TRUE(Content(unx) == LongText("\n"));
  ToCrLf to_cr_lf;
  ASSERT_EQ(RewriteFileByPieces(unx, dos, OldTail::kDrop, to_cr_lf), 0);
  EXPECT_TRUE(Content(dos) == LongText("\r\n"));
  EXPECT_EQ(EntriesOf(folder), 2U);
}

TEST(RewriteFileByPieces, AnOldTargetKeepsItsTailItsModeAndItsLink) {
  const TempFolder folder;
  const std::string source = folder.Put("a.txt", "1\r\n2");
  const std::string target = folder.Put("real", "abcdefg");
  fs::permissions(target, fs::perms::owner_all);
  fs::create_symlink("real", folder.File("a.unx"));
  ToLineFeeds keep;
  EXPECT_EQ(RewriteFileByPieces(source, folder.File("a.unx"), OldTail::kKeep, keep), 0);
  EXPECT_EQ(Content(target), "1\n2\nefg");
  EXPECT_EQ(ModeOf(target), fs::perms::owner_all);
  ToLineFeeds drop;
  EXPECT_EQ(RewriteFileByPieces(source, folder.File("a.unx"), OldTail::kDrop, drop), 0);
  EXPECT_EQ(Content(target), "1\n2\n");
  EXPECT_TRUE(LeadToSameFile(target, folder.File("a.unx")));
  EXPECT_FALSE(LeadToSameFile(target, source));
  EXPECT_FALSE(LeadToSameFile(folder.File("none"), folder.File("none")));
}

TEST(RewriteFileByPieces, AFailureLeavesTheOldTarget) {
  const TempFolder folder;
  const std::string source = folder.Put("a.txt", LongText("\r\n"));
  const std::string target = folder.Put("a.unx", "old");
  {
    const FullDisk full(4096);
    ToLineFeeds rewriter;
    EXPECT_EQ(RewriteFileByPieces(source, target, OldTail::kKeep, rewriter), EFBIG);
  }
  ToLineFeeds rewriter;
  EXPECT_EQ(RewriteFileByPieces(folder.File("none"), target, OldTail::kKeep, rewriter), ENOENT);
  EXPECT_EQ(RewriteFileByPieces(folder.Path(), target, OldTail::kKeep, rewriter), EISDIR);
  EXPECT_EQ(Content(target), "old");
  EXPECT_EQ(EntriesOf(folder), 2U);
}

TEST(RewriteFileByPieces, WritesInPlaceWhereTheFolderRefuses) {
  const TempFolder folder;
  const std::string source = folder.Put("a.txt", "1\n2\n");
  const std::string target = folder.Put("a.dos", "old content");
  for (const std::string& path : {source, target}) fs::permissions(path, fs::perms::all);
  fs::permissions(folder.Path(), fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec);
  AsOrdinaryUser([&] {
    ToLineFeeds keep;
    EXPECT_EQ(RewriteFileByPieces(source, target, OldTail::kKeep, keep), 0);
    EXPECT_EQ(Content(target), "1\n2\ncontent");
    ToCrLf drop;
    EXPECT_EQ(RewriteFileByPieces(source, target, OldTail::kDrop, drop), 0);
    EXPECT_EQ(Content(target), "1\r\n2\r\n");
  });
}

}  // namespace
}  // namespace pelmar
