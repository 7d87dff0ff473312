#include "platform/files/disk_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <set>

#include "platform/files/failing_calls.h"
#include "platform/files/kept_content.h"
#include "support/random_source.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;
constexpr const char* kNote = "user.note";
constexpr const char* kAccessList = "system.posix_acl_access";

void SetAttribute(const std::string& path, const char* name, const std::string& value) {
  ASSERT_EQ(setxattr(path.c_str(), name, value.data(), value.size(), 0), 0) << name;
}

ino_t NumberOf(const std::string& path) {
  struct stat found {};
  EXPECT_EQ(stat(path.c_str(), &found), 0) << path;
  return found.st_ino;
}

// A folder that every user may write to, because a test may act as another user.
struct OpenFolder : TempFolder {
  OpenFolder() { chmod(Path().c_str(), 0777); }
  // Lists "a=content b/ c>target" by name, with owner, group, permissions, links and attributes of each file.
  [[nodiscard]] std::string Listing() const {
    std::string all;
    for (const fs::path& path : std::set<fs::path>{fs::recursive_directory_iterator(Path()), {}}) {
      const bool file = fs::is_regular_file(fs::symlink_status(path));
      all += all.empty() ? "" : " ";
      all += path.string().substr(Path().size() + 1);
      all += fs::is_symlink(path) ? ">" + fs::read_symlink(path).string() : file ? "=" + Content(path) : "/";
      struct stat state {};
      if (!file || lstat(path.c_str(), &state) != 0) continue;
      for (const auto detail : {state.st_uid, state.st_gid, state.st_mode, static_cast<unsigned>(state.st_nlink)})
        all += ' ' + std::to_string(detail);
      char bytes[100];
      for (const char* name : {kNote, kAccessList})
        if (const ssize_t size = getxattr(path.c_str(), name, bytes, sizeof bytes); size > 0)
          all += ' ' + std::string(bytes, static_cast<std::size_t>(size));
    }
    return all;
  }
};

TEST(ReadWholeFile, StopsAtTheLimitAndRefusesAHugeFileWithoutALimit) {
  const OpenFolder folder;
  std::string all;
  for (int at = 0; at < 256 * 300; ++at) all += static_cast<char>(at);
  const std::string path = folder.Put("all", all), huge = folder.Put("huge", "");
  for (const std::optional<std::uint64_t> limit : {{}, {0}, {64001}, {65537}, std::optional(UINT64_MAX)})
    EXPECT_TRUE(ReadWholeFile(path, limit).bytes == all.substr(0, limit.value_or(all.size()))) << limit.value_or(1);
  EXPECT_TRUE(CanReadFile(path));
  fs::resize_file(huge, std::uintmax_t{1} << 40);
  EXPECT_EQ(ReadWholeFile(huge, {}).error, EFBIG);
  EXPECT_EQ(ReadWholeFile(huge, 64001).bytes.size(), 64001U);
}

TEST(DiskFile, RefusesAllButAccessibleRegularFilesWithoutWaiting) {
  const OpenFolder folder;
  const std::string secret = folder.Put("secret", "");
  chmod(secret.c_str(), 0);
  ASSERT_EQ(mkfifo(folder.File("pipe").c_str(), 0600), 0);
  fs::create_symlink(folder.Path(), folder.File("link"));
  const std::pair<std::string, int> refused[] = {{folder.File("missing"), ENOENT},
                                                 {folder.Path(), EISDIR},
                                                 {folder.File("link"), EISDIR},
                                                 {folder.File("pipe"), EINVAL},
                                                 {"/dev/zero", EINVAL},
                                                 {secret + "/", ENOTDIR},
                                                 {"", ENOENT},
                                                 {secret, EACCES}};
  const uid_t user = geteuid();
  ASSERT_EQ(seteuid(user == 0 ? kNobody : user), 0);  // root may read any file
  for (const auto& [path, error] : refused) {
    EXPECT_EQ(ReadWholeFile(path, {}).error, error) << path;
    EXPECT_FALSE(CanReadFile(path)) << path;
    if (error == ENOENT) continue;
    EXPECT_EQ(ReplaceFile(path, "x", "").error, error) << path;
  }
  ASSERT_EQ(seteuid(user), 0);
}

enum class How { kSave, kCreate };

// `keep_folder` is the folder for copies of old content.
WriteOutcome Write(const std::string& path, const std::string& bytes, How how, const OpenFolder& keep_folder) {
  if (how == How::kCreate) return {.error = CreateFile(path, bytes)};
  return ReplaceFile(path, bytes, keep_folder.File(""));
}

// Writes directly into the file, so that a crash would lose content.
WriteOutcome WritePlainly(const std::string& path, const std::string& bytes, How how, const OpenFolder&) {
  const int flags = O_WRONLY | (how == How::kCreate ? O_CREAT | O_EXCL : O_TRUNC);
  int file = open(path.c_str(), flags, 0600);
  if (file < 0 && errno == ENOENT && !path.ends_with('/')) file = open(path.c_str(), O_WRONLY | O_CREAT, 0666);
  if (file < 0) return {.error = errno};
  EXPECT_EQ(write(file, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  return {.error = close(file)};
}

// In the kernel's format: version 2, then tag, permissions and user. User 1234 may read, the group may not.
const std::string kAccessListOf1234(
    "\2\0\0\0\1\0\6\0\xff\xff\xff\xff\2\0\4\0\xd2\4\0\0\4\0\0\0\xff\xff\xff\xff"
    "\x10\0\4\0\xff\xff\xff\xff\x20\0\0\0\xff\xff\xff\xff",
    44);

TEST(WriteFile, EqualsPlainWritingInRandomFilesAndFolders) {
  RandomSource random(1);
  const auto one_of = [&](std::initializer_list<unsigned> all) { return all.begin()[random.Below(all.size())]; };
  const std::string names[] = {"file",   "link",         "to link",   "to nothing", "circle", "inner",
                               "inner/", "missing/file", "file/file", "new",        "new/",   std::string(256, 'x')};
  const std::string contents[] = {"", "short", "longer than before", random.Bytes(100'000)};
  const OpenFolder keep_folder;
  const uid_t user = geteuid();
  const gid_t group = getegid();
  const mode_t mask = umask(027);
  failing = {};  // no call fails, and nothing waits for the disk
  for (int round = 0; round < 500; ++round) {
    const uid_t writer = user == 0 ? one_of({0, kNobody, kNobody}) : user;
    const uid_t owner = user == 0 ? one_of({1234, kNobody, kNobody}) : user;
    const gid_t file_group = user == 0 ? one_of({2345, group, group}) : group;
    const mode_t folder_mode = one_of({0777, 0777, 0333, 0555, 0111, 01777}),
                 mode = one_of({0640, 0604, 0666, 0404, 06755});
    const bool two_names = one_of({0, 0, 1}) == 1;
    const unsigned attribute = one_of({0, 0, 1, 2, 3});  // 0: none
    const How how = one_of({0, 0, 0, 1}) == 1 ? How::kCreate : How::kSave;
    const std::string &name = names[one_of({0, 1}) * random.Below(std::size(names))],
                      &bytes = contents[random.Below(random.Below(9) > 0 ? 3 : 4)];
    const bool targets_file = how != How::kCreate && (name == "file" || name == "link" || name == "to link");
    std::string results[2];
    for (const bool plain : {false, true}) {
      const OpenFolder folder;
      const std::string file = folder.Put("file", "old content");
      const std::pair<const char*, const char*> links[] = {
          {"link", "file"}, {"to link", "link"}, {"to nothing", "inner/new"}, {"circle", "circle"}};
      if (name != "file") {
        for (const auto& [from, to] : links) fs::create_symlink(to, folder.File(from));
        chmod(fs::path(folder.Put("inner/other", "")).parent_path().c_str(), 0777);
      }
      if (two_names) fs::create_hard_link(file, folder.File("second name"));
      ASSERT_EQ(chown(file.c_str(), owner, file_group), 0);
      if (attribute == 1) SetAttribute(file, kNote, "x");
      if (attribute == 2) SetAttribute(file, kAccessList, kAccessListOf1234);
      if (attribute == 3) SetAttribute(folder.Path(), "system.posix_acl_default", kAccessListOf1234);
      // A save clears the set-id bits. Where plain writing keeps them, both are compared without the bits.
      const bool keeps_bits = attribute == 2 || bytes.empty() || (writer == 0 && (plain || !targets_file));
      ASSERT_EQ(chmod(file.c_str(), keeps_bits ? mode & 0777 : mode), 0);
      chmod(folder.Path().c_str(), folder_mode);
      const ino_t number = NumberOf(file);
      ASSERT_EQ(seteuid(writer), 0);
      const WriteOutcome outcome = (plain ? WritePlainly : Write)(folder.File(name), bytes, how, keep_folder);
      ASSERT_EQ(seteuid(user), 0);
      chmod(folder.Path().c_str(), 0777);
      results[plain] =
          "error " + std::to_string(outcome.error) + outcome.kept + keep_folder.Listing() + ' ' + folder.Listing();
      if (plain || outcome.error != 0 || !targets_file) continue;
      const bool can_set_owner = writer == 0 || (owner == writer && file_group == group);
      const bool replaced = can_set_owner && !two_names && (writer == 0 || (folder_mode & 0222) != 0);
      EXPECT_EQ(NumberOf(file) != number, replaced) << round;
    }
    ASSERT_EQ(results[0], results[1]) << name << " by " << writer << " round " << round;
  }
  failing.counts = false;
  umask(mask);
}

// The ways to write a file, for tests that interrupt each way at each of its system calls.
const struct Way {
  const char* name;
  const char* steps;  // the order in which content, name and folder reach the disk
  How how = How::kSave;
  bool hard_link = false, no_unnamed = false, is_new = false;
} kWays[] = {{"replaced", "content link rename folder"},
             {"replaced, no unnamed files", "create content rename folder", How::kSave, false, true},
             {"in place", "content link folder content remove", How::kSave, true},
             {"in place, no unnamed files", "create content rename folder content remove", How::kSave, true, true},
             {"new", "content link folder", How::kSave, false, false, true},
             {"new, no unnamed files", "create content rename folder", How::kSave, false, true, true},
             {"created", "create content folder", How::kCreate, false, false, true}};

// The old content is copied in more than one piece.
const std::string kOldContent(300'000, 'o'), kNewContent(310'000, 'n');

// A file to be written in one of the ways. `before` and `after` list the folder.
struct SaveCase {
  const Way& way;
  OpenFolder folder, keep_folder;
  std::string path = folder.Put("file", kNewContent), before, after;

  explicit SaveCase(const Way& tested) : way(tested) {
    no_unnamed_files = way.no_unnamed;
    if (way.how == How::kCreate) chmod(path.c_str(), 0600);
    if (!way.is_new) SetAttribute(path, kNote, "x");
    if (way.hard_link) fs::create_hard_link(path, folder.File("link"));
    after = folder.Listing();
    if (way.is_new)
      fs::remove(path);
    else
      folder.Put("file", kOldContent);
    before = folder.Listing();
  }
  ~SaveCase() { no_unnamed_files = false; }
  [[nodiscard]] WriteOutcome Save() const { return Write(path, kNewContent, way.how, keep_folder); }
};

TEST(WriteFile, WritesToTheDiskInASafeOrder) {
  for (const Way& way : kWays) {
    const SaveCase file(way);
    failing = {};
    EXPECT_EQ(file.Save().error, 0);
    failing.counts = false;
    EXPECT_EQ(failing.steps, way.steps) << way.name;
  }
}

TEST(WriteFile, LosesNothingIfAnyCallFails) {
  constexpr std::pair<int, bool> kFailures[] = {
      {EINTR, false}, {EIO, false}, {EACCES, false}, {EACCES, true}, {ENOSPC, true}};
  for (const auto& [error, all_later] : kFailures) {
    for (const Way& way : kWays) {
      int number = 0;
      for (bool done = false; !done;) {
        ++number;
        SCOPED_TRACE(testing::Message() << way.name << ", error " << error << ", call " << number
                                        << (all_later ? "+" : ""));
        const SaveCase file(way);
        failing = {.number = number, .error = error, .all_later = all_later};
        const WriteOutcome outcome = file.Save();
        done = failing.made < number;
        failing = {.counts = false};
        EXPECT_TRUE((!done && error != EINTR) || outcome.error == 0) << outcome.error;
        EXPECT_TRUE(outcome.kept.empty() || (Content(outcome.kept) == kOldContent && outcome.error != 0));
        // After a single failure the old content is restored, and its copy is removed.
        EXPECT_TRUE(outcome.kept.empty() || (all_later && (way.hard_link || error == EACCES)));
        std::string listing = file.folder.Listing();
        if (all_later) listing.erase(0, listing.find("file="));  // temporary files, which are listed first, may stay
        const bool torn = all_later && way.how == How::kCreate;  // a half-written new file, no loss
        // If only the last fsync failed, the file has its new content.
        const bool whole = listing == file.after || (outcome.error != 0 && listing == file.before);
        EXPECT_TRUE(whole || (outcome.error != 0 && (!outcome.kept.empty() || torn))) << listing;
      }
      EXPECT_GT(number, way.how == How::kCreate ? 2 : 5) << way.name;
    }
  }
}

TEST(KeptContent, OfAKilledSaveIsFoundUntilItIsReported) {
  const OpenFolder folder;
  const Descriptor living(open(folder.Put("puvodni-living-a.txt", "").c_str(), O_RDONLY | O_CLOEXEC));
  ASSERT_EQ(flock(living.Number(), LOCK_EX), 0);
  folder.Put("puvodni-vydani.txt", "");
  const std::vector<std::string> left = {folder.Put("puvodni-abcdef", ""), folder.Put("puvodni-killed-a.txt", "")};
  EXPECT_EQ(FindUnreportedCopies(folder.File("")), left);
  for (const std::string& path : left) MarkAsReported(path);
  EXPECT_TRUE(FindUnreportedCopies(folder.File("")).empty());
}

}  // namespace
}  // namespace pelmar
