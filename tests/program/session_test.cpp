#include "program/session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <functional>

#include "platform/color.h"
#include "platform/runtime_error.h"
#include "platform/twips.h"
#include "shell/terminal_answer.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

using Calls = std::vector<std::string>;

// The editor under a plain window, whose calls and those of the start's doors stand in one list.
struct Desk {
  WholeEditor editor;
  PlainView view;
  std::function<void()> config;
  Session session{
      view,
      {.show_config = [this] { view.calls.push_back("config"), config ? config() : void(); },
       .show_main = [this] { view.calls.push_back("main"); },
       .show_start = [this] { view.calls.push_back("start"); },
       .show_accessory =
           [this](StartMode mode) { view.calls.push_back("accessory " + std::to_string(static_cast<int>(mode))); }},
      editor,
      editor.files};
  Listening recent{editor.files.recent.changed.Add([this] { view.calls.push_back("recent"); })};

  explicit Desk(Platform& platform) : editor(platform) {}
};

struct SessionTest : testing::Test {
  ScriptedPlatform platform;
  Desk desk{platform};
  WholeEditor& editor = desk.editor;
  PlainView& view = desk.view;
  Session& session = desk.session;

  static constexpr const char* kRecovery = "/install/autosave_pelmar_vex.txt";
  static constexpr const char* kAllFiles = "/install/autosave_all_files.txt";
  static constexpr const char* kSettings = "/install/pelmar.ini";

  static SettingsRecord Stored() {
    SettingsRecord r;
    r.Width = 9000;
    r.Height = 6000;
    r.UserName = "Jan";
    r.UserEmail = "j@x.cz";
    r.FontName = "Font";
    r.FontSize = 12;
    return r;
  }
  void Store(const SettingsRecord& record) { platform.files[kSettings] = SettingsBytes(record); }
};

TEST_F(SessionTest, FirstStartRunsTheStepsInOrder) {
  session.Start("");
  EXPECT_EQ(view.calls, (Calls{"colors", "recent", "place", "state", "font", "colors", "size", "bold", "no bold mark",
                               "italic", "no italic mark", "config", "not top", "main"}));
  EXPECT_EQ(view.place, TwipsRect{});
  EXPECT_EQ(view.look.font_name, "Courier New");
  EXPECT_EQ(view.look.font_size, 8);
  EXPECT_EQ(view.look.back_color, 0xFFFFFF);
  EXPECT_EQ(editor.settings.AutosnapDistance, 240);
  EXPECT_EQ(editor.documents.Title(), "Pelmar VEX ()");
  EXPECT_TRUE(platform.calls.empty());
}

TEST_F(SessionTest, SettingsAreAppliedAndRepaired) {
  SettingsRecord r = Stored();
  r.WindowState = 5;
  r.FontSize = 11;
  r.ForeColor = r.BackColor = Rgb(255, 0, 0);
  r.AlwaysOnTopFlag = true;
  r.AutosnapDistance = 100;
  Store(r);
  session.Start("-nomsg");
  EXPECT_EQ(view.state, 0);
  EXPECT_EQ(view.look.font_size, 8);
  EXPECT_EQ(view.look.fore_color, 0);
  EXPECT_EQ(editor.settings.AutosnapDistance, 100);
  EXPECT_EQ(std::ranges::count(view.calls, "config"), 0);
  EXPECT_EQ(std::ranges::count(view.calls, "top"), 1);
  for (const auto& [size, expected] :
       {std::pair{8, 8}, {10, 10}, {12, 12}, {14, 14}, {17, 17}, {24, 24}, {0, 8}, {25, 8}})
    EXPECT_EQ((view.SetEditorFontSize(size), view.look.font_size), expected);
}

TEST_F(SessionTest, TextComesFromTheRecoveryFileOrTheClipboard) {
  const std::string longest(64000, 'r');
  const std::tuple<std::optional<std::string>, std::optional<std::string>, std::string> cases[] = {
      {longest, "clip", longest},
      {longest + 'r', "clip", "clip"},
      {longest + 'r', std::nullopt, ""},
      {"", "clip", "clip"},
      {std::nullopt, std::string(70000, 'c'), std::string(70000, 'c')},  // no length test here
  };
  for (const auto& [recovery, clipboard, text] : cases) {
    ScriptedPlatform system;
    if (recovery) system.files[kRecovery] = *recovery;
    system.clipboard = clipboard;
    Desk one(system);
    one.session.Start("");
    EXPECT_TRUE(one.editor.text.Text() == text) << text.size();
    EXPECT_EQ(one.editor.documents.Title(), "Pelmar VEX ()");
    EXPECT_EQ(one.editor.documents.UnsavedCount(), 0);
    EXPECT_TRUE(system.calls.empty());
  }
}

TEST_F(SessionTest, CommandTails) {
  const std::tuple<std::string, bool, std::string> cases[] = {
      {"", false, "main"},
      {"", true, "start"},
      {"-nomsg", true, "main"},
      {"-CALC", false, "accessory 1"},
      {"-calc", true, "accessory 1"},
      {"-NOTE", false, "accessory 2"},
      {"-Browser", false, "accessory 3"},
      {"/a.txt", true, "main"},
  };
  for (const auto& [tail, show_start, shown] : cases) {
    ScriptedPlatform system;
    SettingsRecord r = Stored();
    r.ShowStart = show_start;
    system.files = {{"/a.txt", "file"}, {kRecovery, "recovered"}, {kSettings, SettingsBytes(r)}};
    Desk one(system);
    one.session.Start(tail);
    std::erase(one.view.calls, "recent");  // the file that was opened, behind the last step
    EXPECT_EQ(one.view.calls.back(), shown) << tail;
    EXPECT_EQ(one.editor.text.Text(), tail == "/a.txt" ? "file" : "recovered");
  }
  Store(Stored());
  platform.answers = {Answer::kOk};
  session.Start("-CALC x");  // anything behind a switch makes it a file's name
  EXPECT_EQ(platform.calls.back(), "message 0 \"Soubor -CALC x nenalezen!\" \"Soubor\"");
  EXPECT_EQ(session.Mode(), StartMode::kEditor);
}

TEST_F(SessionTest, CloseWritesTheFilesBeforeItAsks) {
  platform.files[kSettings] = std::string(200, 'T');
  editor.text.SetText("text\r\n");
  view.place = {150, 300, 9000, 6000};
  view.state = 2;
  view.look = {"Font", Rgb(1, 1, 1), Rgb(2, 2, 2), 11.6, true, false};
  editor.documents.SwitchTo(2);
  editor.text.SetText("second");
  platform.answers = {Answer::kNo, Answer::kYes};
  EXPECT_FALSE(session.Close());
  EXPECT_EQ(platform.TakeCalls(), (Calls{"write /install/autosave_pelmar_vex.txt",
                                         "write /install/autosave_all_files.txt", "write /install/pelmar.ini",
                                         "message 52 \"2 neuložené zněněné soubory! Opravdu konec?\" \"Konec\""}));
  EXPECT_EQ(platform.files[kRecovery], "second");
  EXPECT_EQ(platform.files[kAllFiles], AllFilesText(editor.documents));
  SettingsRecord r;
  r.Left = 150;
  r.Top = 300;
  r.Width = 9000;
  r.Height = 6000;
  r.WindowState = 2;
  r.FontName = "Font";
  r.ForeColor = Rgb(1, 1, 1);
  r.BackColor = Rgb(2, 2, 2);
  r.FontSize = 12;
  r.FontBold = true;
  const std::string bytes = SettingsBytes(r);
  EXPECT_EQ(platform.files[kSettings], bytes + std::string(200 - bytes.size(), 'T'));  // the old tail stays
  EXPECT_TRUE(session.Close());
}

TEST_F(SessionTest, CloseWithoutChangesAsksNothingAndOneThatCannotWriteIsARuntimeError) {
  Store(Stored());
  platform.files[kRecovery] = "restored";
  session.Start("");
  EXPECT_TRUE(session.Close());
  EXPECT_EQ(platform.files[kRecovery], "restored");
  platform.TakeCalls();
  platform.write_errors[kRecovery] = EROFS;
  editor.text.SetText("changed");
  try {
    session.Close();
    ADD_FAILURE();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), EROFS);
  }
  EXPECT_EQ(platform.calls, (Calls{"write /install/autosave_pelmar_vex.txt"}));
}

TEST_F(SessionTest, ConfigStoresAllButTheWindowsState) {
  SettingsRecord r = Stored();
  r.UserName.clear();
  r.WindowState = 2;
  Store(r);
  desk.config = [this] {
    editor.settings.UserName = "Eva";
    view.state = 1;
    session.StoreSettings(false);
  };
  session.Start("");
  EXPECT_EQ(ReadSettings(platform.files[kSettings]).UserName, "Eva");
  EXPECT_EQ(ReadSettings(platform.files[kSettings]).WindowState, 2);
}

TEST(TerminalAnswer, OneOfTwoSwitchesAndNothingBesideIt) {
  const auto answers = [](std::vector<std::string> words) {
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    return TerminalAnswer(arguments).has_value();
  };
  std::string version = "--version";
  char* const asked = version.data();
  EXPECT_EQ(TerminalAnswer({&asked, 1}), "Pelmar VEX 8.9.2.1b CZ\n");
  EXPECT_TRUE(answers({"--help"}));
  for (const Calls& tail : {Calls{}, {""}, {"--HELP"}, {"-h"}, {"--help", "x"}, {"x", "--version"}, {"--version "}})
    EXPECT_FALSE(answers(tail));
}

}  // namespace
}  // namespace pelmar
