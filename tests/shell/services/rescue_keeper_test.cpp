#include "shell/services/rescue_keeper.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "program/program.h"
#include "shell/rescued_documents.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

// Lock files and the names of rescue files are real. The bytes of all files are in the scripted platform.
struct RescueKeeperTest : testing::Test {
  const TempFolder folder;
  ScriptedPlatform platform;

  RescueKeeperTest() {
    platform.install_folder = folder.Path() + "/";
    SettingsRecord settings;  // complete, so the start asks nothing
    settings.UserName = settings.UserEmail = "jan";
    platform.files[folder.File("pelmar.ini")] = SettingsBytes(settings);
  }
  [[nodiscard]] bool FolderIsEmpty() const { return std::filesystem::is_empty(folder.Path()); }
  static std::string PathOfWrite(const std::string& call) { return call.substr(std::string_view("write ").size()); }
  // The texts of a rescue file, "" if there is no such file.
  [[nodiscard]] std::string Texts(const std::string& path) {
    const auto record = ReadRescue(kDocumentsRescue, platform.files[path]);
    std::string texts;
    if (record)
      for (const RescuedText& document : record->texts) texts += ReadableDocument(document.origin, document.text);
    return texts;
  }
};

TEST_F(RescueKeeperTest, KeepsAChangeWithinTwoSecondsUntilThePersonDiscardsIt) {
  Program program(platform);
  MainWindow& window = program.Main();
  program.Run("-NOMSG");
  window.Box().Buffer().Type("a");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !platform.calls.empty(); }, 2000));
  const std::string own = PathOfWrite(platform.calls.back());
  EXPECT_EQ(Texts(own), "Soubor:\r\na\r\n\r\n");
  EXPECT_TRUE(platform.private_files.contains(own));
  platform.answers = {Answer::kNo, Answer::kYes};
  window.close();
  EXPECT_TRUE(window.isVisible());
  window.close();
  EXPECT_TRUE(FolderIsEmpty());
  EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);  // the close has already ended it
}

TEST_F(RescueKeeperTest, TheStatusBarWarnsAsLongAsNothingCanBeKept) {
  Program program(platform);
  program.Run("-NOMSG");
  const auto* warning = program.Main().Bar().findChild<QLabel*>(QStringLiteral("Warning"));
  program.Main().Box().Buffer().Type("a");
  program.KeepUnsaved();
  EXPECT_FALSE(warning->isVisible());
  const std::string own = PathOfWrite(platform.calls.front());
  platform.write_errors[own] = ENOSPC;
  program.Main().Box().Buffer().Type("b");
  ASSERT_TRUE(QTest::qWaitFor([&] { return warning->isVisible(); }));
  platform.write_errors.clear();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !warning->isVisible(); }));
  EXPECT_EQ(Texts(own), "Soubor:\r\nab\r\n\r\n");
}

TEST_F(RescueKeeperTest, TheMessageOfAnErrorNamesTheFileThatKeepsTheWork) {
  Program program(platform);
  program.Run("-NOMSG");
  program.Main().Box().Buffer().Type("typed");
  platform.answers = {Answer::kOk};
  program.ReportRuntimeError(RuntimeError(5, "Chyba"));
  const std::string own = PathOfWrite(platform.calls.front());
  EXPECT_EQ(Texts(own), "Soubor:\r\ntyped\r\n\r\n");
  EXPECT_EQ(platform.calls.back(),
            "message 0 \"Běhová chyba 5:\r\nChyba\r\n\r\nNeuložené dokumenty jsou zachovány v souboru\r\n" + own +
                "\r\nPříští start programu je nabídne zpět.\r\n\r\nProgram bude ukončen.\" \"Pelmar VEX\"");
}

// Files of crashed copies. Two hold the same text, and one is damaged.
struct OfferTest : RescueKeeperTest {
  TextBuffer box;
  Documents documents{box};
  DocumentsRescue unsaved{documents};
  RescueKeeper keeper{unsaved, platform};
  const std::string bytes = RescueBytes(kDocumentsRescue, {2, {{2, "/a.txt", "lost"}}}),
                    readable = "Soubor:/a.txt\r\nlost\r\n\r\n", old = folder.File("rescue-1-1.pelmar"),
                    twin = folder.File("rescue-2-1.pelmar"), damaged = folder.File("rescue-3-1.pelmar"),
                    rest = folder.File("rescued.txt");
  std::string own;

  OfferTest() {
    box.SetText("probe");
    own = keeper.KeepNow().path;
    documents.ForgetPath();  // saved, so nothing is left to keep
    EXPECT_EQ(keeper.KeepNow().path, "");
    PutOldFile(old, bytes);
    PutOldFile(twin, bytes);
    PutOldFile(damaged, bytes.substr(1));
  }
  void PutOldFile(const std::string& path, const std::string& content) {
    platform.files[path] = content;
    std::ofstream touched(path);
  }
  [[nodiscard]] bool OldFilesAreThere() const {
    EXPECT_EQ(std::filesystem::exists(old), std::filesystem::exists(twin));
    return std::filesystem::exists(old);
  }
  void Offer(const std::deque<Answer>& answers) {
    platform.answers = answers;
    keeper.Offer();
    EXPECT_TRUE(platform.answers.empty());
    EXPECT_TRUE(std::filesystem::exists(damaged));
  }
};

TEST_F(OfferTest, YesBringsATextBackOnceAndKeepsItInTheOwnFile) {
  Offer({Answer::kYes});
  EXPECT_EQ(documents.Title(), "Pelmar VEX (/a.txt)*");
  EXPECT_EQ(Texts(own), readable);
  EXPECT_FALSE(OldFilesAreThere());
  Offer({});  // asks only once
}

TEST_F(OfferTest, NoWritesTheTextIntoAReadableFile) {
  Offer({Answer::kNo});
  EXPECT_EQ(documents.Title(), "Pelmar VEX ()");
  EXPECT_EQ(platform.files[rest], readable);
  EXPECT_FALSE(OldFilesAreThere());
  platform.files[rest].clear();  // a text that the person removes isn't written again
  keeper.KeepNow();
  EXPECT_EQ(platform.files[rest], "");
}

TEST_F(OfferTest, OldFilesStayUntilTheirTextIsWritten) {
  const std::pair<Answer, std::string> cases[] = {{Answer::kYes, own}, {Answer::kNo, rest}};
  for (const auto& [answer, written] : cases) {
    PutOldFile(old, bytes);
    PutOldFile(twin, bytes);
    platform.write_errors[written] = ENOSPC;
    Offer({answer});
    EXPECT_TRUE(OldFilesAreThere()) << written;
    platform.write_errors.clear();  // when the disk has space again, the keeper continues by itself
    EXPECT_TRUE(QTest::qWaitFor([this] { return !OldFilesAreThere(); })) << written;
    documents.ForgetPath();
  }
}

TEST_F(OfferTest, ATextThatTheRescueFileCannotTakeGoesIntoAReadableFile) {
  platform.write_errors = {{own, ENOSPC}, {"/tmp/pelmar-rescue-24999999.txt", ENOSPC}};
  box.SetText("typed");
  for (int time = 0; time < 2; ++time)  // one file is enough for the same text
    EXPECT_EQ(keeper.NoticeOf(keeper.KeepNow()),
              "Neuložené dokumenty jsou zachovány v souboru\r\n/tmp/pelmar-rescue-0.txt\r\n"
              "Program je sám nenabídne, soubor si zkopírujte jinam.");
  EXPECT_EQ(platform.files["/tmp/pelmar-rescue-0.txt"], "Soubor:\r\ntyped\r\n\r\n");
  box.SetText("typed later");
  PutOldFile(own, bytes);
  EXPECT_EQ(keeper.NoticeOf(keeper.KeepNow()),
            "Neuložené dokumenty nebylo možné zachovat, příští start nabídne jen starší znění.");
}

TEST_F(RescueKeeperTest, TheStartReportsOnceWhereAnInterruptedSaveLeftTheOldContent) {
  const std::string left = folder.Put("puvodni-abcdef-a.txt", "old");
  for (const bool first : {true, false}) {
    Program program(platform);
    platform.answers = {Answer::kOk};
    program.Run("-NOMSG");
    QApplication::processEvents();
    EXPECT_EQ(platform.answers.empty(), first);
    const std::string calls = platform.TakeCallsInOneLine();
    EXPECT_EQ(calls.find(left) != std::string::npos, first) << calls;
  }
}

}  // namespace
}  // namespace pelmar
