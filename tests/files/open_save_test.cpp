#include <gtest/gtest.h>

#include <cerrno>

#include "platform/runtime_error.h"
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

  void Answers(std::initializer_list<Answer> answers) { platform.answers = answers; }
  [[nodiscard]] const std::string& Text() const { return editor.text.Text(); }
};

TEST_F(FilesTest, OpenPutsTheFileIntoTheCurrentTab) {
  platform.files["/a/p\xC5\x99.html"] = "x\0\xFFy"s;
  editor.opener.OpenPath("/a/p\xC5\x99.html");
  EXPECT_EQ(Text(), "x\0\xFFy"s);
  EXPECT_EQ(documents.Title(), "Pelmar VEX (/a/př.html)");
  EXPECT_EQ(documents.Face(1).Caption, "př.html");
  EXPECT_EQ(documents.Slot(1).Path, "/a/př.html");
  EXPECT_EQ(documents.UnsavedCount(), 0);
  EXPECT_EQ(documents.Target().Path(), "/a/př.html");
  EXPECT_EQ(editor.settings.RecentFiles[0], "/a/př.html");
  EXPECT_EQ(platform.TakeCalls(), (Calls{"recent /a/př.html"}));
}

TEST_F(FilesTest, TheLimitIsExact) {
  platform.files["/a/full.txt"] = std::string(64000, 'f');
  platform.files["/a/over.txt"] = std::string(64001, 'o');
  editor.opener.OpenPath("/a/full.txt");
  EXPECT_EQ(Text().size(), 64000u);
  Answers({Answer::kOk});
  editor.opener.OpenPath("/a/over.txt");
  EXPECT_EQ(Text().front(), 'f');
  EXPECT_EQ(documents.CurrentPath(), "/a/full.txt");
  EXPECT_EQ(editor.settings.RecentFiles[1], "");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Nelze otevřít /a/over.txt, Soubor příliš velký\" \"Soubor\"");
  EXPECT_EQ(editor.opener.Preview("/a/full.txt").size(), 64000u);
  EXPECT_EQ(editor.opener.Preview("/a/over.txt"), "Není k dispozici"_w);
  EXPECT_EQ(editor.opener.Preview("/a/none.txt"), "Není k dispozici"_w);
}

TEST_F(FilesTest, MissingFoldersAndUnreadableFilesAreNotFound) {
  platform.files["/a/dir/"] = "";
  platform.read_errors["/a/locked.txt"] = EACCES;
  editor.text.SetText("mine");
  for (const std::string path : {"/a/none.txt", "/a/dir", "/a/dir/", "/a/locked.txt", "\"/a/x.txt\"", ""}) {
    Answers({Answer::kOk});
    editor.opener.OpenPath(path);
    EXPECT_EQ(platform.calls.back(), "message 0 \"Soubor " + path + " nenalezen!\" \"Soubor\"");
  }
  EXPECT_EQ(Text(), "mine");
  EXPECT_TRUE(documents.Marked());
}

TEST_F(FilesTest, RecentFilesMoveToTheHead) {
  for (int i = 1; i <= 11; ++i) editor.files.recent.PushRecentFile("/f" + std::to_string(i) + ".txt");
  EXPECT_EQ(editor.settings.RecentFiles[0], "/f11.txt");
  EXPECT_EQ(editor.settings.RecentFiles[9], "/f2.txt");  // the first fell out
  int shown = 0;
  const Listening heard = editor.files.recent.changed.Add([&] { ++shown; });
  editor.files.recent.PushRecentFile("/f7.txt");  // entry 5
  EXPECT_EQ(editor.settings.RecentFiles[0], "/f7.txt");
  EXPECT_EQ(editor.settings.RecentFiles[4], "/f8.txt");
  EXPECT_EQ(editor.settings.RecentFiles[5], "/f6.txt");
  editor.files.recent.PushRecentFile("/f7.txt");
  editor.files.recent.PushRecentFile("");
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(editor.files.recent.ItemText(1), "&0 /f7.txt");
  EXPECT_EQ(editor.files.recent.ItemText(10), "&9 /f2.txt");
  editor.files.recent.PushRecentFile("/F7.txt");  // case counts
  EXPECT_EQ(editor.settings.RecentFiles[1], "/f7.txt");
}

TEST_F(FilesTest, RecentButtonOpensTheSecondEntry) {
  Answers({Answer::kOk});
  editor.commands.Run("Recent");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Soubor  nenalezen!\" \"Soubor\"");
  platform.files["/one.txt"] = "1";
  platform.files["/two.txt"] = "2";
  editor.opener.OpenPath("/one.txt");
  editor.opener.OpenPath("/two.txt");
  editor.commands.Run("Recent");
  EXPECT_EQ(Text(), "1");
  EXPECT_EQ(editor.settings.RecentFiles[0], "/one.txt");
}

// required: text and path are in, the rest isn't, nobody says anything, and file number 1 stays taken
TEST_F(FilesTest, ANameWithoutDotFromTheMenuStopsHalfWay) {
  platform.files["/a/README"] = "readme";
  platform.files["/a/b.txt"] = "b";
  platform.opens = {"/a/README"};
  editor.commands.Run("mnu_open_st");
  EXPECT_EQ(Text(), "readme");
  EXPECT_EQ(documents.CurrentPath(), "/a/README");
  EXPECT_EQ(documents.Title(), "Pelmar VEX ()*");
  EXPECT_EQ(documents.Face(1).ToolTipText, "");
  EXPECT_EQ(editor.settings.RecentFiles[0], "");
  Answers({Answer::kOk, Answer::kOk});
  editor.opener.OpenPath("/a/b.txt");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Soubor /a/b.txt nenalezen!\" \"Soubor\"");
  editor.saver.SaveToPath("/a/b.txt");
  EXPECT_TRUE(platform.calls.back().starts_with("message 0 \"Chyba ukládání!"));
  EXPECT_EQ(platform.files["/a/b.txt"], "b");
}

TEST_F(FilesTest, ANameWithoutDotElsewhereIsARuntimeError) {
  platform.files["/README"] = "readme";
  EXPECT_THROW(editor.opener.OpenPath("/README"), RuntimeError);
}

TEST_F(FilesTest, ReloadAsksAndLosesTheChanges) {
  platform.files["/a.txt"] = "saved";
  editor.opener.OpenPath("/a.txt");
  editor.text.Type("new");
  Answers({Answer::kNo, Answer::kYes});
  editor.commands.Run("Mnu_Reload_File");
  EXPECT_EQ(Text(), "newsaved");
  editor.commands.Run("Mnu_Reload_File");
  EXPECT_EQ(Text(), "saved");
  EXPECT_FALSE(documents.Marked());
  EXPECT_EQ(
      platform.calls[1],
      "message 52 \"Opravdu reload souboru ?\r\nZměny od posledního uložení \"/a.txt\" Budou ztraceny!\" \"Reload\"");
}

TEST_F(FilesTest, SaveAdoptsThePath) {
  editor.text.SetText("new\r\n");
  editor.saver.SaveToPath("/a/x.y.txt");
  EXPECT_EQ(platform.TakeCalls(), (Calls{"write /a/x.y.txt", "recent /a/x.y.txt"}));
  EXPECT_EQ(platform.files["/a/x.y.txt"], "new\r\n");
  EXPECT_EQ(documents.Title(), "Pelmar VEX (/a/x.y.txt)");
  EXPECT_EQ(documents.Face(1).Caption, "x.y.txt");
  EXPECT_EQ(documents.Target().Name(), "x.y");
  EXPECT_EQ(documents.UnsavedCount(), 0);
}

TEST_F(FilesTest, SaveAsksBeforeItOverwrites) {
  platform.files["/a.txt"] = "old";
  editor.text.SetText("new");
  Answers({Answer::kNo, Answer::kYes});
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

TEST_F(FilesTest, FastSaveAsksTwice) {
  platform.files["/a.txt"] = "old";
  editor.opener.OpenPath("/a.txt");
  editor.text.Type("+");
  platform.calls.clear();
  Answers({Answer::kYes, Answer::kYes});
  editor.commands.Run("Mnu_SaveFast");
  EXPECT_EQ(platform.calls[0], "message 52 \"Opravdu uložit soubor?\r\n\"/a.txt\"\" \"Soubor\"");
  EXPECT_EQ(platform.files["/a.txt"], "+old");
  platform.files.erase("/a.txt");
  Answers({Answer::kYes});
  editor.commands.Run("Mnu_SaveFast");
  EXPECT_EQ(platform.files["/a.txt"], "+old");
}

TEST_F(FilesTest, AFastSaveSaysWhatAnotherProgramDid) {
  const std::string ask = "message 52 \"Opravdu uložit soubor?\r\n\"/a.txt\"", to_end = "\" \"Soubor\"";
  const auto asked = [&] {
    Answers({Answer::kNo});
    editor.commands.Run("Mnu_SaveFast");
    return platform.calls.back();
  };
  editor.text.SetText("mine");
  editor.saver.SaveToPath("/a.txt");
  EXPECT_EQ(asked(), ask + to_end);
  platform.files["/a.txt"] = "their";
  EXPECT_EQ(asked(), ask + "\r\nSoubor na disku mezitím změnil jiný program!" + to_end);
  documents.SwitchTo(2);  // each document has its own
  EXPECT_EQ(editor.files.outside.OfCurrent(), OutsideChange::kNone);
  editor.opener.OpenPath("/a.txt");
  EXPECT_EQ(asked(), ask + to_end);
  documents.SwitchTo(1);
  platform.files.erase("/a.txt");
  EXPECT_EQ(asked(), ask + "\r\nSoubor na disku už není!" + to_end);
  documents.ClearCurrent();
  EXPECT_EQ(editor.files.outside.OfCurrent(), OutsideChange::kNone);
}

TEST_F(FilesTest, AFailedSaveIsToldAndChangesNothing) {
  platform.files["/a.txt"] = "old";
  platform.write_errors["/a.txt"] = ENOSPC;
  editor.text.SetText("new");
  Answers({Answer::kYes, Answer::kOk});
  editor.saver.SaveToPath("/a.txt");
  const std::string told = "message 0 \"Chyba ukládání!\r\nSoubor: /a.txt\r\nKód chyby " + std::to_string(ENOSPC);
  EXPECT_EQ(platform.calls.back(), told + "\" \"Pelmar VEX\"");
  EXPECT_EQ(platform.files["/a.txt"], "old");
  EXPECT_EQ(documents.CurrentPath(), "");
  EXPECT_TRUE(documents.Marked());
  platform.kept_content = "/install/puvodni-1-a.txt";
  Answers({Answer::kYes, Answer::kOk});
  editor.saver.SaveToPath("/a.txt");
  EXPECT_EQ(platform.calls.back(), told +
                                       "\r\nSoubor je poškozen, jeho původní obsah leží v "
                                       "/install/puvodni-1-a.txt\" \"Pelmar VEX\"");
}

// required: the file is on the disk and the path changed, but title, tab and flag didn't follow
TEST_F(FilesTest, SavingANameWithoutDotFailsHalfWay) {
  editor.text.SetText("new");
  Answers({Answer::kOk});
  editor.saver.SaveToPath("/README");
  EXPECT_EQ(platform.files["/README"], "new");
  EXPECT_EQ(documents.CurrentPath(), "/README");
  EXPECT_EQ(documents.Title(), "Pelmar VEX ()*");
  EXPECT_EQ(documents.Face(1).Caption, "");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Chyba ukládání!\r\nSoubor: /README\r\nKód chyby " +
                                       std::to_string(EINVAL) + "\" \"Pelmar VEX\"");
}

TEST_F(FilesTest, SelectionIsSavedAsACopy) {
  editor.text.SetText("abc");
  editor.commands.Run("mnuulvyb");  // nothing selected: not even a dialog
  EXPECT_TRUE(platform.calls.empty());
  editor.text.Select(1, 3);
  platform.saves = {std::nullopt, "/part.txt"};
  editor.commands.Run("mnukopsoub");
  EXPECT_TRUE(platform.files.empty());
  editor.commands.Run("mnuulvyb");
  EXPECT_EQ(platform.files["/part.txt"], "bc");
  EXPECT_EQ(documents.Title(), "Pelmar VEX ()*");
  EXPECT_EQ(documents.CurrentPath(), "");
  EXPECT_EQ(editor.settings.RecentFiles[0], "/part.txt");
}

TEST_F(FilesTest, SystemSaveDialogSavesTheWholeText) {
  editor.text.SetText("abc");
  platform.saves = {"/all.txt"};
  editor.commands.Run("mnu_save_st");
  EXPECT_EQ(platform.files["/all.txt"], "abc");
  EXPECT_EQ(documents.CurrentPath(), "/all.txt");
  EXPECT_EQ(platform.calls.front(), "save \"" + std::string(kDocumentFilter) + "\" 2");
}

TEST_F(FilesTest, InsertFromFileReadsOneField) {
  const struct {
    std::string_view bytes, field;
  } cases[] = {
      {"abc,def", "abc"},
      {"  abc  \r\ndef", "abc"},
      {"\"a, b\r\nc\" ,d", "a, b\r\nc"},
      {"", ""},
      {",x", ""},
      {"\"open", "open"},
      {"a\nb", "a"},
      {"   ", ""},
      {"a \"b\" c,d", "a \"b\" c"},
      {"\r\nx", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(FirstField(c.bytes), c.field) << c.bytes;
  editor.text.SetText("12345");
  editor.text.Select(1, 3);
  platform.files["/in.txt"] = "abc, rest";
  platform.files["/empty.txt"] = "";
  platform.opens = {"/in.txt", "/none.txt", "/empty.txt"};
  editor.commands.Run("mnuzesouboru");
  EXPECT_EQ(Text(), "1abc45");
  EXPECT_EQ(editor.settings.RecentFiles[0], "/in.txt");
  editor.commands.Run("mnuzesouboru");  // a failure is silent
  editor.text.Select(1, 3);
  editor.commands.Run("mnuzesouboru");  // no field to read, so the selection isn't lost
  EXPECT_EQ(Text(), "1abc45");
}

TEST_F(FilesTest, NewDocumentAsksAlways) {
  Answers({Answer::kNo, Answer::kYes});
  editor.commands.Run("New");
  EXPECT_EQ(platform.calls.back(), "message 52 \"Opravdu nový soubor ?\" \"Nový\"");
  editor.text.SetText("x");
  editor.commands.Run("mnuclean");
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
