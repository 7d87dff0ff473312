#include <gtest/gtest.h>

#include <cerrno>

#include "platform/runtime_error.h"
#include "support/document_state.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

using namespace std::string_literals;
using Calls = std::vector<std::string>;

struct FilesTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  Documents& documents = editor.documents;

  // What is said last while a command runs and these answers are given.
  std::string Said(std::string_view command, std::deque<Answer> answers) {
    platform.answers = std::move(answers);
    editor.commands.Run(command);
    return platform.calls.empty() ? "" : platform.calls.back();
  }
  [[nodiscard]] const std::string& Text() const { return editor.text.Text(); }
};

TEST_F(FilesTest, OpenPutsTheFileIntoTheCurrentTab) {
  platform.files["/a/p\xC5\x99.html"] = "x\0\xFFy"s;
  editor.opener.OpenPath("/a/p\xC5\x99.html");
  EXPECT_EQ(Text(), "x\0\xFFy"s);
  EXPECT_EQ(StateOf(documents), "(/a/př.html)|př.html|/a/př.html|/a/př.html|0");
  EXPECT_EQ(documents.Target().Path(), "/a/př.html");
  EXPECT_EQ(editor.settings.RecentFiles[0], "/a/př.html");
  EXPECT_EQ(platform.TakeCalls(), (Calls{"recent /a/př.html"}));
}

TEST_F(FilesTest, TheLimitIsExactAndWhatCantBeReadIsNotFound) {
  platform.files = {
      {"/a/full.txt", std::string(64000, 'f')}, {"/a/over.txt", std::string(64001, 'o')}, {"/a/dir/", ""}};
  platform.read_errors["/a/locked.txt"] = EACCES;
  editor.opener.OpenPath("/a/full.txt");
  for (const std::string path :
       {"/a/over.txt", "/a/none.txt", "/a/dir", "/a/dir/", "/a/locked.txt", "\"/a/x.txt\"", ""}) {
    platform.answers = {Answer::kOk};
    editor.opener.OpenPath(path);
    EXPECT_EQ(platform.calls.back(), path == "/a/over.txt"
                                         ? "message 0 \"Nelze otevřít /a/over.txt, Soubor příliš velký\" \"Soubor\""
                                         : "message 0 \"Soubor " + path + " nenalezen!\" \"Soubor\"");
    EXPECT_EQ(Text().size(), 64000u);
    EXPECT_EQ(documents.CurrentPath(), "/a/full.txt");
    EXPECT_EQ(editor.settings.RecentFiles[1], "");
    EXPECT_EQ(editor.opener.Preview(path), "Není k dispozici"_w);
  }
  EXPECT_EQ(editor.opener.Preview("/a/full.txt").size(), 64000u);
}

TEST_F(FilesTest, RecentFilesMoveToTheHead) {
  RecentFiles& recent = editor.files.recent;
  const auto listed = [&recent] {
    std::string items;
    for (int i = 1; i <= 10; ++i) items += recent.ItemText(i) + ' ';
    return items;
  };
  for (int i = 1; i <= 11; ++i) recent.PushRecentFile("/" + std::to_string(i));  // the first falls out
  EXPECT_EQ(listed(), "&0 /11 &1 /10 &2 /9 &3 /8 &4 /7 &5 /6 &6 /5 &7 /4 &8 /3 &9 /2 ");
  int shown = 0;
  const Listening heard = recent.changed.Add([&] { ++shown; });
  for (const char* path : {"/7", "/7", ""}) recent.PushRecentFile(path);
  EXPECT_EQ(listed(), "&0 /7 &1 /11 &2 /10 &3 /9 &4 /8 &5 /6 &6 /5 &7 /4 &8 /3 &9 /2 ");
  EXPECT_EQ(shown, 1);
  recent.PushRecentFile("/a");
  recent.PushRecentFile("/A");  // case counts
  EXPECT_TRUE(listed().starts_with("&0 /A &1 /a &2 /7 "));
}

TEST_F(FilesTest, RecentButtonOpensTheSecondEntry) {
  EXPECT_EQ(Said("Recent", {Answer::kOk}), "message 0 \"Soubor  nenalezen!\" \"Soubor\"");
  platform.files = {{"/one.txt", "1"}, {"/two.txt", "2"}};
  editor.opener.OpenPath("/one.txt");
  editor.opener.OpenPath("/two.txt");
  editor.commands.Run("Recent");
  EXPECT_EQ(Text(), "1");
  EXPECT_EQ(editor.settings.RecentFiles[0], "/one.txt");
}

// required: text and path are in, the rest isn't, nobody says anything, and file number 1 stays taken
TEST_F(FilesTest, ANameWithoutDotFromTheMenuStopsHalfWay) {
  platform.files = {{"/a/README", "readme"}, {"/a/b.txt", "b"}};
  platform.opens = {"/a/README"};
  EXPECT_EQ(Said("mnu_open_st", {}), "open \"" + std::string(kDocumentFilter) + "\" 2");
  EXPECT_EQ(Text(), "readme");
  EXPECT_EQ(documents.CurrentPath(), "/a/README");
  EXPECT_EQ(StateOf(documents), "()*|||/a/README|1");
  EXPECT_EQ(editor.settings.RecentFiles[0], "");
  platform.answers = {Answer::kOk, Answer::kOk};
  editor.opener.OpenPath("/a/b.txt");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Soubor /a/b.txt nenalezen!\" \"Soubor\"");
  EXPECT_EQ(editor.opener.Preview("/a/b.txt"), "Není k dispozici"_w);
  editor.saver.SaveToPath("/a/b.txt");
  EXPECT_TRUE(platform.calls.back().starts_with("message 0 \"Chyba ukládání!"));
  EXPECT_EQ(platform.files["/a/b.txt"], "b");
  editor.file_number.Close();
  EXPECT_THROW(editor.opener.OpenPath("/a/README"), RuntimeError);  // elsewhere it is an error
}

TEST_F(FilesTest, ReloadAsksAndLosesTheChanges) {
  platform.files["/a.txt"] = "saved";
  editor.opener.OpenPath("/a.txt");
  editor.text.Type("new");
  EXPECT_EQ(Said("Mnu_Reload_File", {Answer::kNo}),
            "message 52 \"Opravdu reload souboru ?\r\nZměny od posledního uložení \"/a.txt\" Budou ztraceny!\" "
            "\"Reload\"");
  EXPECT_EQ(Text(), "newsaved");
  Said("Mnu_Reload_File", {Answer::kYes});
  EXPECT_EQ(Text(), "saved");
  EXPECT_FALSE(documents.Marked());
}

TEST_F(FilesTest, SaveAdoptsThePath) {
  editor.text.SetText("new\r\n");
  editor.saver.SaveToPath("/a/x.y.txt");
  EXPECT_EQ(platform.TakeCalls(), (Calls{"write /a/x.y.txt", "recent /a/x.y.txt"}));
  EXPECT_EQ(platform.files["/a/x.y.txt"], "new\r\n");
  EXPECT_EQ(StateOf(documents), "(/a/x.y.txt)|x.y.txt|/a/x.y.txt|/a/x.y.txt|0");
  EXPECT_EQ(documents.Target().Name(), "x.y");
  EXPECT_EQ(TargetPath("/a", "x.y", "txt"), "/a/x.y.txt");  // what the dialog makes of it again
}

TEST_F(FilesTest, SaveAsksBeforeItOverwrites) {
  platform.files["/a.txt"] = "old";
  editor.text.SetText("new");
  platform.answers = {Answer::kNo, Answer::kYes};
  editor.saver.SaveToPath("/a.txt");
  EXPECT_EQ(platform.TakeCalls(),
            (Calls{"message 52 \"Opravdu uložit /a.txt?\r\nSoubor již existuje a bude přepsán!\" \"Soubor\""}));
  EXPECT_TRUE(documents.Marked());
  EXPECT_EQ(documents.CurrentPath(), "");
  platform.on_message = [&] { editor.text.Type("typed meanwhile, "); };
  editor.saver.SaveToPath("/a.txt");
  EXPECT_EQ(platform.files["/a.txt"], "typed meanwhile, new");
  EXPECT_FALSE(documents.Marked());
}

TEST_F(FilesTest, AFastSaveAsksTwiceAndSaysWhatAnotherProgramDid) {
  const std::string ask = "message 52 \"Opravdu uložit soubor?\r\n\"/a.txt\"", to_end = "\" \"Soubor\"";
  editor.text.SetText("mine");
  editor.saver.SaveToPath("/a.txt");
  EXPECT_EQ(Said("Mnu_SaveFast", {Answer::kNo}), ask + to_end);
  platform.files["/a.txt"] = "their";
  EXPECT_EQ(Said("Mnu_SaveFast", {Answer::kNo}), ask + "\r\nSoubor na disku mezitím změnil jiný program!" + to_end);
  EXPECT_EQ(platform.files["/a.txt"], "their");
  documents.SwitchTo(2);  // each document has its own
  EXPECT_EQ(editor.files.outside.OfCurrent(), OutsideChange::kNone);
  editor.opener.OpenPath("/a.txt");
  EXPECT_EQ(Said("Mnu_SaveFast", {Answer::kNo}), ask + to_end);
  documents.SwitchTo(1);
  Said("Mnu_SaveFast", {Answer::kYes, Answer::kYes});
  EXPECT_EQ(platform.files["/a.txt"], "mine");
  EXPECT_EQ(editor.files.outside.OfCurrent(), OutsideChange::kNone);
  platform.files.erase("/a.txt");
  EXPECT_EQ(Said("Mnu_SaveFast", {Answer::kNo}), ask + "\r\nSoubor na disku už není!" + to_end);
  Said("Mnu_SaveFast", {Answer::kYes});
  EXPECT_EQ(platform.files["/a.txt"], "mine");
  documents.ClearCurrent();
  EXPECT_EQ(editor.files.outside.OfCurrent(), OutsideChange::kNone);
}

TEST_F(FilesTest, AFailedSaveIsToldAndChangesNothing) {
  platform.files["/a.txt"] = "old";
  platform.write_errors["/a.txt"] = ENOSPC;
  editor.text.SetText("new");
  platform.answers = {Answer::kYes, Answer::kOk, Answer::kYes, Answer::kOk};
  editor.saver.SaveToPath("/a.txt");
  const std::string told = "message 0 \"Chyba ukládání!\r\nSoubor: /a.txt\r\nKód chyby " + std::to_string(ENOSPC);
  EXPECT_EQ(platform.calls.back(), told + "\" \"Pelmar VEX\"");
  EXPECT_EQ(platform.files["/a.txt"], "old");
  EXPECT_EQ(documents.CurrentPath(), "");
  EXPECT_TRUE(documents.Marked());
  platform.kept_content = "/install/puvodni-1-a.txt";
  editor.saver.SaveTextCopy("/a.txt", "copy");
  EXPECT_EQ(platform.calls.back(), told +
                                       "\r\nSoubor je poškozen, jeho původní obsah leží v "
                                       "/install/puvodni-1-a.txt\" \"Pelmar VEX\"");
  EXPECT_EQ(editor.settings.RecentFiles[0], "");
}

// required: the file is on the disk and the path changed, but title, tab and flag didn't follow
TEST_F(FilesTest, SavingANameWithoutDotFailsHalfWay) {
  editor.text.SetText("new");
  platform.answers = {Answer::kOk};
  editor.saver.SaveToPath("/README");
  EXPECT_EQ(platform.files["/README"], "new");
  EXPECT_EQ(documents.CurrentPath(), "/README");
  EXPECT_EQ(StateOf(documents), "()*||||1");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Chyba ukládání!\r\nSoubor: /README\r\nKód chyby " +
                                       std::to_string(EINVAL) + "\" \"Pelmar VEX\"");
}

TEST_F(FilesTest, TheDialogsSaveTheSelectionAsACopyAndTheWholeText) {
  editor.text.SetText("abc");
  EXPECT_EQ(Said("mnuulvyb", {}), "");  // nothing selected: not even a dialog
  editor.text.Select(1, 3);
  platform.saves = {std::nullopt, "/part.txt", std::nullopt, "/all.txt"};
  EXPECT_EQ(Said("mnukopsoub", {}), "save \"" + std::string(kDocumentFilter) + "\" 2");
  EXPECT_TRUE(platform.files.empty());
  editor.commands.Run("mnuulvyb");
  EXPECT_EQ(platform.files["/part.txt"], "bc");
  EXPECT_EQ(StateOf(documents), "()*||||1");
  EXPECT_EQ(editor.settings.RecentFiles[0], "/part.txt");
  EXPECT_EQ(Said("mnu_save_st", {}), "save \"" + std::string(kDocumentFilter) + "\" 2");
  editor.commands.Run("mnu_save_st");
  EXPECT_EQ(platform.files["/all.txt"], "abc");
  EXPECT_EQ(documents.CurrentPath(), "/all.txt");
}

TEST_F(FilesTest, InsertFromFileReadsOneField) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {" \t abc \t,def", "abc"}, {"\"a, b\r\nc\" ,d", "a, b\r\nc"}, {"", ""},    {",x", ""},
      {"\"open", "open"},        {"a \"b\" c\nd", "a \"b\" c"},     {"   ", ""}, {"\r\nx", ""},
  };
  for (const auto& [bytes, field] : cases) EXPECT_EQ(FirstField(bytes), field) << bytes;
  editor.text.SetText("12345");
  editor.text.Select(1, 3);
  platform.files = {{"/in.txt", "abc, rest"}, {"/empty.txt", ""}};
  platform.opens = {"/in.txt", "/none.txt", "/empty.txt", std::nullopt};
  editor.commands.Run("mnuzesouboru");
  EXPECT_EQ(Text(), "1abc45");
  EXPECT_EQ(editor.settings.RecentFiles[0], "/in.txt");
  editor.text.Select(1, 3);
  // A failure is silent, and where there is no field to read, the selection isn't lost.
  for (int i = 0; i < 3; ++i) editor.commands.Run("mnuzesouboru");
  EXPECT_EQ(Text(), "1abc45");
  EXPECT_FALSE(editor.file_number.IsOpen());
}

TEST_F(FilesTest, NewDocumentAsksAlways) {
  EXPECT_EQ(Said("New", {Answer::kNo}), "message 52 \"Opravdu nový soubor ?\" \"Nový\"");
  editor.text.SetText("x");
  Said("New", {Answer::kNo});
  EXPECT_EQ(Text(), "x");
  Said("mnuclean", {Answer::kYes});
  EXPECT_EQ(Text(), "");
  EXPECT_FALSE(documents.Marked());
}

TEST_F(FilesTest, ToolbarClipboardCommands) {
  editor.text.SetText("abcd");
  editor.text.Select(1, 3);
  editor.commands.Run("Copy");
  EXPECT_EQ(platform.clipboard, "bc");
  platform.clipboard = "XY";
  editor.commands.Run("Paste");
  EXPECT_EQ(Text(), "aXYbcd");  // required: the selection's text stays, behind what was pasted
  editor.text.Select(0, 2);
  editor.commands.Run("Cut");
  EXPECT_EQ(platform.clipboard, "aX");
  EXPECT_EQ(Text(), "Ybcd");
}

}  // namespace
}  // namespace pelmar
