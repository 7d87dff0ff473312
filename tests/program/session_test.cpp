#include "program/session.h"

#include <gtest/gtest.h>

#include "platform/runtime_error.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

constexpr const char* kRecovery = "/install/autosave_pelmar_vex.txt";
constexpr const char* kSettings = "/install/pelmar.ini";

// The editor with a main window that has no screen. `view.calls` lists the calls of the window and of the start.
struct PlainProgram {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  PlainView view;
  std::function<void()> config = [] {};
  Session session{
      view,
      {.show_config =
           [this] {
             view.calls.push_back("config");
             config();
           },
       .show_main = [this] { view.calls.push_back("main"); },
       .show_start = [this] { view.calls.push_back("start"); },
       .show_accessory = [this](StartMode mode) { view.calls.push_back(std::to_string(static_cast<int>(mode))); }},
      editor,
      editor.files};
  Listening recent{editor.files.recent.changed.Add([this] { view.calls.push_back("recent"); })};

  void Start(std::string_view tail = "") {
    session.Load();
    session.Act(tail);
  }
};

// Width, height, top, left, always on top, font name, colour of text and background, font size,
// bold, italic, user name, e-mail, show Start, autosnap distance, password, recent files.
const SettingsRecord kStored{9000,  6000,  300,   150,      false, "Font", 1,  2, 12,
                             false, false, "Jan", "j@x.cz", false, 0,      "", {}};

struct SessionTest : testing::Test, PlainProgram {};

using Calls = std::vector<std::string>;

TEST_F(SessionTest, AFirstStartAsksForTheProfileAndUsesTheDefaults) {
  Start();
  EXPECT_EQ(view.calls, (Calls{"colors", "recent", "place", "state", "font", "colors", "size", "bold", "no bold mark",
                               "italic", "no italic mark", "config", "not top", "main"}));
  EXPECT_EQ(editor.documents.Title(), "Pelmar VEX ()");
  EXPECT_EQ(Described(view.look), "Courier New 8 #000000 #FFFFFF");
  EXPECT_EQ(editor.settings.AutosnapDistance, 240);
}

TEST_F(SessionTest, TheProfileIsStoredAtOnceButNotTheWindowsState) {
  config = [this] {
    editor.settings.UserName = "Eva";
    view.state = WindowMode::kMinimised;
    session.StoreSettings();
  };
  Start();
  EXPECT_EQ(platform.calls, Calls{std::string("write ") + kSettings});
  EXPECT_EQ(ReadSettings(platform.files[kSettings]).UserName, "Eva");
  EXPECT_EQ(ReadSettings(platform.files[kSettings]).WindowState, 0);
}

TEST_F(SessionTest, StoredSettingsAreAppliedInOrder) {
  SettingsRecord r = kStored;
  r.FontBold = r.FontItalic = r.AlwaysOnTopFlag = true;
  r.AutosnapDistance = 2'000'000'000;
  platform.files[kSettings] = SettingsBytes(r);
  Start("-nomsg");
  EXPECT_EQ(view.calls, (Calls{"colors", "recent", "place", "state", "font", "colors", "size", "bold", "bold mark",
                               "italic", "italic mark", "top", "main"}));
  EXPECT_EQ(Described(view.look), "Font 12 bold italic #010000 #020000");
  EXPECT_EQ(view.place, (TwipsRect{150, 300, 9000, 6000}));
  EXPECT_EQ(editor.settings.AutosnapDistance, 2'000'000'000);
}

TEST_F(SessionTest, ImpossibleSettingsAreReplacedByDefaults) {
  SettingsRecord r = kStored;
  r.FontSize = 11;
  r.ForeColor = r.BackColor;
  platform.files[kSettings] = SettingsBytes(r);
  Start();
  EXPECT_EQ(Described(view.look), "Font 8 #000000 #FFFFFF");
}

TEST_F(SessionTest, AnUnknownWindowStateIsReplacedByNormal) {
  for (const auto& [stored, applied] : {std::pair{-1, 0}, {0, 0}, {1, 1}, {2, 2}, {3, 0}}) {
    SettingsRecord r = kStored;
    r.WindowState = stored;
    platform.files[kSettings] = SettingsBytes(r);
    session.Load();
    EXPECT_EQ(static_cast<int>(view.state), applied) << stored;
  }
}

TEST(Session, TheTextComesFromTheRecoveryFileOrTheClipboard) {
  const std::string longest(64000, 'r'), longer(70000, 'c');
  using Text = std::optional<std::string>;
  const std::tuple<Text, Text, std::string> cases[] = {
      {longest, "clip", longest},
      {longest + 'r', "clip", "clip"},
      {longest + 'r', std::nullopt, ""},
      {"", "clip", "clip"},
      {std::nullopt, longer, longer}};  // the clipboard's text has no limit
  for (const auto& [recovery, clipboard, text] : cases) {
    PlainProgram one;
    if (recovery) one.platform.files[kRecovery] = *recovery;
    one.platform.clipboard = clipboard;
    one.Start();
    EXPECT_EQ(one.editor.text.Text().substr(0, 10), text.substr(0, 10));
    EXPECT_EQ(one.editor.text.Size(), text.size());
    EXPECT_TRUE(one.session.Close());  // without a question, because loading a text changes nothing
  }
}

TEST_F(SessionTest, AClipboardThatComesLateGoesIntoAnUnchangedDocument) {
  session.Load();
  platform.clipboard = "late";
  session.TakeLateClipboard();
  EXPECT_EQ(editor.text.Text(), "late");
  EXPECT_EQ(editor.documents.Title(), "Pelmar VEX ()");
}

TEST_F(SessionTest, AClipboardThatComesLateStaysOutOfAnEmptyFile) {
  platform.files["/empty.txt"] = "";
  Start("/empty.txt");
  platform.clipboard = "late";
  session.TakeLateClipboard();
  EXPECT_EQ(editor.text.Text(), "");
  EXPECT_EQ(editor.documents.CurrentPath(), "/empty.txt");
}

TEST(Session, TheCommandLineChoosesTheWindow) {
  const std::tuple<const char*, bool, const char*> cases[] = {
      {"", false, "main"},   {"", true, "start"},      {"-nomsg", true, "main"},  {"-calc", true, "1"},
      {"-NOTE", false, "2"}, {"-Browser", false, "3"}, {"/a.txt", true, "recent"}};  // called after "main"
  for (const auto& [tail, show_start, shown] : cases) {
    PlainProgram one;
    SettingsRecord r = kStored;
    r.ShowStart = show_start;
    one.platform.files = {{"/a.txt", "file"}, {kRecovery, "recovered"}, {kSettings, SettingsBytes(r)}};
    one.Start(tail);
    EXPECT_EQ(one.view.calls.back(), shown) << tail;
    EXPECT_EQ(one.editor.text.Text(), tail[0] == '/' ? "file" : "recovered") << tail;
  }
}

TEST_F(SessionTest, ASwitchWithTextAfterItIsAFileName) {
  platform.answers = {Answer::kOk};
  Start("-CALC x");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Soubor -CALC x nenalezen!\" \"Soubor\"");
}

TEST_F(SessionTest, ClosingWritesTheFilesBeforeItAsks) {
  editor.text.SetText("text\r\n");
  editor.documents.SwitchTo(2);
  editor.text.SetText("second");
  platform.answers = {Answer::kNo};
  EXPECT_FALSE(session.Close());
  EXPECT_EQ(platform.calls, (Calls{"write /install/autosave_pelmar_vex.txt", "write /install/autosave_all_files.txt",
                                   "write /install/pelmar.ini",
                                   "message 52 \"2 neuložené zněněné soubory! Opravdu konec?\" \"Konec\""}));
  EXPECT_EQ(platform.files[kRecovery], "second");
  EXPECT_EQ(platform.files["/install/autosave_all_files.txt"], AllFilesText(editor.documents));
  platform.answers = {Answer::kYes};
  EXPECT_TRUE(session.Close());
}

TEST_F(SessionTest, ClosingStoresPlaceStateAndLookOverTheOldSettings) {
  platform.files[kSettings] = std::string(200, 'T');
  view.place = {150, 300, 9000, 6000};  // as in kStored, except for state and bold
  view.state = WindowMode::kMaximised;
  view.look = {"Font", 1, 2, 11.6, true, false};
  EXPECT_TRUE(session.Close());
  SettingsRecord r = kStored;
  r.UserName = r.UserEmail = "";
  r.WindowState = 2;
  r.FontBold = true;
  const std::string bytes = SettingsBytes(r);
  EXPECT_EQ(platform.files[kSettings], bytes + std::string(200 - bytes.size(), 'T'));  // the rest of the old file stays
}

TEST_F(SessionTest, ClosingFailsIfAFileCannotBeWritten) {
  platform.write_errors[kRecovery] = EROFS;
  try {
    session.Close();
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_STREQ(error.what(), "Soubor /install/autosave_pelmar_vex.txt nelze zapsat: disk je jen pro čtení");
  }
}

}  // namespace
}  // namespace pelmar
