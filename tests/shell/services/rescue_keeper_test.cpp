#include "shell/services/rescue_keeper.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <QLineEdit>
#include <QTest>
#include <new>

#include "accessories/windows/prev.h"
#include "program/program.h"
#include "shell/rescued_documents.h"
#include "shell/windows/config.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

// The lock files are real, and empty rescue files tell that they are there; their bytes are the scripted platform's.
struct RescueKeeperTest : testing::Test {
  const TempFolder folder;
  ScriptedPlatform platform;

  RescueKeeperTest() {
    platform.install_folder = folder.Path() + "/";
    SettingsRecord settings;  // with which the start asks nothing
    settings.UserName = settings.UserEmail = "jan";
    platform.files[folder.File("pelmar.ini")] = SettingsBytes(settings);
  }
  [[nodiscard]] bool FolderIsEmpty() const { return std::filesystem::is_empty(folder.Path()); }
  // The texts of a rescue file; nothing where it isn't there.
  [[nodiscard]] std::string Texts(const std::string& path) {
    const auto record = ReadRescue(kDocumentsRescue, platform.files[path]);
    return record ? ReadableDocuments(record->texts) : "";
  }
};

TEST_F(RescueKeeperTest, KeepsAChangeWithinTwoSecondsAndTheBarSaysForAsLongAsItCant) {
  Program program(platform);
  MainWindow& window = program.Main();
  program.Run("-NOMSG");
  const auto* warning = window.Bar().findChild<QLabel*>(QStringLiteral("Warning"));
  const auto type = [&](const char* more) { window.Box().Buffer().Type(more); };
  type("a");
  ASSERT_TRUE(QTest::qWaitFor([&] { return platform.HasCalls(); }, 2000));
  const std::string own = platform.calls.back().substr(6);
  EXPECT_EQ(Texts(own), "Soubor:\r\na\r\n\r\n");
  EXPECT_TRUE(platform.private_files.contains(own));
  EXPECT_FALSE(warning->isVisible());
  platform.write_errors[own] = ENOSPC;
  type("b");
  ASSERT_TRUE(QTest::qWaitFor([&] { return warning->isVisible(); }, 2500));
  platform.write_errors.clear();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !warning->isVisible(); }, 2500));
  EXPECT_EQ(Texts(own), "Soubor:\r\nab\r\n\r\n");
  platform.answers = {Answer::kNo, Answer::kYes};
  window.close();
  EXPECT_TRUE(window.isVisible());
  window.close();
  EXPECT_TRUE(FolderIsEmpty());
  EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);  // which the close has ended
}

// Somebody has planted the first name that is drawn.
TEST_F(RescueKeeperTest, TheLastResortIsANewFileOfADrawnName) {
  platform.install_folder = "/dev/null/";
  platform.draws = {0.5, 0.25};
  platform.files["/tmp/pelmar-rescue-49999999.txt"] = "planted";
  TextBuffer text;
  Documents documents(text);
  DocumentsRescue unsaved(documents);
  RescueKeeper keeper(unsaved, platform);
  text.SetText("typed");
  EXPECT_EQ(keeper.KeepNow().path, "/tmp/pelmar-rescue-24999999.txt");
  const Kept kept = keeper.KeepNow();
  EXPECT_EQ(keeper.NoticeOf(kept),
            "Neuložené dokumenty jsou zachovány v souboru\r\n/tmp/pelmar-rescue-24999999.txt\r\n"
            "Program je sám nenabídne, soubor si zkopírujte jinam.");
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

TEST_F(RescueKeeperTest, WhatTheStartTakesFromTheClipboardIsNobodysWork) {
  platform.files.clear();  // so that the profile is asked for, when the text is in the box
  platform.clipboard = "secret";
  Program program(platform);
  InDialog<Config>([&](Config& config) {
    EXPECT_EQ(program.Main().Box().Buffer().Text(), "secret");
    program.KeepUnsaved();
    EXPECT_TRUE(FolderIsEmpty());
    config.hide();
  });
  program.Run("-NOMSG");
}

TEST_F(RescueKeeperTest, AnErrorThatEndsTheProgramIsToldWithWhatWasKept) {
  const auto told = [this](const char* tail, const char* typed) {
    Program program(platform);
    platform.answers = {Answer::kOk};
    try {
      program.Run(tail);
      program.Main().Box().Buffer().Type(typed);
      throw RuntimeError(5, "Chyba");
    } catch (const RuntimeError& error) {
      program.ReportRuntimeError(error);
    }
    return platform.TakeCalls();
  };
  const std::vector<std::string> kept = told("-NOMSG", "typed");
  EXPECT_EQ(Texts(kept[0].substr(6)), "Soubor:\r\ntyped\r\n\r\n");
  EXPECT_EQ(kept.back(),
            "message 0 \"Běhová chyba 5:\r\nChyba\r\n\r\nNeuložené dokumenty jsou zachovány v souboru\r\n" +
                kept[0].substr(6) +
                "\r\nPříští start programu je nabídne zpět.\r\n\r\nProgram bude ukončen.\" \"Pelmar VEX\"");
  platform.read_errors[folder.File("notes.dat")] = EACCES;
  EXPECT_EQ(told("-NOTE", "").back(),
            "message 0 \"Běhová chyba 13:\r\nSoubor " + folder.File("notes.dat") +
                " nelze otevřít: přístup odepřen\r\n\r\nProgram bude ukončen.\" \"Pelmar VEX\"");
}

// Old files go when their texts are safe elsewhere, not before, and only those whose texts are. A text that two files
// hold is offered once, and torn files stay.
TEST_F(RescueKeeperTest, AnOldFileGoesOnlyWhenItsTextIsSafe) {
  constexpr char kReadable[] = "Soubor:/a.txt\r\nlost\r\n\r\n";
  const std::string lost = RescueBytes(kDocumentsRescue, {2, {{2, "/a.txt", "lost"}}});
  const std::string old = folder.File("rescue-1-1.pelmar"), twin = folder.File("rescue-2-1.pelmar"),
                    torn = folder.File("rescue-3-1.pelmar"), rest = folder.File("rescued.txt");
  const auto there = [&] {
    EXPECT_TRUE(std::filesystem::exists(torn));
    EXPECT_EQ(std::filesystem::exists(old), std::filesystem::exists(twin));
    return std::filesystem::exists(old);
  };
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
    DocumentsRescue unsaved(opened);
    RescueKeeper keeper(unsaved, platform);
    box.SetText("probe");
    const std::string own = keeper.KeepNow().path;
    opened.ForgetPath();  // saved: nothing left to keep
    EXPECT_EQ(keeper.KeepNow().path, "");
    platform.files = {{old, lost}, {twin, lost}, {torn, lost.substr(0, lost.size() - 1)}};
    for (const auto& [path, bytes] : platform.files) {
      std::ofstream touched(path);
      if (one.failing == kReading) platform.read_errors[path] = EIO;
    }
    const bool asked = !one.answers.empty(), back = one.answers == std::deque{Answer::kYes};
    platform.answers = one.answers;
    if (one.failing == kOwnFile || one.failing == kRest)
      platform.write_errors[one.failing == kRest ? rest : own] = ENOSPC;
    // Whatever is written while the question stands says nothing about the answer.
    platform.on_message = [&] {
      keeper.KeepNow();
      EXPECT_TRUE(there());
    };
    keeper.Offer();
    EXPECT_EQ(there(), one.stays);
    EXPECT_EQ(opened.Title(), back ? "Pelmar VEX (/a.txt)*" : "Pelmar VEX ()");
    EXPECT_EQ(Texts(own), back && one.failing == kNothing ? kReadable : "");
    EXPECT_EQ(platform.files[rest], one.rest);
    keeper.Offer();  // asked once
    // With room again it goes on by itself.
    platform.write_errors.clear();
    platform.read_errors.clear();
    EXPECT_EQ(QTest::qWaitFor([&] { return !there(); }, asked ? 2500 : 0), asked);
    EXPECT_EQ(Texts(own), back ? kReadable : "");
    EXPECT_EQ(std::exchange(platform.files[rest], ""), asked && !back ? kReadable : "");
    keeper.KeepNow();
    EXPECT_EQ(platform.files[rest], "");  // a rest that the person has taken away doesn't come again
  }
}

// More files than the process may open.
TEST_F(RescueKeeperTest, WhatFindsNoTabIsToldOnceHoweverManyFilesThereAre) {
  TextBuffer box;
  Documents documents(box);
  DocumentsRescue unsaved(documents);
  RescueKeeper keeper(unsaved, platform);
  for (int file = 1; file <= 200; ++file) {
    const std::string path = folder.File("rescue-" + std::to_string(file) + "-1.pelmar");
    platform.files[path] = RescueBytes(kDocumentsRescue, {1, {{1, "", std::to_string(file)}}});
    std::ofstream touched(path);
  }
  platform.answers = {Answer::kYes, Answer::kOk, Answer::kOk};
  rlimit usual{};
  getrlimit(RLIMIT_NOFILE, &usual);
  const rlimit few{.rlim_cur = 100, .rlim_max = usual.rlim_max};
  setrlimit(RLIMIT_NOFILE, &few);
  keeper.Offer();
  setrlimit(RLIMIT_NOFILE, &usual);
  EXPECT_NE(platform.calls.front().find("dokumentů: 200."), std::string::npos);
  keeper.KeepSoon();
  QTest::qWait(1300);  // in which it writes once more
  EXPECT_EQ(platform.answers.size(), 1u);
}

TEST_F(RescueKeeperTest, WithoutMemoryTheFileOfTheWriteBeforeStays) {
  struct NoMemory : DocumentsRescue {
    using DocumentsRescue::DocumentsRescue;
    [[nodiscard]] RescueRecord Unsaved() const override {
      return none ? throw std::bad_alloc() : DocumentsRescue::Unsaved();
    }
    bool none = false;
  };
  TextBuffer box;
  Documents documents(box);
  NoMemory unsaved(documents);
  RescueKeeper keeper(unsaved, platform);
  box.SetText("typed");
  const std::string own = keeper.KeepNow().path;
  std::ofstream touched(own);
  unsaved.none = true;
  int told = 0;
  keeper.on_failure = [&told](int error) { told = error; };
  keeper.KeepSoon();
  EXPECT_TRUE(QTest::qWaitFor([&] { return told == ENOMEM; }, 2500));
  EXPECT_EQ(keeper.KeepNow().path, own);
  EXPECT_EQ(Texts(own), "Soubor:\r\ntyped\r\n\r\n");
}

// Of a file that was being saved in place.
TEST_F(RescueKeeperTest, TheStartTellsOnceWhereAKilledSaveHasLeftTheOldContent) {
  const std::string left = folder.Put("puvodni-abcdef-a.txt", "old");
  for (const bool first : {true, false}) {
    Program program(platform);
    platform.answers = {Answer::kOk};
    program.Run("-NOMSG");
    QTest::qWait(0);
    EXPECT_EQ(platform.answers.empty(), first);
    const std::string told = platform.TakeTold();
    EXPECT_EQ(told.find(left) != std::string::npos, first) << told;
  }
}

}  // namespace
}  // namespace pelmar
