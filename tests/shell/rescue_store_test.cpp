#include "shell/rescue_store.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "shell/rescue_file.h"
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
  // Another copy keeps something and dies without a word.
  void LetACopyDie(const std::string& bytes) const {
    const pid_t child = ::fork();
    if (child == 0) {
      RescueStore store = StoreIn(folder);
      store.Keep(bytes);
      ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
  }
};

TEST_F(RescueStoreTest, AnOrdinaryEndLeavesNothing) {
  RescueStore store = StoreIn(folder);
  for (const char* kept : {"one", "two", "", "again"}) {
    EXPECT_EQ(store.Keep(kept), 0);
    EXPECT_EQ(std::filesystem::is_empty(folder), *kept == '\0');
    EXPECT_EQ(Content(store.Path()), *kept == '\0' ? "<missing>" : kept);
    EXPECT_TRUE(FindAbandoned(folder, kPrefix).empty());  // a living copy's file is nobody else's
  }
  EXPECT_NE(StoreIn("/nonexistent/folder/").Keep("x"), 0);
}

TEST_F(RescueStoreTest, WhatADeadCopyKeptIsFoundOnceUntilItIsDiscarded) {
  LetACopyDie("lost");
  RescueStore own = StoreIn(folder);
  own.Keep("mine");
  FindAbandoned(folder, kPrefix).clear();  // a finder that dies leaves it for the next
  auto found = FindAbandoned(folder, kPrefix);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(Content(found[0].path), "lost");
  EXPECT_TRUE(FindAbandoned(folder, kPrefix).empty());  // held by the first finder
  Discard(found[0]);
  EXPECT_TRUE(FindAbandoned(folder, kPrefix).empty());
  EXPECT_EQ(Content(own.Path()), "mine");
  // One that died before it kept anything, or whose file is gone, leaves nothing for ever.
  LetACopyDie("x");
  for (const auto& file : std::filesystem::directory_iterator(folder))
    if (file.path() != own.Path() && file.path().extension() == ".pelmar") std::filesystem::remove(file.path());
  EXPECT_TRUE(FindAbandoned(folder, kPrefix).empty());
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 2);  // its own, and the lock on it
}

TEST(RescueFile, ReadsWhatWasWrittenWholeAndOfItsKindAlone) {
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

}  // namespace
}  // namespace pelmar
