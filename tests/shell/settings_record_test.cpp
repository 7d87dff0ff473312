#include "shell/settings_record.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "platform/color.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

SettingsRecord FullRecord() {
  SettingsRecord r;
  r.Width = 12000;
  r.Height = 9000;
  r.Top = -15;
  r.Left = 1440;
  r.AlwaysOnTopFlag = true;
  r.FontName = "Písmo"_w;
  r.ForeColor = Rgb(1, 2, 3);
  r.BackColor = Rgb(255, 254, 253);
  r.FontSize = 14;
  r.FontBold = true;
  r.FontItalic = true;
  r.UserName = "Jan";
  r.UserEmail = "j@x.cz";
  r.ShowStart = true;
  r.AutosnapDistance = 300;
  r.LockPassword = "tajné"_w;
  for (std::size_t i = 0; i < r.RecentFiles.size(); ++i) r.RecentFiles[i] = "/soubor" + std::to_string(i) + ".txt";
  r.WindowState = 2;
  r.LineCounting = true;
  return r;
}

TEST(SettingsRecord, HasTheToldBytes) {
  EXPECT_EQ(SettingsBytes({}), std::string(71, '\0'));
  SettingsRecord r;
  r.Width = 0x01020304;
  r.Height = -1;
  r.AlwaysOnTopFlag = true;
  r.FontName = "Až"_w;
  r.ForeColor = Rgb(0x11, 0x22, 0x33);
  r.FontSize = 8;
  const std::string bytes = SettingsBytes(r);
  EXPECT_EQ(bytes.size(), 73u);
  EXPECT_EQ(bytes.substr(0, 8), "\x04\x03\x02\x01\xFF\xFF\xFF\xFF");
  EXPECT_EQ(bytes.substr(16, 10), std::string("\xFF\xFF\x02\x00"  // flag, count
                                              "A\x9E"
                                              "\x11\x22\x33\x00",
                                              10));
  EXPECT_EQ(bytes[30], 8);
}

TEST(SettingsRecord, ReadsBackWhatItWrote) {
  const SettingsRecord r = FullRecord();
  EXPECT_EQ(ReadSettings(SettingsBytes(r)), r);
  EXPECT_EQ(ReadSettings(SettingsBytes(r) + "an old tail"), r);
  SettingsRecord long_name;
  long_name.FontName = std::string(300, 'x');
  EXPECT_EQ(ReadSettings(SettingsBytes(long_name)).FontName.size(), 300u);
  EXPECT_EQ(SettingsBytes(long_name).substr(18, 2), "\x2C\x01");
  SettingsRecord too_long;
  too_long.UserName = std::string(70000, 'x');
  EXPECT_EQ(ReadSettings(SettingsBytes(too_long)).UserName.size(), 65535u);
}

// Every short length: the fields that are whole keep their values, the rest reads as zero and empty.
TEST(SettingsRecord, ShortFilesReadAsZeroFromTheirEndOn) {
  const std::string bytes = SettingsBytes(FullRecord());
  for (std::size_t length = 0; length <= bytes.size(); ++length) {
    const SettingsRecord r = ReadSettings(std::string_view(bytes).substr(0, length));
    EXPECT_EQ(r.Width, length >= 4 ? 12000 : 0) << length;
    EXPECT_EQ(r.FontName, length >= 25 ? "Písmo"_w : ""_w) << length;
    EXPECT_EQ(r.FontSize, length >= 34 ? 14 : 0) << length;
    EXPECT_EQ(r.LineCounting, length == bytes.size()) << length;
  }
}

TEST(SettingsRecord, DamagedFilesNeverReadBeyondTheirEnd) {
  std::mt19937 random(1);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(random() % 201, '\0');
    for (char& ch : bytes) ch = CharOf(static_cast<int>(random() & 0xFF));
    const SettingsRecord r = ReadSettings(bytes);
    std::size_t total = r.FontName.size() + r.UserName.size() + r.UserEmail.size() + r.LockPassword.size();
    ASSERT_LE(total, bytes.size());
    ASSERT_EQ(ReadSettings(SettingsBytes(r)), r);
  }
  // A count beyond the end is no string, and nothing behind it counts.
  std::string bytes = SettingsBytes(FullRecord());
  bytes[18] = '\xFF';
  bytes[19] = '\xFF';
  EXPECT_EQ(ReadSettings(bytes).FontName, "");
  EXPECT_EQ(ReadSettings(bytes).FontSize, 0);
  EXPECT_EQ(ReadSettings(bytes).Left, 1440);
}

TEST(SettingsRecord, Defaults) {
  SettingsRecord r;
  r.ForeColor = r.BackColor = Rgb(255, 0, 0);
  ApplySettingsDefaults(r);
  EXPECT_EQ(r.FontName, "Courier New");
  EXPECT_EQ(r.ForeColor, 0);
  EXPECT_EQ(r.BackColor, 0xFFFFFF);
}

TEST(SettingsRecord, PathsOutsideTheCodePageComeBack) {
  for (const std::string path :
       {"/home/jan/kůň.txt", "/a.txt", "/home/Ж/x.txt", "", "/Ă©.txt", "/Ä.txt", "/d\xE8/%41 \xF9.txt"})
    EXPECT_EQ(PathFromStored(StoredPath(path)), path) << path;
  EXPECT_EQ(StoredPath("/kůň.txt"), "/kůň.txt"_w);
}

}  // namespace
}  // namespace pelmar
