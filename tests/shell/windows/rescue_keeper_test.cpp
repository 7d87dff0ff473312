#include "shell/windows/rescue_keeper.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "accessories/windows/prev.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

// The lock files are real, the rescue files go to the scripted platform.
struct RescueKeeperTest : testing::Test {
  QTemporaryDir folder;
  ScriptedPlatform platform;
  TextBuffer text;
  Documents documents{text};

  RescueKeeperTest() { platform.install_folder = Utf8FromQString(folder.path()) + "/"; }
  [[nodiscard]] std::vector<std::string> Rescues() const {
    std::vector<std::string> found;
    for (const auto& [path, bytes] : platform.files)
      if (path.find("rescue-") != std::string::npos) found.push_back(bytes);
    return found;
  }
};

TEST_F(RescueKeeperTest, KeepsAChangeWithinTwoSecondsAndDropsItOnceSaved) {
  RescueKeeper keeper(ModifiedDocuments(documents), platform);
  text.OnChange([&](const TextChange&) { keeper.Touch(); });
  text.SetText("typed");
  QElapsedTimer clock;
  clock.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !platform.calls.empty(); }, 2000));
  ASSERT_EQ(Rescues().size(), 1u);
  EXPECT_EQ(ReadRescue(Rescues()[0])->documents[0].text, "typed");
  documents.SettleSlot();
  documents.ShowPathInTitle();  // saved: nothing left to keep
  EXPECT_EQ(keeper.KeepNow(), "");
  keeper.End();
  EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::Files | QDir::Hidden));
}

TEST_F(RescueKeeperTest, AReadOnlyInstallFolderFallsBackToAReadableFile) {
  platform.install_folder = "/nonexistent/";
  RescueKeeper keeper(ModifiedDocuments(documents), platform);
  text.SetText("typed");
  const std::string path = keeper.KeepNow();
  EXPECT_TRUE(path.starts_with("/tmp/pelmar-rescue-"));
  EXPECT_EQ(platform.files[path], "Soubor:\r\ntyped\r\n\r\n");
}

// The numeral goes into the editor's hidden document, which nobody would miss and no later start has to offer.
TEST_F(RescueKeeperTest, AnAccessoryAloneKeepsNoDocument) {
  SettingsRecord settings;
  settings.UserName = settings.UserEmail = "jan";
  platform.files[platform.install_folder + "pelmar.ini"] = SettingsBytes(settings);
  Program program(platform);
  program.Run("-CALC");
  program.Windows().Get<Prev>().findChild<QPushButton*>(QStringLiteral("Command38"))->click();
  program.Windows().Get<Prev>().findChild<QPushButton*>(QStringLiteral("Command46"))->click();
  QTest::qWait(1200);
  EXPECT_TRUE(Rescues().empty());
}

// Leaves a rescue file behind as a copy that died would: with its lock free.
struct OfferTest : RescueKeeperTest {
  OfferTest() {
    for (const char* name : {"rescue-1-1.pelmar", "rescue-1-1.pelmar.lock"}) {
      QFile file(folder.filePath(QLatin1String(name)));
      file.open(QIODevice::WriteOnly);
    }
    platform.files[platform.install_folder + "rescue-1-1.pelmar"] = RescueBytes({2, {{2, "/a.txt", "lost"}}});
  }
  [[nodiscard]] bool StillThere() const { return QFile::exists(folder.filePath(QStringLiteral("rescue-1-1.pelmar"))); }
};

TEST_F(OfferTest, YesBringsTheDocumentsBack) {
  platform.answers = {Answer::kYes};
  OfferAbandoned(documents, platform);
  EXPECT_EQ(documents.SelectedTab(), 2);
  EXPECT_EQ(documents.Title(), "Pelmar VEX (/a.txt)*");
  EXPECT_EQ(text.Text(), "lost");
  EXPECT_FALSE(StillThere());
  OfferAbandoned(documents, platform);  // asked once
}

TEST_F(OfferTest, NoLeavesThemReadable) {
  platform.answers = {Answer::kNo};
  OfferAbandoned(documents, platform);
  EXPECT_TRUE(text.Empty());
  EXPECT_EQ(platform.files[platform.install_folder + "rescued.txt"], "Soubor:/a.txt\r\nlost\r\n\r\n");
  EXPECT_FALSE(StillThere());
}

TEST_F(OfferTest, WhatCantBeKeptReadableStaysWhereItIs) {
  platform.answers = {Answer::kNo};
  platform.write_errors[platform.install_folder + "rescued.txt"] = 28;
  OfferAbandoned(documents, platform);
  EXPECT_TRUE(StillThere());
}

}  // namespace
}  // namespace pelmar
