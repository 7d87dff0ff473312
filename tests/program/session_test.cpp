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

// The editor under a plain window, whose calls and those of the start's doors stand in one list.
struct Desk {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  PlainView view;
  std::function<void()> config = [] {};
  Session session{
      view,
      {.show_config = [this] { view.calls.push_back("config"), config(); },
       .show_main = [this] { view.calls.push_back("main"); },
       .show_start = [this] { view.calls.push_back("start"); },
       .show_accessory = [this](StartMode mode) { view.calls.push_back(std::to_string(static_cast<int>(mode))); }},
      editor,
      editor.files};
  Listening recent{editor.files.recent.changed.Add([this] { view.calls.push_back("recent"); })};

  // The steps of the start, in order, and what it leaves.
  std::string Start(std::string_view tail) {
    session.Load(), session.Act(tail);
    std::string told;
    for (const std::string& call : view.calls) told += call + ", ";
    told += editor.documents.Title() + ", " + Told(view.look);
    for (const int part : {view.place.left, view.place.top, view.place.width, view.place.height,
                           static_cast<int>(view.state), editor.settings.AutosnapDistance})
      told += ' ' + std::to_string(part);
    return told;
  }
};

// In the order of the file: 9,000 by 6,000 twips at 150 from the left and 300 from the top.
const SettingsRecord kStored{9000,  6000,  300,   150,      false, "Font", 1,  2, 12,
                             false, false, "Jan", "j@x.cz", false, 0,      "", {}};

struct SessionTest : testing::Test, Desk {};

TEST_F(SessionTest, AFirstStartRunsTheStepsInOrder) {
  config = [this] {
    editor.settings.UserName = "Eva";
    view.state = WindowMode::kMinimised;
    session.StoreSettings();
  };
  EXPECT_EQ(Start(""),
            "colors, recent, place, state, font, colors, size, bold, no bold mark, italic, no italic mark, config, "
            "not top, main, Pelmar VEX (), Courier New 8 #000000 #FFFFFF 0 0 0 0 1 240");
  EXPECT_EQ(platform.calls, std::vector<std::string>{std::string("write ") + kSettings});
  const SettingsRecord stored = ReadSettings(platform.files[kSettings]);
  EXPECT_EQ(stored.UserName + std::to_string(stored.WindowState), "Eva0");  // all but the window's state
}

TEST_F(SessionTest, SettingsAreAppliedAndRepaired) {
  SettingsRecord r = kStored;
  r.WindowState = 5;
  r.FontSize = 11;
  r.ForeColor = r.BackColor;
  r.FontBold = r.FontItalic = r.AlwaysOnTopFlag = true;
  r.AutosnapDistance = 100;
  platform.files[kSettings] = SettingsBytes(r);
  EXPECT_EQ(Start("-nomsg"),
            "colors, recent, place, state, font, colors, size, bold, bold mark, italic, italic mark, top, main, "
            "Pelmar VEX (), Font 8 bold italic #000000 #FFFFFF 150 300 9000 6000 0 100");
  for (const auto& [size, expected] : {std::pair{10, 10}, {24, 24}, {0, 8}, {25, 8}})
    EXPECT_EQ((view.SetEditorFontSize(size), view.look.font_size), expected);
}

TEST(Session, TextComesFromTheRecoveryFileOrTheClipboard) {
  const std::string longest(64000, 'r'), longer(70000, 'c');
  using Text = std::optional<std::string>;
  const std::tuple<Text, Text, std::string> cases[] = {
      {longest, "clip", longest},
      {longest + 'r', "clip", "clip"},
      {longest + 'r', std::nullopt, ""},
      {"", "clip", "clip"},
      {std::nullopt, longer, longer}};  // no length test of the clipboard
  for (const auto& [recovery, clipboard, text] : cases) {
    Desk one;
    if (recovery) one.platform.files[kRecovery] = *recovery;
    one.platform.clipboard = clipboard;
    one.session.Load(), one.session.Act("");
    EXPECT_TRUE(one.editor.text.Text() == text) << text.size();
    EXPECT_TRUE(one.session.Close());  // without a question: what came is no change
  }
}

TEST(Session, AClipboardThatIsToldLaterGoesIntoAnUntouchedDocument) {
  const std::pair<const char*, std::function<void(Desk&)>> cases[] = {
      {"late", [](Desk&) {}},
      {"", [](Desk& one) { one.editor.text.SetText("typed"), one.editor.text.SetText(""); }},
      {"", [](Desk& one) { one.editor.documents.SwitchTo(2); }},
      {"", [](Desk& one) { one.session.Act("/empty.txt"); }}};
  for (const auto& [text, act] : cases) {
    Desk one;
    one.platform.files["/empty.txt"] = "";
    one.session.Load();
    act(one);
    one.platform.clipboard = "late";
    const std::string title = one.editor.documents.Title();
    one.session.TakeLateClipboard();
    EXPECT_EQ(one.editor.text.Text(), text);
    EXPECT_EQ(one.editor.documents.Title(), title);
  }
}

TEST(Session, TheCommandTailTellsWhatIsShown) {
  const std::tuple<const char*, bool, const char*> cases[] = {
      {"", false, "main"},   {"", true, "start"},      {"-nomsg", true, "main"},  {"-calc", true, "1"},
      {"-NOTE", false, "2"}, {"-Browser", false, "3"}, {"/a.txt", true, "recent"}};  // main before it
  for (const auto& [tail, show_start, shown] : cases) {
    Desk one;
    SettingsRecord r = kStored;
    r.ShowStart = show_start;
    one.platform.files = {{"/a.txt", "file"}, {kRecovery, "recovered"}, {kSettings, SettingsBytes(r)}};
    one.session.Load(), one.session.Act(tail);
    EXPECT_EQ(one.view.calls.back(), shown) << tail;
    EXPECT_EQ(one.editor.text.Text(), tail[0] == '/' ? "file" : "recovered");
  }
  Desk one;
  one.platform.answers = {Answer::kOk};
  one.session.Load(), one.session.Act("-CALC x");  // anything behind a switch makes it a file's name
  EXPECT_EQ(one.platform.calls.back(), "message 0 \"Soubor -CALC x nenalezen!\" \"Soubor\"");
}

TEST_F(SessionTest, CloseWritesTheFilesBeforeItAsks) {
  platform.files[kSettings] = std::string(200, 'T');
  editor.text.SetText("text\r\n");
  view.place = {150, 300, 9000, 6000};  // all as kStored has it
  view.state = WindowMode::kMaximised;
  view.look = {"Font", 1, 2, 11.6, true, false};
  editor.documents.SwitchTo(2);
  editor.text.SetText("second");
  platform.answers = {Answer::kNo, Answer::kYes};
  EXPECT_FALSE(session.Close());
  EXPECT_EQ(platform.TakeCalls(),
            (std::vector<std::string>{"write /install/autosave_pelmar_vex.txt", "write /install/autosave_all_files.txt",
                                      "write /install/pelmar.ini",
                                      "message 52 \"2 neuložené zněněné soubory! Opravdu konec?\" \"Konec\""}));
  EXPECT_EQ(platform.files[kRecovery], "second");
  EXPECT_EQ(platform.files["/install/autosave_all_files.txt"], AllFilesText(editor.documents));
  SettingsRecord r = kStored;
  r.UserName = r.UserEmail = "";
  r.WindowState = 2;
  r.FontBold = true;
  const std::string bytes = SettingsBytes(r);
  EXPECT_EQ(platform.files[kSettings], bytes + std::string(200 - bytes.size(), 'T'));  // the old tail stays
  EXPECT_TRUE(session.Close());
  platform.write_errors[kRecovery] = EROFS;
  EXPECT_THROW(session.Close(), RuntimeError);
}

}  // namespace
}  // namespace pelmar
