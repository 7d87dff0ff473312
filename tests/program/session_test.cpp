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
  const struct {
    std::optional<std::size_t> recovery;  // its length
    std::optional<std::string> clipboard;
    std::string expected;
  } cases[] = {
      {64000, "clip", std::string(64000, 'r')},
      {64001, "clip", "clip"},
      {64001, std::nullopt, ""},
      {0, "clip", "clip"},
      {std::nullopt, std::string(70000, 'c'), std::string(70000, 'c')},  // no length test here
  };
  for (const auto& c : cases) {
    ScriptedPlatform system;
    if (c.recovery) system.files[kRecovery] = std::string(*c.recovery, 'r');
    system.clipboard = c.clipboard;
    Desk one(system);
    one.session.Start("");
    EXPECT_EQ(one.editor.text.Text() == c.expected, true) << c.recovery.value_or(1);
    EXPECT_EQ(one.editor.documents.Title(), "Pelmar VEX ()");
    EXPECT_EQ(one.editor.documents.UnsavedCount(), 0);
    EXPECT_TRUE(system.calls.empty());
  }
}

TEST_F(SessionTest, CommandTails) {
  const struct {
    std::string tail, shown;
    bool show_start = false;
  } cases[] = {
      {"", "main"},
      {"", "start", true},
      {"-NOMSG", "main", true},
      {"-nomsg", "main", true},
      {"-CALC", "accessory 1"},
      {"-calc", "accessory 1", true},
      {"-NOTE", "accessory 2"},
      {"-Browser", "accessory 3"},
      {"/a.txt", "main", true},
  };
  for (const auto& c : cases) {
    ScriptedPlatform system;
    system.files["/a.txt"] = "file";
    system.files[kRecovery] = "recovered";
    SettingsRecord r = Stored();
    r.ShowStart = c.show_start;
    system.files[kSettings] = SettingsBytes(r);
    Desk one(system);
    one.session.Start(c.tail);
    std::erase(one.view.calls, "recent");  // the file that was opened, behind the last step
    EXPECT_EQ(one.view.calls.back(), c.shown) << c.tail;
    EXPECT_EQ(one.editor.text.Text(), c.tail == "/a.txt" ? "file" : "recovered");
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
  view.look = {"Font", Rgb(1, 1, 1), Rgb(2, 2, 2), 11.6, true, true};
  editor.documents.SwitchTo(2);
  editor.text.SetText("second");
  platform.answers = {Answer::kNo};
  EXPECT_FALSE(session.Close());
  EXPECT_EQ(platform.TakeCalls(), (Calls{"write /install/autosave_pelmar_vex.txt",
                                         "write /install/autosave_all_files.txt", "write /install/pelmar.ini",
                                         "message 52 \"2 neuložené zněněné soubory! Opravdu konec?\" \"Konec\""}));
  EXPECT_EQ(platform.files[kRecovery], "second");
  EXPECT_EQ(platform.files[kAllFiles].substr(0, 40), "Soubor:\r\ntext\r\n\r\n\r\nSoubor:\r\nsecond\r\n\r\nSo");
  const std::string& ini = platform.files[kSettings];
  EXPECT_EQ(ini.size(), 200u);  // the old tail stays
  EXPECT_EQ(ini.back(), 'T');
  const SettingsRecord stored = ReadSettings(ini);
  EXPECT_EQ(stored.Top, 300);
  EXPECT_EQ(stored.WindowState, 2);
  EXPECT_EQ(stored.FontSize, 12);
  EXPECT_TRUE(stored.FontBold);
  platform.answers = {Answer::kYes};
  EXPECT_TRUE(session.Close());
}

TEST_F(SessionTest, CloseWithoutChangesAsksNothing) {
  Store(Stored());
  platform.files[kRecovery] = "restored";
  session.Start("");
  EXPECT_TRUE(session.Close());
  EXPECT_EQ(platform.files[kRecovery], "restored");
}

TEST_F(SessionTest, AReadOnlyInstallFolderIsARuntimeErrorWithoutAQuestion) {
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
  for (const char* one : {"--help", "--version"}) EXPECT_TRUE(answers({one})) << one;
  for (const Calls& tail : {Calls{}, {""}, {"--HELP"}, {"-h"}, {"--help", "x"}, {"x", "--version"}, {"--version "}})
    EXPECT_FALSE(answers(tail));
}

}  // namespace
}  // namespace pelmar
