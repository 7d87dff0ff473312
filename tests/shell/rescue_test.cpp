// The files that keep unsaved work for a start after a crash.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "accessories/notes.h"
#include "platform/files/lock_file.h"
#include "shell/rescue_file.h"
#include "shell/rescue_store.h"
#include "shell/rescue_writer.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

constexpr std::string_view kPrefix = kDocumentsRescue.prefix;

struct RescueStoreTest : testing::Test {
  TempFolder temp;
  const std::string folder = temp.Path() + "/";

  static RescueStore StoreIn(const std::string& folder) {
    return RescueStore(folder, kPrefix, [](const std::string& path, std::string_view bytes) {
      std::ofstream(path, std::ios::binary) << bytes;
      return 0;
    });
  }
  [[nodiscard]] std::vector<std::string> Found() const {
    LockFile offer;
    return FindAbandoned(folder, kPrefix, offer);
  }
};

TEST_F(RescueStoreTest, AnEmptyRecordRemovesTheFileAndNoFileOfARunningCopyIsFound) {
  RescueStore store = StoreIn(folder);
  for (const std::string& kept : std::vector<std::string>{"one", "two", "", "again"}) {
    EXPECT_EQ(store.Keep(kept), 0);
    EXPECT_EQ(Content(store.Path()), kept.empty() ? "<missing>" : kept);
    EXPECT_EQ(std::filesystem::is_empty(folder), kept.empty()) << kept;
    EXPECT_TRUE(Found().empty());
  }
  EXPECT_NE(StoreIn("/nonexistent/folder/").Keep("x"), 0);
}

TEST_F(RescueStoreTest, TheFileOfACrashedCopyIsFoundByOneCopyAtATime) {
  const pid_t child = ::fork();
  if (child == 0) {
    RescueStore store = StoreIn(folder);
    store.Keep("lost");
    ::_exit(0);
  }
  ::waitpid(child, nullptr, 0);
  temp.Put("rescue-1-1.pelmar.lock", "");  // left by a copy that crashed before its first write
  EXPECT_EQ(Found().size(), 1u);
  LockFile offer;
  const std::vector<std::string> found = FindAbandoned(folder, kPrefix, offer);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(Content(found[0]), "lost");
  EXPECT_TRUE(Found().empty());
  std::filesystem::remove(found[0]);
  offer.Release();
  EXPECT_TRUE(Found().empty());
  EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(RescueStoreTest, TheLastRecordWinsWhetherTheThreadOrTheCallerWritesIt) {
  int writes = 0;
  RescueWriter writer(kDocumentsRescue, folder, [&writes](const std::string& path, std::string_view bytes) {
    ++writes;
    std::ofstream(path, std::ios::binary) << bytes;
    return 0;
  });
  const auto record = [](int number) { return RescueRecord{1, {{1, "", std::to_string(number)}}}; };
  int calls = 0;
  const auto done = [&calls](int error) { calls += error == 0 ? 1 : 100; };
  for (int number = 1; number < 100; number += 2) {
    writer.Start(record(number), done);
    ASSERT_EQ(writer.WriteNow(record(number + 1)), 0);
    ASSERT_EQ(Content(writer.Store().Path()), RescueBytes(kDocumentsRescue, record(number + 1)));
  }
  ASSERT_EQ(writer.WriteNow(record(100)), 0);  // the last write, at the end of the program, trusts no earlier one
  writer.Start(record(100), done);             // not written again, because the file holds this record already
  writer.Remove();
  EXPECT_FALSE(writer.IsRunning());
  EXPECT_EQ(calls, 51);
  EXPECT_EQ(writes, 101);
  EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST(RescueFile, RefusesDamagedFilesAndFilesOfAnotherKind) {
  const RescueRecord record{2, {{2, "/x", std::string(300, 'y')}, {5, "", "z"}}};
  const std::string bytes = RescueBytes(kNotesRescue, record);
  EXPECT_EQ(ReadRescue(kNotesRescue, bytes), record);
  EXPECT_FALSE(ReadRescue(kDocumentsRescue, bytes));
  EXPECT_EQ(RescueBytes(kNotesRescue, {2, {}}), "");
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    EXPECT_FALSE(ReadRescue(kNotesRescue, std::string_view(bytes).substr(0, at))) << at;
    std::string damaged = bytes;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x20);
    EXPECT_FALSE(ReadRescue(kNotesRescue, damaged)) << at;
  }
}

TEST(RescueFile, RefusesANumberThatNoTabHas) {
  for (const auto& [shown, place] : {std::pair(0, 1), {6, 1}, {2, 0}, {2, 6}})
    EXPECT_FALSE(ReadRescue(kNotesRescue, RescueBytes(kNotesRescue, {shown, {{place, "", "z"}}}))) << shown << place;
}

}  // namespace
}  // namespace pelmar
