// Opens and saves the editor's document.
#include "files/files.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "files/dropped_files.h"
#include "files/outside_changes.h"
#include "support/document_state.h"
#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

using enum Answer;
using Calls = std::vector<std::string>;

const std::string kDialog =
    " \"Všechno (*.*)|*.*|jen text (*.txt)|*.txt|dávky (*.bat)|*.bat|Html dokument (*.html)|*.html|"
    "htm dokument (*.htm)|*.htm|ini soubor (*.ini)|*.ini\" 2";
const std::string kOpenDialog = "open" + kDialog, kSaveDialog = "save" + kDialog;

std::string MessageCall(int type, const std::string& text, const std::string& title = "Soubor") {
  return "message " + std::to_string(type) + " \"" + text + "\" \"" + title + '"';
}
std::string OverwriteCall(const std::string& path) {
  return MessageCall(52, "Opravdu uložit " + path + "?\r\nSoubor již existuje a bude přepsán!");
}

// The editor with a changed document of the file /a.txt. There are two more files.
struct FilesTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  Documents& documents = editor.documents;
  const DocumentState changed{
      .title = "(/a.txt)*", .tab = "a.txt", .tip = "/a.txt", .slot_path = "/a.txt", .unsaved = 1};

  FilesTest() {
    platform.files = {{"/a.txt", "saved"}, {"/b.txt", "b"}, {"/README", "r"}};
    editor.opener.OpenPath("/a.txt");
    PutMarked(editor.text, "[new|saved");
  }
  // Runs the command with this file chosen in its dialog and these answers. Returns the calls.
  Calls Run(const char* command, const std::optional<std::string>& chosen, const std::deque<Answer>& answers = {}) {
    platform.opens = platform.saves = {chosen};
    platform.answers = answers;
    platform.TakeCalls();
    editor.commands.Run(command);
    EXPECT_TRUE(platform.answers.empty()) << "not all questions were asked";
    return platform.TakeCalls();
  }
  void ExpectUntouched() const {
    EXPECT_EQ(Marked(editor.text), "[new|saved");
    EXPECT_EQ(StateOf(documents), changed);
    EXPECT_EQ(platform.files.at("/a.txt"), "saved");
    EXPECT_EQ(platform.files.at("/b.txt"), "b");
  }
};

TEST_F(FilesTest, ACancelledDialogDoesNothing) {
  for (const char* command : {"mnu_open_st", "mnuzesouboru"})
    EXPECT_EQ(Run(command, std::nullopt), Calls{kOpenDialog}) << command;
  for (const char* command : {"mnu_save_st", "mnukopsoub", "mnuulvyb"})
    EXPECT_EQ(Run(command, std::nullopt), Calls{kSaveDialog}) << command;
  ExpectUntouched();
}

TEST_F(FilesTest, ATextOfTwoEncodingsIsSavedOverAUtf8FileOnlyAfterAYes) {
  const std::string utf8 = "p\u0159", mixed = utf8 + "\xF8";
  editor.text.SetText(mixed);
  Run("mnu_save_st", "/new.txt");
  EXPECT_EQ(platform.files["/new.txt"], mixed);
  const std::pair<const char*, std::deque<Answer>> saves[] = {{"mnu_save_st", {kYes, kYes}},
                                                              {"Mnu_SaveFast", {kYes, kYes, kYes}}};
  for (const auto& [command, answers] : saves) {
    platform.files["/b.txt"] = utf8;
    Run(command, "/b.txt", {kNo});
    EXPECT_EQ(platform.files["/b.txt"], utf8) << command;
    Run(command, "/b.txt", answers);  // asks only once about the encodings
    EXPECT_EQ(platform.files["/b.txt"], mixed) << command;
  }
}

TEST_F(FilesTest, OpenReplacesTheDocumentWithoutAsking) {
  EXPECT_EQ(Run("mnu_open_st", "/b.txt"), (Calls{kOpenDialog, "recent /b.txt"}));
  EXPECT_EQ(Marked(editor.text), "|b");
  EXPECT_EQ(StateOf(documents), SavedAt("/b.txt"));
  EXPECT_EQ(Run("Recent", {}), Calls{"recent /a.txt"});  // required: the second file of the list
}

TEST_F(FilesTest, TheLimitOf64000BytesIsExact) {
  std::string full(64000, 'f');
  for (std::size_t i = 0; i < full.size(); ++i) full[i] = static_cast<char>(i);
  platform.files = {{"/př.txt", full}, {"/over.txt", full + 'o'}};
  editor.opener.OpenPath("/př.txt");
  EXPECT_EQ(StateOf(documents), SavedAt("/př.txt"));
  EXPECT_EQ(editor.opener.Preview("/př.txt"), full);
  platform.answers = {kOk};
  editor.opener.OpenPath("/over.txt");
  EXPECT_EQ(platform.calls.back(), MessageCall(0, "Nelze otevřít /over.txt, Soubor příliš velký"));
  EXPECT_EQ(StateOf(documents), SavedAt("/př.txt"));
  EXPECT_TRUE(editor.text.Text() == full);
  EXPECT_EQ(editor.opener.Preview("/over.txt"), "Není k dispozici"_w);
}

TEST_F(FilesTest, AFolderOrAnUnreadableFileIsReportedAsMissing) {
  platform.files["/dir/"] = "";
  platform.read_errors["/locked.txt"] = EACCES;
  for (const std::string path : {"/none.txt", "/dir", "/dir/", "/locked.txt", "\"/a.txt\"", ""}) {
    platform.answers = {kOk};
    editor.opener.OpenPath(path);
    EXPECT_EQ(platform.calls.back(), MessageCall(0, "Soubor " + path + " nenalezen!"));
    EXPECT_EQ(editor.opener.Preview(path), "Není k dispozici"_w) << path;
  }
  ExpectUntouched();
}

// required: text and path have changed already, and file number 1 stays open, so no other file can be opened or saved
TEST_F(FilesTest, OpeningANameWithoutADotFailsHalfwayAndLeavesTheFileOpen) {
  EXPECT_EQ(Run("mnu_open_st", "/README"), Calls{kOpenDialog});
  EXPECT_EQ(Marked(editor.text), "|r");
  EXPECT_EQ(documents.CurrentPath(), "/README");
  DocumentState expected = changed;
  expected.slot_path = "/README";
  EXPECT_EQ(StateOf(documents), expected);
  EXPECT_TRUE(editor.file_number.IsOpen());
  EXPECT_EQ(Run("mnu_open_st", "/b.txt", {kOk}).back(), MessageCall(0, "Soubor /b.txt nenalezen!"));
  EXPECT_EQ(editor.opener.Preview("/b.txt"), "Není k dispozici"_w);
  platform.answers = {kOk};
  editor.saver.SaveToPath("/b.txt");
  EXPECT_TRUE(platform.calls.back().starts_with("message 0 \"Chyba ukládání!"));
  EXPECT_EQ(platform.files["/b.txt"], "b");
}

TEST_F(FilesTest, DroppedFilesAreOpenedAfterAYesUntilNoTabIsFree) {
  for (const char* name : {"1", "2", "3", "4", "5", "6"}) platform.files[std::string("/") + name + ".txt"] = name;
  const Calls dropped = {"/1.txt", "/2.txt", "/README", "/3.txt", "/4.txt", "/5.txt", "/6.txt"};
  platform.answers = {kOk, kNo};
  OpenDropped(dropped, documents, editor.opener, platform);
  EXPECT_EQ(TextsOf(documents), "newsaved|||||");
  EXPECT_EQ(platform.calls.back(), MessageCall(52, "Opravdu otevřít soubor ?"));
  documents.SwitchTo(4);
  platform.answers = {kOk, kYes, kOk};
  platform.TakeCalls();
  OpenDropped(dropped, documents, editor.opener, platform);
  EXPECT_EQ(TextsOf(documents), "newsaved|3|4|1|2|");
  EXPECT_EQ(platform.calls.front(), MessageCall(0, "Bez přípony nelze otevřít:\r\n/README"));
  EXPECT_EQ(platform.calls.back(),
            MessageCall(0, "Není volná záložka, neotevřeny zůstaly soubory:\r\n/5.txt\r\n/6.txt"));
}

TEST_F(FilesTest, ReloadAsksBeforeChangesAreLost) {
  const std::string question =
      MessageCall(52, "Opravdu reload souboru ?\r\nZměny od posledního uložení \"/a.txt\" Budou ztraceny!", "Reload");
  EXPECT_EQ(Run("Mnu_Reload_File", {}, {kNo}), Calls{question});
  ExpectUntouched();
  EXPECT_EQ(Run("Mnu_Reload_File", {}, {kYes}), (Calls{question, "recent /a.txt"}));
  EXPECT_EQ(Marked(editor.text), "|saved");
  EXPECT_EQ(StateOf(documents), SavedAt("/a.txt"));
}

TEST_F(FilesTest, ANewDocumentAsksBeforeChangesAreLost) {
  EXPECT_EQ(Run("New", {}, {kNo}), Calls{MessageCall(52, "Opravdu nový soubor ?", "Nový")});
  ExpectUntouched();
  EXPECT_EQ(Run("mnuclean", {}, {kYes}), Calls{MessageCall(52, "Opravdu nový soubor ?", "Nový")});
  EXPECT_EQ(Marked(editor.text), "|");
  EXPECT_EQ(StateOf(documents), (DocumentState{.title = "()", .slot_path = "/a.txt"}));  // required: the slot keeps it
  EXPECT_EQ(documents.CurrentPath(), "");
}

TEST_F(FilesTest, SavingUnderANewPathGivesThePathToTheDocument) {
  EXPECT_EQ(Run("mnu_save_st", "/x.y.txt"), (Calls{kSaveDialog, "write /x.y.txt", "recent /x.y.txt"}));
  EXPECT_EQ(platform.files["/x.y.txt"], "newsaved");
  EXPECT_EQ(Marked(editor.text), "[new|saved");
  EXPECT_EQ(StateOf(documents), SavedAt("/x.y.txt"));
}

TEST_F(FilesTest, AFailedSaveReportsWhereTheOldContentIsAndKeepsTheMark) {
  platform.write_errors["/full.txt"] = ENOSPC;
  platform.kept_content = "/kept";
  const Calls report{
      kSaveDialog, "write /full.txt",
      MessageCall(0,
                  "Chyba ukládání!\r\nSoubor: /full.txt\r\nKód chyby 28\r\nSoubor je poškozen, jeho původní "
                  "obsah leží v /kept",
                  "Pelmar VEX")};
  EXPECT_EQ(Run("mnu_save_st", "/full.txt", {kOk}), report);
  EXPECT_EQ(Run("mnuulvyb", "/full.txt", {kOk}), report);
  ExpectUntouched();
}

// required: the file is written before the message, and the mark stays
TEST_F(FilesTest, SavingUnderANameWithoutADotFailsAfterTheWrite) {
  const std::string report = MessageCall(0, "Chyba ukládání!\r\nSoubor: /new\r\nKód chyby 22", "Pelmar VEX");
  EXPECT_EQ(Run("mnu_save_st", "/new", {kOk}), (Calls{kSaveDialog, "write /new", report}));
  EXPECT_EQ(platform.files["/new"], "newsaved");
  EXPECT_EQ(documents.CurrentPath(), "/new");
  EXPECT_EQ(StateOf(documents), changed);
}

TEST_F(FilesTest, TheSelectionIsSavedAloneAndTheDocumentStaysAsItWas) {
  EXPECT_EQ(Run("mnukopsoub", "/new.txt"), (Calls{kSaveDialog, "write /new.txt", "recent /new.txt"}));
  EXPECT_EQ(platform.files["/new.txt"], "new");
  ExpectUntouched();
  EXPECT_EQ(Run("mnuulvyb", "/b.txt", {kYes}),
            (Calls{kSaveDialog, OverwriteCall("/b.txt"), "write /b.txt", "recent /b.txt"}));
  EXPECT_EQ(platform.files["/b.txt"], "new");
  EXPECT_EQ(StateOf(documents), changed);
}

TEST_F(FilesTest, InsertFromFileReplacesTheSelectionByOneField) {
  platform.files["/fields"] = "abc, rest";
  platform.files["/empty"] = "";
  for (const char* silent : {"/no", "/empty"}) EXPECT_EQ(Run("mnuzesouboru", silent), Calls{kOpenDialog}) << silent;
  ExpectUntouched();
  EXPECT_EQ(Run("mnuzesouboru", "/fields"), (Calls{kOpenDialog, "recent /fields"}));
  EXPECT_EQ(Marked(editor.text), "abc|saved");
  EXPECT_EQ(StateOf(documents), changed);
}

TEST(InsertFromFile, ReadsOneField) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {" \t abc \t,def", "abc"}, {"\"a, b\r\nc\" ,d", "a, b\r\nc"}, {"", ""},      {",x", ""},
      {"\"open", "open"},        {"a \"b\" c\nd", "a \"b\" c"},     {"\r\nx", ""}, {"\"\"x", ""},
  };
  for (const auto& [bytes, field] : cases) EXPECT_EQ(FirstField(bytes), field) << bytes;
}

struct RecentFilesTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  RecentFiles& recent = editor.files.recent;
  int notified = 0;
  const Listening listening = recent.changed.Add([this] { ++notified; });

  [[nodiscard]] std::string Listed() const {
    std::string items;
    for (int i = 1; i <= 10; ++i) items += recent.ItemText(i) + ' ';
    return items;
  }
};

TEST_F(RecentFilesTest, AnEleventhPathPushesTheFirstOut) {
  for (int i = 1; i <= 11; ++i) recent.PushRecentFile("/" + std::to_string(i));
  EXPECT_EQ(Listed(), "&0 /11 &1 /10 &2 /9 &3 /8 &4 /7 &5 /6 &6 /5 &7 /4 &8 /3 &9 /2 ");
  EXPECT_EQ(notified, 11);
}

TEST_F(RecentFilesTest, AListedPathMovesToTheTop) {
  for (const char* path : {"/c", "/b", "/a", "/c", "/c", ""}) recent.PushRecentFile(path);
  EXPECT_EQ(Listed(), "&0 /c &1 /a &2 /b &3  &4  &5  &6  &7  &8  &9  ");
  EXPECT_EQ(notified, 4);       // not for the top path again, not for an empty path
  recent.PushRecentFile("/A");  // case counts
  EXPECT_EQ(recent.Path(3), "/a");
}

TEST_F(FilesTest, FastSaveAsksTwiceThenWritesTheCurrentText) {
  const std::string question = MessageCall(52, "Opravdu uložit soubor?\r\n\"/a.txt\"");
  const std::string overwrite = OverwriteCall("/a.txt");
  EXPECT_EQ(Run("Mnu_SaveFast", {}, {kNo}), Calls{question});
  EXPECT_EQ(Run("Mnu_SaveFast", {}, {kYes, kNo}), (Calls{question, overwrite}));
  ExpectUntouched();
  int asked = 0;
  platform.on_message = [&] { editor.text.Replace(0, 0, std::to_string(++asked)); };
  EXPECT_EQ(Run("Mnu_SaveFast", {}, {kYes, kYes}), (Calls{question, overwrite, "write /a.txt", "recent /a.txt"}));
  EXPECT_EQ(platform.files["/a.txt"], "21newsaved");
  EXPECT_EQ(StateOf(documents), SavedAt("/a.txt"));
}

TEST_F(FilesTest, NoticesThatAnotherProgramRemovedTheFile) {
  platform.files.erase("/a.txt");
  EXPECT_EQ(OutsideNotice(documents, platform), "Soubor zmizel z disku");
  documents.SwitchTo(2);
  EXPECT_EQ(OutsideNotice(documents, platform), "");
}

}  // namespace
}  // namespace pelmar
