#include "shell/windows/rescue_keeper.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <optional>

#include "accessories/windows/prev.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "shell/rescued_documents.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

constexpr char kDead[] = "rescue-1-1.pelmar";
const std::string kLost = RescueBytes(kDocumentsRescue, {2, {{2, "/a.txt", "lost"}}});

// The lock files are real, and empty rescue files tell that they are there; their bytes are the scripted platform's.
struct RescueKeeperTest : testing::Test {
  QTemporaryDir folder;
  ScriptedPlatform platform;
  TextBuffer text;
  Documents documents{text};

  RescueKeeperTest() { platform.install_folder = Utf8FromQString(folder.path()) + "/"; }
  [[nodiscard]] std::string In(std::string_view name) const { return platform.install_folder + std::string(name); }
  // The start asks nothing then.
  void KnowThePerson() {
    SettingsRecord settings;
    settings.UserName = settings.UserEmail = "jan";
    platform.files[In("pelmar.ini")] = SettingsBytes(settings);
  }
  // What a copy that died leaves behind.
  void Leave(const char* name, const std::string& bytes) {
    QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly);
    platform.files[In(name)] = bytes;
  }
  [[nodiscard]] bool IsThere(const char* name) const { return QFile::exists(folder.filePath(QLatin1String(name))); }
  // The texts of a rescue file; nothing where it isn't there.
  [[nodiscard]] std::optional<RescueRecord> Kept(const std::string& path) const {
    const auto found = platform.files.find(path);
    return found == platform.files.end() ? std::nullopt : ReadRescue(kDocumentsRescue, found->second);
  }
};

TEST_F(RescueKeeperTest, KeepsAChangeWithinTwoSecondsAndDropsItOnceSaved) {
  RescueKeeper keeper(ModifiedDocuments(documents), platform);
  const Listening heard = text.OnChange([&](const TextChange&) { keeper.Touch(); });
  text.SetText("typed");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !platform.calls.empty(); }, 2000));
  const std::string path = platform.calls[0].substr(6);
  EXPECT_EQ(Kept(path), (RescueRecord{1, {{1, "", "typed"}}}));
  EXPECT_TRUE(platform.private_files.contains(path));
  documents.MakeCurrent("/a.txt");  // saved: nothing left to keep
  EXPECT_EQ(keeper.KeepNow(), "");
  keeper.End();
  EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::Files | QDir::Hidden));
}

// Somebody has planted the first name that is drawn.
TEST_F(RescueKeeperTest, TheLastResortIsANewFileOfADrawnName) {
  platform.install_folder = "/nonexistent/";
  platform.draws = {0.5, 0.25};
  platform.files["/tmp/pelmar-rescue-49999999.txt"] = "planted";
  RescueKeeper keeper(ModifiedDocuments(documents), platform);
  text.SetText("typed");
  const std::string path = keeper.KeepNow();
  EXPECT_EQ(path, "/tmp/pelmar-rescue-24999999.txt");
  EXPECT_EQ(platform.files[path], "Soubor:\r\ntyped\r\n\r\n");
  EXPECT_EQ(platform.calls, (std::vector<std::string>{"create /tmp/pelmar-rescue-49999999.txt", "create " + path}));
}

// The numeral goes into the editor's hidden document, which nobody would miss and no later start has to offer.
TEST_F(RescueKeeperTest, AnAccessoryAloneKeepsNoDocument) {
  KnowThePerson();
  Program program(platform);
  program.Run("-CALC");
  program.Windows().Get<Prev>().findChild<QPushButton*>(QStringLiteral("Command38"))->click();
  program.Windows().Get<Prev>().findChild<QPushButton*>(QStringLiteral("Command46"))->click();
  program.KeepUnsaved();
  EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::Files | QDir::Hidden));
}

// Old files go when their texts are safe elsewhere, not before, and only those whose texts are.
TEST_F(RescueKeeperTest, AnOldFileGoesOnlyWhenItsTextIsSafe) {
  const struct {
    const char* name;
    std::optional<Answer> answer;  // nothing: no question comes
    int read_error, own_error, rest_error;
    bool stays;
    const char* rest;
  } kCases[] = {
      {"yes", Answer::kYes, 0, 0, 0, false, ""},
      {"yes, full disk", Answer::kYes, 0, ENOSPC, 0, true, ""},
      {"no", Answer::kNo, 0, 0, 0, false, "Soubor:/a.txt\r\nlost\r\n\r\n"},
      {"no, full disk", Answer::kNo, 0, 0, ENOSPC, true, ""},
      {"unreadable", std::nullopt, EIO, 0, 0, true, ""},
  };
  for (const auto& one : kCases) {
    SCOPED_TRACE(one.name);
    platform.files.clear();
    platform.calls.clear();
    TextBuffer box;
    Documents opened(box);
    RescueKeeper keeper(ModifiedDocuments(opened), platform);
    box.SetText("probe");
    const std::string own = keeper.KeepNow();
    opened.ForgetPath();
    keeper.End();
    platform.files.erase(own);
    Leave(kDead, kLost);
    if (one.answer) platform.answers = {*one.answer};
    if (one.read_error != 0) platform.read_errors[In(kDead)] = one.read_error;
    if (one.own_error != 0) platform.write_errors[own] = one.own_error;
    if (one.rest_error != 0) platform.write_errors[In("rescued.txt")] = one.rest_error;
    // Whatever is written while the question stands says nothing about the answer.
    bool there_meanwhile = true;
    platform.on_message = [&] {
      keeper.KeepNow();
      there_meanwhile = IsThere(kDead);
    };
    keeper.Offer();
    EXPECT_TRUE(there_meanwhile);
    EXPECT_EQ(IsThere(kDead), one.stays);
    const bool back = one.answer == Answer::kYes;
    EXPECT_EQ(opened.Title(), back ? "Pelmar VEX (/a.txt)*" : "Pelmar VEX ()");
    EXPECT_EQ(Kept(own).has_value(), back && one.own_error == 0);
    EXPECT_EQ(platform.files[In("rescued.txt")], one.rest);
    keeper.Offer();  // asked once
    // With room again it goes on by itself.
    platform.write_errors.clear();
    platform.read_errors.clear();
    EXPECT_EQ(QTest::qWaitFor([&] { return !IsThere(kDead); }, one.answer ? 2500 : 0), one.answer.has_value());
    EXPECT_EQ(Kept(own), back ? std::optional(RescueRecord{2, {{2, "/a.txt", "lost"}}}) : std::nullopt);
    QFile::remove(folder.filePath(QLatin1String(kDead)));
  }
}

TEST_F(RescueKeeperTest, ATextThatTwoFilesHoldIsOfferedOnceAndTornFilesStay) {
  Leave(kDead, kLost);
  Leave("rescue-2-1.pelmar", kLost);
  Leave("rescue-3-1.pelmar", kLost.substr(0, kLost.size() - 1));
  platform.answers = {Answer::kYes};
  RescueKeeper keeper(ModifiedDocuments(documents), platform);
  keeper.Offer();
  EXPECT_EQ(documents.UnsavedCount(), 1);
  EXPECT_FALSE(IsThere(kDead) || IsThere("rescue-2-1.pelmar"));
  EXPECT_TRUE(IsThere("rescue-3-1.pelmar"));
}

TEST_F(RescueKeeperTest, TheStatusBarSaysForAsLongAsItHoldsThatNothingIsKept) {
  KnowThePerson();
  Program program(platform);
  program.Run("-NOMSG");
  auto* warning = program.Main().Bar().findChild<QLabel*>(QStringLiteral("Warning"));
  const auto type = [&](const char* more) { program.Main().Text().Buffer().Type(more); };
  type("a");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !platform.calls.empty(); }, 2000));
  const std::string own = platform.calls.back().substr(6);
  EXPECT_FALSE(warning->isVisible());
  platform.write_errors[own] = ENOSPC;
  type("b");
  ASSERT_TRUE(QTest::qWaitFor([&] { return warning->isVisible(); }, 2500));
  EXPECT_TRUE(program.Main().Bar().rect().contains(warning->geometry()));
  platform.write_errors.clear();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !warning->isVisible(); }, 2500));
  EXPECT_EQ(Kept(own)->texts[0].text, "ab");
}

}  // namespace
}  // namespace pelmar
