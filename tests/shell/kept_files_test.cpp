// The files that outlast a run: the settings, and what isn't saved.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "shell/rescue_file.h"
#include "shell/rescue_store.h"
#include "shell/settings_record.h"
#include "support/random_source.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

SettingsRecord FullRecord() {
  SettingsRecord r{12000, 9000,  -15,      1440, true, "P\xEDsmo", 0x030201, 0xFDFEFF, 14,  true,
                   false, "Jan", "j@x.cz", true, 300,  "tajn\xE9", {},       2,        true};
  for (std::size_t i = 0; i < r.RecentFiles.size(); ++i) r.RecentFiles[i] = "/soubor" + std::to_string(i) + ".txt";
  return r;
}

TEST(SettingsRecord, HasTheToldBytes) {
  EXPECT_EQ(SettingsBytes({}), std::string(71, '\0'));
  std::string expected(
      "\xE0\x2E\0\0\x28\x23\0\0\xF1\xFF\xFF\xFF\xA0\x05\0\0\xFF\xFF"  // the place, always on top
      "\5\0P\xEDsmo\1\2\3\0\xFF\xFE\xFD\0\x0E\xFF\xFF\0\0"            // the font and its colours
      "\3\0Jan\6\0j@x.cz\xFF\xFF\x2C\1\0\0\5\0tajn\xE9",
      18 + 7 + 8 + 5 + 5 + 8 + 2 + 4 + 7);
  for (int i = 0; i < 10; ++i) expected += std::string("\x0C\0/soubor", 9) + std::to_string(i) + ".txt";
  expected += std::string("\2\0\0\0\xFF\xFF", 6);
  EXPECT_EQ(SettingsBytes(FullRecord()), expected);
  EXPECT_EQ(ReadSettings(expected + "an old tail"), FullRecord());
  SettingsRecord longest;
  longest.UserName = std::string(70000, 'x');
  const std::string bytes = SettingsBytes(longest);
  longest.UserName.resize(65535);
  EXPECT_EQ(ReadSettings(bytes), longest);
}

// Every short length: what is whole keeps its value, the rest reads as zero and empty. Random bytes: what is read is
// within them.
TEST(SettingsRecord, ShortAndDamagedFilesReadAsZeroFromTheirEndOn) {
  std::string bytes = SettingsBytes(FullRecord());
  for (std::size_t length = 0; length <= bytes.size(); ++length) {
    const SettingsRecord r = ReadSettings(std::string_view(bytes).substr(0, length));
    EXPECT_EQ(r.Width, length >= 4 ? 12000 : 0) << length;
    EXPECT_EQ(r.FontName, length >= 25 ? "Písmo"_w : ""_w) << length;
    EXPECT_EQ(r.FontSize, length >= 34 ? 14 : 0) << length;
    EXPECT_EQ(r.LineCounting, length == bytes.size()) << length;
  }
  // A count beyond the end is no string, and nothing behind it counts.
  bytes[18] = bytes[19] = '\xFF';
  EXPECT_EQ(ReadSettings(bytes), ReadSettings(bytes.substr(0, 18)));
  RandomSource random(1);
  for (int round = 0; round < 2000; ++round) {
    const SettingsRecord r = ReadSettings(bytes = random.Bytes(200));
    ASSERT_LE(r.FontName.size() + r.UserName.size() + r.UserEmail.size() + r.LockPassword.size(), bytes.size());
    ASSERT_EQ(ReadSettings(SettingsBytes(r)), r);
  }
}

TEST(SettingsRecord, PathsOutsideTheCodePageComeBack) {
  for (const std::string path :
       {"/home/jan/kůň.txt", "/a.txt", "/home/Ж/x.txt", "", "/Ă©.txt", "/Ä.txt", "/d\xE8/%41 \xF9.txt"})
    EXPECT_EQ(PathFromStored(StoredPath(path)), path) << path;
  EXPECT_EQ(StoredPath("/kůň.txt"), "/kůň.txt"_w);
}

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
