#include "platform/qt/disk_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>

#include "files/line_ends.h"
#include "platform/qt/failing_calls.h"
#include "platform/qt/qt_platform.h"
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

// Where old content is kept while a file is written in place; everybody may write there, as a test may be anybody.
class KeepFolder : public TempFolder {
 public:
  KeepFolder() { fs::permissions(Path(), fs::perms::all); }
  [[nodiscard]] std::string Prefix() const { return Path() + "/"; }
};

// Saves as the program does, with nothing that went wrong on the way back.
int Save(const std::string& path, std::string_view bytes) {
  const KeepFolder keep;
  const WriteOutcome outcome = ReplaceFile(path, bytes, keep.Prefix());
  EXPECT_EQ(outcome.kept, "");
  EXPECT_EQ(EntriesOf(keep), 0U);
  return outcome.error;
}

int Rewrite(const std::string& source, const std::string& target, OldTail tail, FileRewriter& rewriter) {
  const KeepFolder keep;
  const WriteOutcome outcome = RewriteFileByPieces(source, target, tail, rewriter, keep.Prefix());
  EXPECT_EQ(EntriesOf(keep), 0U);
  return outcome.error;
}

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
      {"/proc/kmsg", EINVAL},
      {"/proc/self/status", EINVAL},
      {"", ENOENT},
      {folder.Put("file", "x") + "/", ENOTDIR},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadWholeFile(c.path, {}).error, c.error) << c.path;
    EXPECT_FALSE(CanReadFile(c.path)) << c.path;
  }
  EXPECT_TRUE(CanReadFile(folder.File("file")));
  fs::resize_file(folder.Put("endless", ""), std::uintmax_t{1} << 40);
  EXPECT_EQ(ReadWholeFile(folder.File("endless"), {}).error, EFBIG);
  EXPECT_EQ(ReadWholeFile(folder.File("endless"), 64001).bytes.size(), 64001U);
  fs::permissions(folder.Path(), fs::perms::all);
  fs::permissions(folder.File("file"), fs::perms::none);
  AsOrdinaryUser([&] {
    EXPECT_FALSE(CanReadFile(folder.File("file")));
    EXPECT_EQ(ReadWholeFile(folder.File("file"), {}).error, EACCES);
  });
}

TEST(ReplaceFile, FollowsLinksAndKeepsTheMask) {
  const TempFolder folder;
  const std::string path = folder.Put("inner/old", "a long old content");
  fs::permissions(path, fs::perms::owner_all | fs::perms::group_read);
  fs::create_symlink("inner/old", folder.File("link"));
  fs::create_symlink("link", folder.File("link to link"));
  fs::create_symlink("inner/new", folder.File("link to nothing"));
  fs::create_symlink("circle", folder.File("circle"));

  EXPECT_EQ(Save(folder.File("link to link"), "new"), 0);
  EXPECT_EQ(Content(path), "new");
  EXPECT_EQ(ModeOf(path), fs::perms::owner_all | fs::perms::group_read);
  EXPECT_TRUE(fs::is_symlink(folder.File("link")));
  EXPECT_EQ(Save(folder.File("link to nothing"), "made"), 0);
  EXPECT_EQ(Content(folder.File("inner/new")), "made");
  EXPECT_EQ(Save(folder.File("circle"), "x"), ELOOP);

  const mode_t mask = umask(027);
  EXPECT_EQ(Save(folder.File("fresh"), ""), 0);
  EXPECT_EQ(QtPlatform().WritePrivateFile(folder.File("secret"), ""), 0);
  umask(mask);
  EXPECT_EQ(Content(folder.File("fresh")), "");
  EXPECT_EQ(ModeOf(folder.File("fresh")), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  EXPECT_EQ(ModeOf(folder.File("secret")), fs::perms::owner_read | fs::perms::owner_write);
}

// All that a file has beside its content.
struct Attributes {
  uid_t user = 0;
  gid_t group = 0;
  mode_t mode = 0;
  std::string extended, access_list;
  bool operator==(const Attributes&) const = default;
};

constexpr const char* kNote = "user.note";
constexpr const char* kAccessList = "system.posix_acl_access";

std::string ExtendedOf(const std::string& path, const char* name) {
  char bytes[100];
  const ssize_t size = getxattr(path.c_str(), name, bytes, sizeof bytes);
  return {bytes, size > 0 ? static_cast<std::size_t>(size) : 0};
}

struct stat StateOf(const std::string& path) {
  struct stat state {};
  EXPECT_EQ(stat(path.c_str(), &state), 0);
  return state;
}

Attributes AttributesOf(const std::string& path) {
  const struct stat state = StateOf(path);
  return {state.st_uid, state.st_gid, state.st_mode & 07777, ExtendedOf(path, kNote), ExtendedOf(path, kAccessList)};
}

// As the system stores it: version 2, then tag, permissions and user. User 1234 may read, the group nothing.
const std::string kSharedList(
    "\2\0\0\0"
    "\1\0\6\0\xff\xff\xff\xff"
    "\2\0\4\0\xd2\4\0\0"
    "\4\0\0\0\xff\xff\xff\xff"
    "\x10\0\4\0\xff\xff\xff\xff"
    "\x20\0\0\0\xff\xff\xff\xff",
    44);

void SetExtended(const std::string& path, const char* name, const std::string& value) {
  ASSERT_EQ(setxattr(path.c_str(), name, value.data(), value.size(), 0), 0) << name;
}

TEST(ReplaceFile, KeepsAllThatAFileHasBesideItsContent) {
  using Act = std::function<void(const std::string& path)>;
  const auto mode = [](mode_t bits) { return [bits](const std::string& path) { chmod(path.c_str(), bits); }; };
  const auto owner = [](uid_t user, gid_t group, mode_t bits) {
    return [=](const std::string& path) { ASSERT_EQ(chown(path.c_str(), user, group) | chmod(path.c_str(), bits), 0); };
  };
  constexpr uid_t kNobody = 65534;
  // The first two are for root, who alone can make others' files.
  constexpr unsigned kByRoot = 1, kByNobody = 2, kInPlace = 4;
  const struct {
    const char* what;
    Act prepare;
    unsigned how = 0;
  } cases[] = {
      {"permissions", mode(0640)},
      {"set-id bits go", mode(06755)},
      {"set-id bits go in place", [&](const auto& path) { mode(06755)(path), fs::create_hard_link(path, path + "2"); },
       kInPlace},
      {"another's file", owner(1234, 2345, 0640), kByRoot},
      {"one's own", owner(kNobody, getegid(), 0604), kByNobody},
      {"another's file that one may write", owner(1234, getegid(), 0666), kByNobody | kInPlace},
      {"a group that one isn't in", owner(kNobody, 2345, 0660), kByNobody | kInPlace},
      {"extended attributes", [](const auto& path) { SetExtended(path, kNote, "from: me"); }},
      {"an access list", [](const auto& path) { SetExtended(path, kAccessList, kSharedList); }},
      {"no access list",
       [](const auto& path) { SetExtended(fs::path(path).parent_path(), "system.posix_acl_default", kSharedList); }},
      {"hard links", [](const auto& path) { fs::create_hard_link(path, path + "2"); }, kInPlace},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    if ((c.how & (kByRoot | kByNobody)) != 0 && geteuid() != 0) continue;
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    const std::string path = folder.Put("file.txt", "the old content");
    c.prepare(path);
    Attributes before = AttributesOf(path);
    before.mode &= 01777;
    const struct stat old = StateOf(path);
    const auto save = [&] { EXPECT_EQ(Save(path, "new"), 0); };
    if ((c.how & kByNobody) != 0) {
      AsOrdinaryUser(save);
    } else {
      save();
    }
    EXPECT_EQ(Content(path), "new");
    EXPECT_TRUE(AttributesOf(path) == before);
    EXPECT_EQ(StateOf(path).st_ino == old.st_ino, (c.how & kInPlace) != 0);
    EXPECT_EQ(StateOf(path).st_nlink, old.st_nlink);
    EXPECT_EQ(EntriesOf(folder), old.st_nlink);
  }
}

// The ways of a save, for tests that cut it off at each of its calls.
const struct Way {
  const char* what;
  bool hard_link = false, no_unnamed = false, is_new = false, by_pieces = false;
} kWays[] = {{"beside"},
             {"beside, with names", false, true},
             {"in place", true},
             {"new", false, false, true},
             {"new, with a name", false, true, true},
             {"by pieces", false, false, false, true},
             {"by pieces, in place", true, false, false, true}};

const std::string kOldContent(7'000, 'o');
const std::string kNewContent = std::string(9'000, 'n') + "\n";  // the same with its line ends converted

// One file to be saved in one of the ways.
struct CutOff {
  const Way& way;
  TempFolder folder, elsewhere;
  KeepFolder keep;
  std::string path = folder.File("file.txt");
  std::size_t names = 1;

  explicit CutOff(const Way& its_way) : way(its_way) {
    RefuseUnnamedFiles(way.no_unnamed);
    if (!way.is_new) {
      folder.Put("file.txt", kOldContent);
      setxattr(path.c_str(), kNote, "x", 1, 0);
    }
    elsewhere.Put("source.txt", kNewContent);
    if (way.hard_link) fs::create_hard_link(path, folder.File("link.txt"));
    names = way.is_new ? 0 : way.hard_link ? 2 : 1;
  }
  ~CutOff() { RefuseUnnamedFiles(false); }
  [[nodiscard]] WriteOutcome Save() const {
    if (!way.by_pieces) return ReplaceFile(path, kNewContent, keep.Prefix());
    ToLineFeeds same;
    return RewriteFileByPieces(elsewhere.File("source.txt"), path, OldTail::kKeep, same, keep.Prefix());
  }
  [[nodiscard]] bool IsOld() const { return Content(path) == (way.is_new ? "<missing>" : kOldContent); }
};

TEST(ReplaceFile, AFailureAtAnyCallLosesNothing) {
  const std::pair<int, bool> kFailures[] = {{EIO, false}, {EACCES, false}, {EACCES, true}, {ENOSPC, true}};
  for (const Way& way : kWays) {
    for (const auto& [error, all_behind] : kFailures) {
      int number = 0;
      for (bool done = false; !done;) {
        const CutOff file(way);
        SCOPED_TRACE(testing::Message() << way.what << ", error " << error << ", call " << ++number << all_behind);
        FailCall(number, error, all_behind);
        const WriteOutcome outcome = file.Save();
        done = CallsMade() < number;
        FailCall(0, 0);
        EXPECT_TRUE(!done || outcome.error == 0) << outcome.error;
        if (outcome.error == 0) {
          EXPECT_TRUE(Content(file.path) == kNewContent);
        } else if (outcome.kept.empty()) {
          EXPECT_TRUE(file.IsOld());
        } else {
          EXPECT_TRUE(way.hard_link || error == EACCES);
          EXPECT_TRUE(Content(outcome.kept) == kOldContent);
        }
        const std::size_t names = way.is_new && outcome.error == 0 ? 1 : file.names;
        EXPECT_TRUE(all_behind || EntriesOf(file.folder) == names);
      }
      EXPECT_GT(number, 5);
    }
  }
}

// The end of a child that `act` runs in: its exit status, or minus the signal that killed it.
int EndOfChild(const std::function<int()>& act) {
  const pid_t child = fork();
  if (child == 0) _exit(act());
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

TEST(ReplaceFile, AKillAtAnyCallLosesNothingAndTheNextSaveClearsUp) {
  for (const Way& way : kWays) {
    int number = 0;
    for (bool done = false; !done;) {
      const CutOff file(way);
      SCOPED_TRACE(testing::Message() << way.what << ", call " << ++number);
      const int end = EndOfChild([&] {
        FailCall(number, 0);
        return file.Save().error;
      });
      done = end != -SIGKILL;
      EXPECT_TRUE(!done || end == 0) << end;
      const bool whole = file.IsOld() || Content(file.path) == kNewContent;
      const fs::directory_iterator kept(file.keep.Path());
      EXPECT_TRUE(whole || (way.hard_link && kept != fs::directory_iterator() && Content(kept->path()) == kOldContent));
      EXPECT_EQ(EndOfChild([&] { return file.Save().error; }), 0);
      EXPECT_TRUE(Content(file.path) == kNewContent);
      EXPECT_EQ(EntriesOf(file.folder), std::max<std::size_t>(file.names, 1));
    }
    EXPECT_GT(number, 5);
  }
}

TEST(ReplaceFile, WhatALivingSaveHasBesideStays) {
  const TempFolder folder;
  const std::string living = folder.Put(".pelmar-Living", "x");
  folder.Put(".pelmar-Killed", "x");
  for (const char* theirs : {".pelmar-x", ".pelmar-longer7", ".pelmar-a.txt1", "pelmar-Killed"})
    folder.Put(theirs, "x");
  const int lock = open(living.c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(flock(lock, LOCK_EX), 0);
  EXPECT_EQ(Save(folder.File("file.txt"), "new"), 0);
  close(lock);
  EXPECT_FALSE(fs::exists(folder.File(".pelmar-Killed")));
  EXPECT_EQ(EntriesOf(folder), 6U);
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
  for (const auto& c : cases) EXPECT_EQ(Save(c.path, "bytes"), c.error) << c.path;
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
  {
    const FullDisk full(4096);
    EXPECT_EQ(Save(path, std::string(5000, 'x')), EFBIG);
    EXPECT_EQ(Save(folder.File("new"), std::string(5000, 'x')), EFBIG);
  }
  EXPECT_EQ(Content(path), "old content");
  EXPECT_EQ(EntriesOf(folder), 1U);
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
        EXPECT_EQ(Save(path, content), 0);
        EXPECT_TRUE(Content(path) == content) << content.size();
      }
      EXPECT_EQ(Save(path, "old content"), 0);
      const FullDisk full(4096);
      EXPECT_EQ(Save(path, std::string(5000, 'x')), EFBIG);
    });
    EXPECT_EQ(Content(path), "old content");
    EXPECT_EQ(EntriesOf(folder), 1U);
  }
  fs::permissions(folder.Path(), readable);
  AsOrdinaryUser([&] { EXPECT_EQ(Save(folder.File("new"), "x"), EACCES); });
  // A protected file stays, though its folder would let it be replaced.
  fs::permissions(path, fs::perms::owner_read | fs::perms::others_read);
  fs::permissions(folder.Path(), fs::perms::all);
  AsOrdinaryUser([&] { EXPECT_EQ(Save(path, "new"), EACCES); });
  EXPECT_EQ(Content(path), "old content");
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
  ASSERT_EQ(Rewrite(dos, unx, OldTail::kKeep, to_line_feeds), 0);
  EXPECT_TRUE(Content(unx) == LongText("\n"));
  ToCrLf to_cr_lf;
  ASSERT_EQ(Rewrite(unx, dos, OldTail::kDrop, to_cr_lf), 0);
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
  EXPECT_EQ(Rewrite(source, folder.File("a.unx"), OldTail::kKeep, keep), 0);
  EXPECT_EQ(Content(target), "1\n2\nefg");
  EXPECT_EQ(ModeOf(target), fs::perms::owner_all);
  ToLineFeeds drop;
  EXPECT_EQ(Rewrite(source, folder.File("a.unx"), OldTail::kDrop, drop), 0);
  EXPECT_EQ(Rewrite(folder.File("none"), target, OldTail::kDrop, drop), ENOENT);
  EXPECT_EQ(Rewrite(folder.Path(), target, OldTail::kDrop, drop), EISDIR);
  EXPECT_EQ(Content(target), "1\n2\n");
  QtPlatform platform;
  EXPECT_TRUE(platform.IsSameFile(target, folder.File("a.unx")));
  EXPECT_FALSE(platform.IsSameFile(target, source));
  EXPECT_FALSE(platform.IsSameFile(folder.File("none"), folder.File("none")));
  EXPECT_EQ(platform.Stamp(target), platform.Stamp(folder.File("a.unx")));
  EXPECT_NE(platform.Stamp(target), platform.Stamp(source));
  EXPECT_EQ(platform.Stamp(folder.File("none")), std::nullopt);
}

TEST(RewriteFileByPieces, WritesInPlaceWhereTheFolderRefuses) {
  const TempFolder folder;
  const std::string source = folder.Put("a.txt", "1\n2\n");
  const std::string target = folder.Put("a.dos", "old content");
  for (const std::string& path : {source, target}) fs::permissions(path, fs::perms::all);
  fs::permissions(folder.Path(), fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec);
  AsOrdinaryUser([&] {
    ToLineFeeds keep;
    EXPECT_EQ(Rewrite(source, target, OldTail::kKeep, keep), 0);
    EXPECT_EQ(Content(target), "1\n2\ncontent");
    ToCrLf drop;
    EXPECT_EQ(Rewrite(source, target, OldTail::kDrop, drop), 0);
    EXPECT_EQ(Content(target), "1\r\n2\r\n");
  });
}

}  // namespace
}  // namespace pelmar
