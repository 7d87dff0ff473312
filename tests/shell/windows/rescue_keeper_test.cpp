#include "shell/windows/rescue_keeper.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>

#include "accessories/windows/prev.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "shell/rescued_documents.h"
#include "support/scripted_platform.h"
#include "support/steps.h"

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

  RescueKeeperTest() {
    platform.install_folder = Utf8FromQString(folder.path()) + "/";
    SettingsRecord settings;  // with which the start asks nothing
    settings.UserName = settings.UserEmail = "jan";
    platform.files[In("pelmar.ini")] = SettingsBytes(settings);
  }
  [[nodiscard]] std::string In(std::string_view name) const { return platform.install_folder + std::string(name); }
  // What a copy that died leaves behind.
  void Leave(const char* name, const std::string& bytes) {
    QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly);
    platform.files[In(name)] = bytes;
  }
  [[nodiscard]] bool IsThere(const char* name) const { return QFile::exists(folder.filePath(QLatin1String(name))); }
  [[nodiscard]] bool FolderIsEmpty() const { return QDir(folder.path()).isEmpty(QDir::Files | QDir::Hidden); }
  // The texts of a rescue file; nothing where it isn't there.
  [[nodiscard]] std::string Kept(const std::string& path) {
    const auto record = ReadRescue(kDocumentsRescue, platform.files[path]);
    return record ? ReadableDocuments(record->texts) : "";
  }
};

TEST_F(RescueKeeperTest, KeepsAChangeWithinTwoSecondsAndTheBarSaysForAsLongAsItCant) {
  Program program(platform);
  program.Run("-NOMSG");
  const auto* warning = program.Main().Bar().findChild<QLabel*>(QStringLiteral("Warning"));
  const auto type = [&](const char* more) { program.Main().Text().Buffer().Type(more); };
  type("a");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !platform.calls.empty(); }, 2000));
  const std::string own = platform.calls.back().substr(6);
  EXPECT_EQ(Kept(own), "Soubor:\r\na\r\n\r\n");
  EXPECT_TRUE(platform.private_files.contains(own));
  EXPECT_FALSE(warning->isVisible());
  platform.write_errors[own] = ENOSPC;
  type("b");
  ASSERT_TRUE(QTest::qWaitFor([&] { return warning->isVisible(); }, 2500));
  platform.write_errors.clear();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !warning->isVisible(); }, 2500));
  EXPECT_EQ(Kept(own), "Soubor:\r\nab\r\n\r\n");
  platform.answers = {Answer::kYes, Answer::kYes};
  program.Main().close();
  EXPECT_TRUE(FolderIsEmpty());
  EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);  // which the close has ended
}

// Somebody has planted the first name that is drawn.
TEST_F(RescueKeeperTest, TheLastResortIsANewFileOfADrawnName) {
  platform.install_folder = "/nonexistent/";
  platform.draws = {0.5, 0.25};
  platform.files["/tmp/pelmar-rescue-49999999.txt"] = "planted";
  RescueKeeper keeper(ModifiedDocuments(documents), platform);
  text.SetText("typed");
  EXPECT_EQ(keeper.KeepNow(), "/tmp/pelmar-rescue-24999999.txt");
  EXPECT_EQ(platform.files["/tmp/pelmar-rescue-24999999.txt"], "Soubor:\r\ntyped\r\n\r\n");
  EXPECT_EQ(platform.calls.size(), 2u);
}

// The numeral goes into the editor's hidden document, which nobody would miss and no later start has to offer.
TEST_F(RescueKeeperTest, AnAccessoryAloneKeepsNoDocument) {
  Program program(platform);
  program.Run("-CALC");
  Work(program.Windows().Get<Prev>(), "Command38! Command46!");
  program.KeepUnsaved();
  EXPECT_TRUE(FolderIsEmpty());
}

TEST_F(RescueKeeperTest, AnErrorThatEndsTheProgramIsToldWithWhatWasKept) {
  const auto told = [this](const char* tail, const char* typed) {
    Program program(platform);
    platform.answers = {Answer::kOk};
    try {
      program.Run(tail);
      program.Main().Text().Buffer().Type(typed);
      throw RuntimeError(5, "Chyba");
    } catch (const RuntimeError& error) {
      program.TellRuntimeError(error);
    }
    return platform.TakeCalls();
  };
  const std::vector<std::string> kept = told("-NOMSG", "typed");
  EXPECT_EQ(Kept(kept[0].substr(6)), "Soubor:\r\ntyped\r\n\r\n");
  EXPECT_EQ(kept.back(),
            "message 0 \"Běhová chyba 5:\r\nChyba\r\n\r\nNeuložené dokumenty jsou zachovány v souboru\r\n" +
                kept[0].substr(6) +
                "\r\nPříští start programu je nabídne zpět.\r\n\r\nProgram bude ukončen.\" \"Pelmar VEX\"");
  platform.read_errors[In("notes.dat")] = EACCES;
  EXPECT_EQ(told("-NOTE", "").back(), "message 0 \"Běhová chyba 13:\r\nSoubor " + In("notes.dat") +
                                          " nelze otevřít\r\n\r\nProgram bude ukončen.\" \"Pelmar VEX\"");
}

// Old files go when their texts are safe elsewhere, not before, and only those whose texts are.
TEST_F(RescueKeeperTest, AnOldFileGoesOnlyWhenItsTextIsSafe) {
  constexpr char kReadable[] = "Soubor:/a.txt\r\nlost\r\n\r\n";
  enum Failing { kNothing, kOwnFile, kRest, kReading };
  const struct {
    std::deque<Answer> answers;  // none: no question comes
    Failing failing;
    bool stays;
    const char* rest;
  } kCases[] = {{{Answer::kYes}, kNothing, false, ""},
                {{Answer::kYes}, kOwnFile, true, ""},
                {{Answer::kNo}, kNothing, false, kReadable},
                {{Answer::kNo}, kRest, true, ""},
                {{}, kReading, true, ""}};
  for (const auto& one : kCases) {
    SCOPED_TRACE(&one - kCases);
    platform.files.clear();
    TextBuffer box;
    Documents opened(box);
    RescueKeeper keeper(ModifiedDocuments(opened), platform);
    box.SetText("probe");
    const std::string own = keeper.KeepNow();
    opened.ForgetPath();  // saved: nothing left to keep
    EXPECT_EQ(keeper.KeepNow(), "");
    platform.files.erase(own);
    Leave(kDead, kLost);
    const bool asked = !one.answers.empty(), back = one.answers == std::deque{Answer::kYes};
    platform.answers = one.answers;
    if (one.failing == kReading) platform.read_errors[In(kDead)] = EIO;
    if (one.failing == kOwnFile || one.failing == kRest)
      platform.write_errors[one.failing == kRest ? In("rescued.txt") : own] = ENOSPC;
    // Whatever is written while the question stands says nothing about the answer.
    platform.on_message = [&] {
      keeper.KeepNow();
      EXPECT_TRUE(IsThere(kDead));
    };
    keeper.Offer();
    EXPECT_EQ(IsThere(kDead), one.stays);
    EXPECT_EQ(opened.Title(), back ? "Pelmar VEX (/a.txt)*" : "Pelmar VEX ()");
    EXPECT_EQ(Kept(own), back && one.failing == kNothing ? kReadable : "");
    EXPECT_EQ(platform.files[In("rescued.txt")], one.rest);
    keeper.Offer();  // asked once
    // With room again it goes on by itself.
    platform.write_errors.clear();
    platform.read_errors.clear();
    EXPECT_EQ(QTest::qWaitFor([&] { return !IsThere(kDead); }, asked ? 2500 : 0), asked);
    EXPECT_EQ(Kept(own), back ? kReadable : "");
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

}  // namespace
}  // namespace pelmar
