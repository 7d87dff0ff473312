#include "shell/settings_record.h"

#include <gtest/gtest.h>

#include <string>

#include "support/random_source.h"
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

}  // namespace
}  // namespace pelmar
