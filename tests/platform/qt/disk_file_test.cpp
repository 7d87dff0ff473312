#include "platform/qt/disk_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
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
#include "support/random_source.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;

// Permissions bind nobody but an ordinary user.
void AsOrdinaryUser(const std::function<void()>& act) {
  const uid_t user = geteuid();
  ASSERT_EQ(seteuid(user == 0 ? kNobody : user), 0);
  act();
  ASSERT_EQ(seteuid(user), 0);
}

std::size_t EntriesOf(const TempFolder& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.Path()), {}));
}

struct stat StateOf(const std::string& path) {
  struct stat state {};
  EXPECT_EQ(stat(path.c_str(), &state), 0) << path;
  return state;
}

mode_t ModeOf(const std::string& path) { return StateOf(path).st_mode & 07777; }

// Where old content is kept while a file is written in place; everybody may write there, as a test may be anybody.
struct KeepFolder : TempFolder {
  KeepFolder() { chmod(Path().c_str(), 0777); }
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

template <typename Rewriter>
int Rewrite(const std::string& source, const std::string& target, OldTail tail) {
  const KeepFolder keep;
  Rewriter rewriter;
  const WriteOutcome outcome = RewriteFileByPieces(source, target, tail, rewriter, keep.Prefix());
  EXPECT_EQ(EntriesOf(keep), 0U);
  return outcome.error;
}

TEST(ReadWholeFile, GivesEveryByteUpToTheLimit) {
  const TempFolder folder;
  std::string all;
  for (int at = 0; at < 256 * 300; ++at) all += static_cast<char>(at);
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
  const std::string file = folder.Put("file", "x"), endless = folder.Put("endless", "");
  ASSERT_EQ(mkfifo(folder.File("pipe").c_str(), 0600), 0);
  fs::create_symlink(folder.Path(), folder.File("link"));
  const std::pair<std::string, int> cases[] = {
      {folder.File("missing"), ENOENT},
      {folder.Path(), EISDIR},
      {folder.File("link"), EISDIR},
      {folder.File("pipe"), EINVAL},
      {"/dev/zero", EINVAL},
      {"/proc/kmsg", EINVAL},
      {"", ENOENT},
      {"/proc/self/status", EINVAL},
      {file + "/", ENOTDIR},
  };
  for (const auto& [path, error] : cases) {
    EXPECT_EQ(ReadWholeFile(path, {}).error, error) << path;
    EXPECT_FALSE(CanReadFile(path)) << path;
  }
  EXPECT_TRUE(CanReadFile(file));
  fs::resize_file(endless, std::uintmax_t{1} << 40);
  EXPECT_EQ(ReadWholeFile(endless, {}).error, EFBIG);
  EXPECT_EQ(ReadWholeFile(endless, 64001).bytes.size(), 64001U);
  chmod(folder.Path().c_str(), 0777);
  chmod(file.c_str(), 0);
  AsOrdinaryUser([&] {
    EXPECT_FALSE(CanReadFile(file));
    EXPECT_EQ(ReadWholeFile(file, {}).error, EACCES);
  });
}

TEST(ReplaceFile, FollowsLinksAndKeepsTheMask) {
  const TempFolder folder;
  const std::string path = folder.Put("inner/old", "a long old content");
  const std::pair<const char*, const char*> links[] = {
      {"link", "inner/old"}, {"link to link", "link"}, {"link to nothing", "inner/new"}, {"circle", "circle"}};
  for (const auto& [name, target] : links) fs::create_symlink(target, folder.File(name));
  EXPECT_EQ(Save(folder.File("link to link"), "new"), 0);
  EXPECT_EQ(Content(path), "new");
  EXPECT_TRUE(fs::is_symlink(folder.File("link")));
  EXPECT_EQ(Save(folder.File("link to nothing"), "made"), 0);
  EXPECT_EQ(Content(folder.File("inner/new")), "made");
  EXPECT_EQ(Save(folder.File("circle"), "x"), ELOOP);

  const mode_t mask = umask(027);
  EXPECT_EQ(Save(folder.File("fresh"), ""), 0);
  EXPECT_EQ(QtPlatform().WritePrivateFile(folder.File("secret"), ""), 0);
  umask(mask);
  EXPECT_EQ(Content(folder.File("fresh")), "");
  EXPECT_EQ(ModeOf(folder.File("fresh")), 0640U);
  EXPECT_EQ(ModeOf(folder.File("secret")), 0600U);
}

constexpr const char* kNote = "user.note";
constexpr const char* kAccessList = "system.posix_acl_access";

std::string ExtendedOf(const std::string& path, const char* name) {
  char bytes[100];
  const ssize_t size = getxattr(path.c_str(), name, bytes, sizeof bytes);
  return {bytes, size > 0 ? static_cast<std::size_t>(size) : 0};
}

void SetExtended(const std::string& path, const char* name, const std::string& value) {
  ASSERT_EQ(setxattr(path.c_str(), name, value.data(), value.size(), 0), 0) << name;
}

// All that a file has beside its content.
std::string AttributesOf(const std::string& path, mode_t kept = 07777) {
  const struct stat state = StateOf(path);
  return std::to_string(state.st_uid) + " " + std::to_string(state.st_gid) + " " +
         std::to_string(state.st_mode & kept) + ExtendedOf(path, kNote) + ExtendedOf(path, kAccessList);
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

TEST(ReplaceFile, KeepsAllThatAFileHasBesideItsContent) {
  using Act = std::function<void(const std::string& path)>;
  const auto mode = [](mode_t bits) { return [bits](const std::string& path) { chmod(path.c_str(), bits); }; };
  const auto owner = [](uid_t user, gid_t group, mode_t bits) {
    return [=](const std::string& path) { ASSERT_EQ(chown(path.c_str(), user, group) | chmod(path.c_str(), bits), 0); };
  };
  // The first two are for root, who alone can make others' files.
  constexpr unsigned kByRoot = 1, kByNobody = 2, kInPlace = 4;
  const struct {
    const char* what;
    Act prepare;
    unsigned how = 0;
  } cases[] = {
      {"permissions, set-id bits go", mode(06750)},
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
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    if ((c.how & (kByRoot | kByNobody)) != 0 && geteuid() != 0) continue;
    const TempFolder folder;
    chmod(folder.Path().c_str(), 0777);
    const std::string path = folder.Put("file.txt", "the old content");
    c.prepare(path);
    const std::string before = AttributesOf(path, 01777);
    const struct stat old = StateOf(path);
    const auto save = [&] { EXPECT_EQ(Save(path, "new"), 0); };
    if ((c.how & kByNobody) != 0) {
      AsOrdinaryUser(save);
    } else {
      save();
    }
    EXPECT_EQ(Content(path), "new");
    EXPECT_EQ(AttributesOf(path), before);
    EXPECT_EQ(StateOf(path).st_ino == old.st_ino, (c.how & kInPlace) != 0);
    EXPECT_EQ(EntriesOf(folder), StateOf(path).st_nlink);
    EXPECT_EQ(StateOf(path).st_nlink, old.st_nlink);
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

  explicit CutOff(const Way& its_way) : way(its_way), names(way.is_new ? 0 : way.hard_link ? 2 : 1) {
    RefuseUnnamedFiles(way.no_unnamed);
    if (!way.is_new) {
      folder.Put("file.txt", kOldContent);
      SetExtended(path, kNote, "x");
    }
    elsewhere.Put("source.txt", kNewContent);
    if (way.hard_link) fs::create_hard_link(path, folder.File("link.txt"));
  }
  ~CutOff() { RefuseUnnamedFiles(false); }
  [[nodiscard]] WriteOutcome Save() const {
    if (!way.by_pieces) return ReplaceFile(path, kNewContent, keep.Prefix());
    ToLineFeeds same;
    return RewriteFileByPieces(elsewhere.File("source.txt"), path, OldTail::kKeep, same, keep.Prefix());
  }
  [[nodiscard]] bool IsOld() const { return Content(path) == (way.is_new ? "<missing>" : kOldContent); }
};

// Each way once for each of its calls, until `cut` says that there was no such call.
void ForEachCall(const std::function<bool(const CutOff& file, int number)>& cut) {
  for (const Way& way : kWays) {
    int number = 0;
    for (bool done = false; !done;) {
      const CutOff file(way);
      SCOPED_TRACE(testing::Message() << way.what << ", call " << ++number);
      done = cut(file, number);
    }
    EXPECT_GT(number, 5);
  }
}

TEST(ReplaceFile, AFailureAtAnyCallLosesNothing) {
  constexpr std::pair<int, bool> kFailures[] = {{EIO, false}, {EACCES, false}, {EACCES, true}, {ENOSPC, true}};
  for (const auto& [error, all_behind] : kFailures) {
    SCOPED_TRACE(testing::Message() << "error " << error << all_behind);
    ForEachCall([error, all_behind](const CutOff& file, int number) {
      FailCall(number, error, all_behind);
      const WriteOutcome outcome = file.Save();
      const bool done = CallsMade() < number;
      FailCall(0, 0);
      EXPECT_TRUE(!done || outcome.error == 0) << outcome.error;
      if (outcome.error == 0) {
        EXPECT_TRUE(Content(file.path) == kNewContent);
      } else if (outcome.kept.empty()) {
        EXPECT_TRUE(file.IsOld());
      } else {
        EXPECT_TRUE(file.way.hard_link || error == EACCES);
        EXPECT_TRUE(Content(outcome.kept) == kOldContent);
      }
      const std::size_t names = file.way.is_new && outcome.error == 0 ? 1 : file.names;
      EXPECT_TRUE(all_behind || EntriesOf(file.folder) == names);
      return done;
    });
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
  ForEachCall([](const CutOff& file, int number) {
    const int end = EndOfChild([&] {
      FailCall(number, 0);
      return file.Save().error;
    });
    const bool done = end != -SIGKILL, whole = file.IsOld() || Content(file.path) == kNewContent;
    EXPECT_TRUE(!done || end == 0) << end;
    const fs::directory_iterator kept(file.keep.Path()), none;
    EXPECT_TRUE(whole || (file.way.hard_link && kept != none && Content(kept->path()) == kOldContent));
    EXPECT_EQ(EndOfChild([&] { return file.Save().error; }), 0);
    EXPECT_TRUE(Content(file.path) == kNewContent);
    EXPECT_EQ(EntriesOf(file.folder), std::max<std::size_t>(file.names, 1));
    return done;
  });
}

TEST(ReplaceFile, WhatALivingSaveHasBesideStays) {
  const TempFolder folder;
  for (const char* name : {"-Living", "-Killed", "-x", "-longer7", "-a.txt1"})
    folder.Put(std::string(".pelmar") + name, "x");
  const int lock = open(folder.File(".pelmar-Living").c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(flock(lock, LOCK_EX), 0);
  EXPECT_EQ(Save(folder.File("file.txt"), "new"), 0);
  close(lock);
  EXPECT_FALSE(fs::exists(folder.File(".pelmar-Killed")));
  EXPECT_EQ(EntriesOf(folder), 5U);
}

TEST(ReplaceFile, TellsTheErrorAndLeavesNothingBehind) {
  const TempFolder folder;
  const std::string path = folder.Put("old", "old content");
  const std::pair<std::string, int> cases[] = {
      {folder.Path(), EISDIR},           {folder.File("missing/file"), ENOENT},
      {folder.Path() + "/", EISDIR},     {folder.File(std::string(256, 'x')), ENAMETOOLONG},
      {folder.File("new/"), ENOENT},     {"/dev/full", ENOSPC},
      {folder.File("old/file"), ENOTDIR}};
  for (const auto& [to, error] : cases) EXPECT_EQ(Save(to, "bytes"), error) << to;
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
  EXPECT_EQ(Content(path), "old content");
  EXPECT_EQ(EntriesOf(folder), 1U);
}

TEST(ReplaceFile, WritesInPlaceWhereTheFolderRefuses) {
  const TempFolder folder;
  const std::string path = folder.Put("file", "old content"), source = folder.Put("source", "1\n2\n");
  chmod(path.c_str(), 0777);
  for (const mode_t mode : {0555, 0111, 01777}) {  // the last as the common temporary folder
    chmod(folder.Path().c_str(), mode);
    AsOrdinaryUser([&] {
      for (const std::string& content : {std::string("short"), std::string(100'000, 'x'), std::string()}) {
        EXPECT_EQ(Save(path, content), 0);
        EXPECT_TRUE(Content(path) == content) << content.size();
      }
      EXPECT_EQ(Save(path, "old content"), 0);
      EXPECT_EQ(Rewrite<ToLineFeeds>(source, path, OldTail::kKeep), 0);
      EXPECT_EQ(Content(path), "1\n2\ncontent");
      EXPECT_EQ(Rewrite<ToCrLf>(source, path, OldTail::kDrop), 0);
    });
    EXPECT_EQ(Content(path), "1\r\n2\r\n");
    EXPECT_EQ(EntriesOf(folder), 2U);
  }
  chmod(folder.Path().c_str(), 0555);
  AsOrdinaryUser([&] { EXPECT_EQ(Save(folder.File("new"), "x"), EACCES); });
  // A protected file stays, though its folder would let it be replaced.
  chmod(path.c_str(), 0404);
  chmod(folder.Path().c_str(), 0777);
  AsOrdinaryUser([&] { EXPECT_EQ(Save(path, "new"), EACCES); });
  EXPECT_EQ(Content(path), "1\r\n2\r\n");
}

TEST(CreateFile, WritesForTheOwnerAndNeverOverAnything) {
  const TempFolder folder;
  folder.Put("theirs", "old");
  fs::create_symlink("theirs", folder.File("link"));
  fs::create_symlink("planted", folder.File("link to nothing"));
  fs::create_directory(folder.File("folder"));
  const mode_t mask = umask(0);
  EXPECT_EQ(CreateFile(folder.File("page"), "<P>"), 0);
  umask(mask);
  EXPECT_EQ(ModeOf(folder.File("page")), 0600U);
  for (const char* name : {"page", "theirs", "link", "link to nothing", "folder"})
    EXPECT_EQ(CreateFile(folder.File(name), "x"), EEXIST) << name;
  EXPECT_EQ(Content(folder.File("page")), "<P>");
  EXPECT_EQ(Content(folder.File("theirs")), "old");
  EXPECT_FALSE(fs::exists(folder.File("planted")));
  EXPECT_EQ(CreateFile(folder.File("missing/page"), "x"), ENOENT);

  const std::string torn = folder.File("torn");
  int call = 0;
  for (bool done = false; !done;) {
    FailCall(++call, ENOSPC);
    const int error = CreateFile(torn, "<P>");
    done = CallsMade() < call;
    FailCall(0, 0);
    EXPECT_EQ(error, done ? 0 : ENOSPC);
    EXPECT_EQ(Content(torn), error == 0 ? "<P>" : "<missing>");
  }
  EXPECT_GT(call, 2);
}

TEST(RewriteFileByPieces, BordersBetweenPiecesAreNotSeen) {
  // Lines of all lengths, many times longer than what is read at once.
  RandomSource random(1);
  std::string line_feeds, pairs;
  for (int i = 0; i < 20'000; ++i) {
    const std::string line = random.Text(300, "x");
    line_feeds += line + "\n";
    pairs += line + "\r\n";
  }
  const TempFolder folder;
  const std::string dos = folder.Put("a.txt", pairs), unx = folder.File("a.unx");
  ASSERT_EQ(Rewrite<ToLineFeeds>(dos, unx, OldTail::kKeep), 0);
  EXPECT_TRUE(Content(unx) == line_feeds);
  ASSERT_EQ(Rewrite<ToCrLf>(unx, dos, OldTail::kDrop), 0);
  EXPECT_TRUE(Content(dos) == pairs);
  EXPECT_EQ(EntriesOf(folder), 2U);
}

TEST(RewriteFileByPieces, AnOldTargetKeepsItsTailItsModeAndItsLink) {
  const TempFolder folder;
  const std::string source = folder.Put("a.txt", "1\r\n2"), target = folder.Put("real", "abcdefg");
  const std::string link = folder.File("a.unx"), none = folder.File("none");
  chmod(target.c_str(), 0700);
  fs::create_symlink("real", link);
  EXPECT_EQ(Rewrite<ToLineFeeds>(source, link, OldTail::kKeep), 0);
  EXPECT_EQ(Content(target), "1\n2\nefg");
  EXPECT_EQ(ModeOf(target), 0700U);
  EXPECT_EQ(Rewrite<ToLineFeeds>(source, link, OldTail::kDrop), 0);
  EXPECT_EQ(Rewrite<ToLineFeeds>(none, target, OldTail::kDrop), ENOENT);
  EXPECT_EQ(Rewrite<ToLineFeeds>(folder.Path(), target, OldTail::kDrop), EISDIR);
  EXPECT_EQ(Content(target), "1\n2\n");

  QtPlatform platform;
  EXPECT_TRUE(platform.IsSameFile(target, link));
  EXPECT_FALSE(platform.IsSameFile(target, source) || platform.IsSameFile(none, none));
  EXPECT_EQ(platform.Stamp(target), platform.Stamp(link));
  EXPECT_NE(platform.Stamp(target), platform.Stamp(source));
  EXPECT_EQ(platform.Stamp(none), std::nullopt);
}

}  // namespace
}  // namespace pelmar
