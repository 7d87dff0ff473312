// The shell's routines: paths, texts, help, status, the places of windows and the settings record.
#include <gtest/gtest.h>

#include "platform/color.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "shell/common.h"
#include "shell/file_number.h"
#include "shell/help.h"
#include "shell/menu_table.h"
#include "shell/profile.h"
#include "shell/settings_record.h"
#include "shell/status.h"
#include "shell/terminal_answer.h"
#include "shell/version.h"
#include "shell/window_geometry.h"
#include "support/marked_text.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(FilePart, SplitsAtTheLastSeparatorAndTheLastDot) {
  const auto part = [](const char* path, int number) {
    try {
      return FilePart(path, number);
    } catch (const RuntimeError&) {
      return std::string("error");
    }
  };
  // required: without a dot the extension is the whole name, and there is no name
  const struct {
    const char *path, *folder, *name, *extension;
  } cases[] = {
      {"C:\\a\\b.c.txt", "C:\\a\\", "b.c", "txt"},
      {"/a.b/.profile", "/a.b/", "", "profile"},
      {"/a\\b/c\\d.e", "/a\\b/c\\", "d", "e"},
      {"/a/b.", "/a/", "b", ""},
      {"C:\\a\\b", "C:\\a\\", "error", "b"},
      {"readme.txt", "readme.txt", "error", ""},
      {"/a.b/", "/a.b/", "error", ""},
      {"", "error", "error", "error"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(part(c.path, 1), c.folder) << c.path;
    EXPECT_EQ(part(c.path, 2), c.name) << c.path;
    EXPECT_EQ(part(c.path, 3), c.extension) << c.path;
  }
}

TEST(Paths, MayHaveSlashesOrBackslashesAndASeparatorAtTheEnd) {
  ScriptedPlatform platform;
  platform.files["/a.txt"] = "";
  for (const char* path : {"/a.txt", "/a.txt/"}) EXPECT_TRUE(FileExists(FileNumber(), platform, path));
  for (const char* folder : {"C:\\x", "C:\\x\\"}) EXPECT_EQ(JoinPath(folder, "a.txt"), "C:\\x\\a.txt");
}

TEST(CommonRoutines, FormatNumbersCountLineFeedsAndChangeLetters) {
  EXPECT_EQ(ColorToHex(0x030201), "#010203");
  EXPECT_EQ(ColorToHex(Rgb(10, 0, 200)), "#0A00C8");
  EXPECT_EQ(CountLineFeeds("a\rb\n\n"), 2);
  EXPECT_EQ(NumberWithSignBlank(-3), "-3");
  // Letters of other languages stay.
  EXPECT_EQ(StripDiacritics("ÁČĎÉĚÍŇÓŘŠŤŮÚÝŽ áčďéěíňóřšťůúýž äöüĺľŕ"_w), "ACDEEINORSTUUYZ acdeeinorstuuyz äöüĺľŕ"_w);
  int n = 0;
  EXPECT_EQ(RandomCase("šŠ1š-"_w, [&] { return n++ % 2 == 0 ? 0.0 : 0.5; }), "šŠ1Š-"_w);
}

TEST(MenuItems, StandInTheHelpWithTheirKeys) {
  const std::string help = Content(PELMAR_HELP);
  for (const MenuItem& item : MenuItems()) {
    std::string shown(item.caption);
    std::erase(shown, '&');  // nothing is left of "&&"
    if (!item.shortcut.empty()) shown += " (" + std::string(item.shortcut) + ")";
    EXPECT_NE(help.find(shown), std::string::npos) << item.name << ": " << shown;
  }
}

std::string PlainReplace(std::string s, const std::string& find, const std::string& with) {
  for (std::size_t from = 0; from <= s.size(); ++from) {
    from = s.find(find, from);
    if (from == std::string::npos) break;
    s.replace(from, find.size(), with);
  }
  return s;
}

// required: the search continues at the second character of each replacement, so "aaaa" without "a" is "aa"
TEST(ReplaceAllText, EqualsThePlainLoopOnRandomTextsAndAlwaysEnds) {
  EXPECT_EQ(ReplaceAllText("aba", "a", "aa"), "aabaa");
  RandomSource random(3);
  for (int round = 0; round < 3000; ++round) {
    const std::string text = random.Text(20, "ab"), find = random.Text(3, "ab"), with = random.Text(3, "ab");
    if (find.empty() || with.find(find, 1) != std::string::npos) continue;  // the plain loop would never end
    ASSERT_EQ(ReplaceAllText(text, find, with), PlainReplace(text, find, with)) << text << ' ' << find << ' ' << with;
  }
}

TEST(Help, SearchesWithoutRegardToCaseAsLongAsThePersonWants) {
  const auto question = [](int place) {
    return "message 52 \"Nalezeno na " + std::to_string(place) + " místě, pokračovat ?\" \"hledání\"; ";
  };
  const struct {
    std::string_view term;
    std::deque<Answer> answers;
    std::string calls, document;
  } cases[] = {
      {"žába"_w, {Answer::kYes, Answer::kYes}, question(1) + question(8), "Žába a [žába|.. KONEC"},
      {".", {Answer::kYes, Answer::kYes}, question(12) + question(13), "Žába a žába.[.| KONEC"},
      {"ŽÁBA"_w, {Answer::kNo}, question(1), "[Žába| a žába.. KONEC"},
      {"není"_w, {}, "", "|Žába a žába.. KONEC"},
  };
  for (const auto& c : cases) {
    ScriptedPlatform platform;
    platform.answers = c.answers;
    TextBuffer text;
    PutMarked(text, "|Žába a žába.. KONEC");
    SearchHelp(text, c.term, platform);
    EXPECT_EQ(platform.TakeCallsInOneLine(), c.calls);
    EXPECT_EQ(Marked(text), c.document);
  }
}

TEST(TerminalAnswer, AnswersASwitchWithoutOtherArguments) {
  char help[] = "--help", version[] = "--version";
  const auto answer = [](std::vector<char*> arguments) { return TerminalAnswer(arguments).value_or("none"); };
  EXPECT_TRUE(answer({help}).starts_with("Použití: pelmar-vex [SOUBOR]\n"));
  EXPECT_EQ(answer({version}), "Pelmar VEX " PELMAR_VERSION "\n");
  EXPECT_EQ(answer({help, version}), "none");
}

TEST(Profile, NeedsANameAndAnAddressAndStoresThePasswordUnchecked) {
  EXPECT_EQ(CheckProfile({"", "e", false, "", ""}).message, "Vyplňte prosím své jméno.");
  EXPECT_EQ(CheckProfile({"n", "", false, "", ""}).message, "Vyplňte prosím E-m@il.");
  EXPECT_EQ(CheckProfile({"n", "e", true, "a", "b"}).message, "Zkontrolujete zprávnot zadaného hesla.");
  const ProfileFields fields{"n", "e", false, "a", "b"};  // required: without a comparison
  EXPECT_EQ(CheckProfile(fields).field, ProfileField::kNone);
  SettingsRecord settings;
  StoreProfile(fields, settings);
  EXPECT_EQ(settings.UserName + settings.UserEmail + settings.LockPassword, "nea");
}

struct StatusTest : testing::Test {
  TextBuffer box;

  void ExpectPanels(const char* marked, const char* length, const char* position, const char* lines) {
    PutMarked(box, marked);
    const PanelTexts panels = ComputePanels(box, true);
    EXPECT_EQ(ToUtf8(panels.length), length) << marked;
    EXPECT_EQ(ToUtf8(panels.position), position) << marked;
    EXPECT_EQ(ToUtf8(panels.lines), lines) << marked;
  }
};

TEST_F(StatusTest, PanelsDescribeTheTextOrTheSelection) {
  ExpectPanels("|", "Počet znaků : 0", "Pozice kurzoru : 0", "Řádek 0 z 0");
  ExpectPanels("a¶b\rc\n|\n", "Počet znaků : 8", "Pozice kurzoru : 7", "Řádek 2 z 3");
  ExpectPanels("|a¶[b¶c", "Znaky Výběru : 3", "Pozice výběru : 0", "Řádeky 0-1 z 2");
  EXPECT_EQ(ComputePanels(box, false).lines, "(OFF)");
}

TEST_F(StatusTest, TheContentIsTheStartOfTheSelectionOrTheClipboard) {
  EXPECT_EQ(ComputeContent(box, std::nullopt), "Výběr : "_w);
  EXPECT_EQ(ComputeContent(box, "x"), "Schránka : x"_w);
  PutMarked(box, "c[" + std::string(59, 'c') + "|¶");
  EXPECT_EQ(ComputeContent(box, "x"), std::string("Výběr : "_w) + std::string(50, 'c'));
}

TEST_F(StatusTest, MenuItemsDependOnPathClipboardTextAndSelection) {
  EXPECT_EQ(ComputeMenuState(box, "", std::nullopt), MenuState{});
  EXPECT_EQ(ComputeMenuState(box, "/a", ""), MenuState{.has_path = true});  // an empty clipboard counts as none
  PutMarked(box, "a|");
  EXPECT_EQ(ComputeMenuState(box, "", "x"), (MenuState{.has_clipboard = true, .has_text = true}));
  PutMarked(box, "[a|");
  EXPECT_EQ(ComputeMenuState(box, "", std::nullopt), (MenuState{.has_text = true, .has_selection = true}));
}

TEST(Snap, PullsWindowsToTheEdges) {
  const std::tuple<const char*, TwipsRect, TwipsRect> cases[] = {
      {"nearer than the distance", {1239, 739, 9000, 6000}, {1000, 500, 9000, 6000}},
      {"as far as the distance", {1240, 740, 9000, 6000}, {1240, 740, 9000, 6000}},
      {"right and bottom", {20700, 10500, 9000, 6000}, {20800, 10700, 9000, 6000}},
      {"almost as wide as the screen", {1100, 5500, 28600, 6000}, {1000, 5500, 28800, 6000}},
      {"almost as high", {6000, 600, 9000, 16000}, {6000, 500, 9000, 16200}},
  };
  for (const auto& [what, from, to] : cases) EXPECT_EQ(Snap(from, 240, {1000, 500, 28800, 16200}), to) << what;
}

TEST(PlaceRequests, StopWhileIgnoredAndBeginAgainAfterAChange) {
  PlaceRequests requests;
  const TwipsRect here{1, 0, 9, 9}, there{2, 0, 9, 9};
  for (int tick = 0; tick < 99; ++tick) EXPECT_EQ(requests.MayRequest(here, there), tick < 50) << tick;
  EXPECT_FALSE(requests.MayRequest(here, here));
  EXPECT_TRUE(requests.MayRequest(here, there));
}

// required: the sum counts panel 4 itself, so two widths alternate
TEST(SparePanelWidth, AlternatesOnceBothWidthsAreAboveZero) {
  std::array<int, kPanelCount> widths = {1500, 1500, 1500, 0, 500, 500, 500};
  EXPECT_EQ(SparePanelWidth(12420, widths), 6000);
  widths[3] = 6000;
  EXPECT_EQ(SparePanelWidth(12420, widths), std::nullopt);
  EXPECT_EQ(SparePanelWidth(12421, widths), 1);
  widths[3] = 1;
  EXPECT_EQ(SparePanelWidth(12421, widths), 6000);
}

std::string ShownLayout(const LayoutInput& in) {
  const LayoutResult out = ComputeLayout(in);
  const auto shown = [](const std::optional<int>& size) { return size ? std::to_string(*size) : "none"; };
  return "text=" + shown(out.text_width) + 'x' + shown(out.text_height) + '@' + shown(out.text_top) +
         " tabs=" + shown(out.tabs_width) + " panel4=" + shown(out.panel4_width) +
         " grow=" + shown(out.grow_outer_height);
}

TEST(Layout, LeavesRoomForTheVisibleBarsAndGrowsAWindowThatIsTooLow) {
  LayoutInput in{.outer_width = 12000, .inner_width = 11900, .inner_height = 8000, .toolbar_height = 500};
  in.bar_height = 300;
  in.panel_widths = {1000, 1000, 1000, 0, 500, 500, 500};
  EXPECT_EQ(ShownLayout(in), "text=11540x7210@500 tabs=11900 panel4=7080 grow=0");
  in.inner_height = 1069;
  EXPECT_EQ(ShownLayout(in), "text=11540x279@500 tabs=11900 panel4=7080 grow=1");
  in.bar_visible = false;
  EXPECT_EQ(ShownLayout(in), "text=11540x579@500 tabs=11900 panel4=7080 grow=0");
  in.inner_height = 0;
  EXPECT_EQ(ShownLayout(in), "text=11540x-490@500 tabs=11900 panel4=7080 grow=0");
  in.toolbar_visible = in.tabs_visible = false;
  in.inner_height = 269;
  EXPECT_EQ(ShownLayout(in), "text=11900x279@0 tabs=none panel4=7080 grow=1");
  in.minimised = true;
  EXPECT_EQ(ShownLayout(in), "text=nonexnone@0 tabs=none panel4=none grow=0");
}

SettingsRecord FullRecord() {
  // In the order of the file: place, on top, font and colours, user, start, snapping, password, files, state, lines.
  SettingsRecord r{12000, 9000,  -15,      1440, true, "P\xEDsmo", 0x030201, 0xFDFEFF, 14,  true,
                   false, "Jan", "j@x.cz", true, 300,  "tajn\xE9", {},       2,        true};
  for (std::size_t i = 0; i < r.RecentFiles.size(); ++i) r.RecentFiles[i] = "/soubor" + std::to_string(i) + ".txt";
  return r;
}

TEST(SettingsRecord, HasTheRequiredBytes) {
  EXPECT_EQ(SettingsBytes({}), std::string(71, '\0'));
  std::string expected(
      "\xE0\x2E\0\0\x28\x23\0\0\xF1\xFF\xFF\xFF\xA0\x05\0\0\xFF\xFF"  // the place, always on top
      "\5\0P\xEDsmo\1\2\3\0\xFF\xFE\xFD\0\x0E\xFF\xFF\0\0"            // the font and its colours
      "\3\0Jan\6\0j@x.cz\xFF\xFF\x2C\1\0\0\5\0tajn\xE9",
      18 + 7 + 8 + 5 + 5 + 8 + 2 + 4 + 7);
  for (int i = 0; i < 10; ++i) expected += std::string("\x0C\0/soubor", 9) + std::to_string(i) + ".txt";
  expected += std::string("\2\0\0\0\xFF\xFF", 6);
  EXPECT_EQ(SettingsBytes(FullRecord()), expected);
  EXPECT_EQ(ReadSettings(expected + "an old tail"), FullRecord());
}

TEST(SettingsRecord, HoldsPathsInTheCodePageOrAsUrls) {
  const std::pair<std::string, std::string> cases[] = {
      {"/žluť.txt", "/\x9Elu\x9D.txt"},
      {"/Ĺľ.txt", "/\xC5\xBE.txt"},  // "ž" in UTF-8
      {"/日.txt", "file:///%E6%97%A5.txt"},
  };
  for (const auto& [path, stored] : cases) {
    SettingsRecord r;
    r.RecentFiles[0] = path;
    const std::string bytes = SettingsBytes(r);
    EXPECT_NE(bytes.find(std::string{static_cast<char>(stored.size()), '\0'} + stored), std::string::npos) << path;
    EXPECT_EQ(ReadSettings(bytes).RecentFiles[0], path);
  }
}

// Cuts the file at each length: complete fields keep their values, the others are zero or empty.
TEST(SettingsRecord, ReadsFieldsBeyondTheEndOfTheFileAsZero) {
  std::string bytes = SettingsBytes(FullRecord());
  for (std::size_t length = 0; length <= bytes.size(); ++length) {
    const SettingsRecord r = ReadSettings(std::string_view(bytes).substr(0, length));
    EXPECT_EQ(r.Width, length >= 4 ? 12000 : 0) << length;
    EXPECT_EQ(r.FontSize, length >= 34 ? 14 : 0) << length;
    EXPECT_EQ(r.LineCounting, length == bytes.size()) << length;
  }
  // A length beyond the end gives an empty string, and nothing after it is read.
  bytes[18] = bytes[19] = '\xFF';
  EXPECT_EQ(ReadSettings(bytes), ReadSettings(bytes.substr(0, 18)));
}

}  // namespace
}  // namespace pelmar
