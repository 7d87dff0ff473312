#include <gtest/gtest.h>

#include <cerrno>

#include "platform/runtime_error.h"
#include "support/document_state.h"
#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

using enum Answer;

// Each begins with a changed document of /a.txt. Told are the text, the current path and the document's state, what was
// asked and done, and which files are other ones now.
TEST(FileCommands, LeaveDocumentCallsAndFiles) {
  const std::string same = "[new|saved /a.txt (/a.txt)*|a.txt|/a.txt|/a.txt|1; ";
  const std::string open = "open \"" + std::string(kDocumentFilter) + "\" 2; ";
  const std::string save = "save \"" + std::string(kDocumentFilter) + "\" 2; ";
  const std::string reload =
      "message 52 \"Opravdu reload souboru ?\r\nZměny od posledního uložení \"/a.txt\" Budou ztraceny!\" \"Reload\"; ";
  const std::string over = "message 52 \"Opravdu uložit /b.txt?\r\nSoubor již existuje a bude přepsán!\" \"Soubor\"; ";
  const std::string failed = "message 0 \"Chyba ukládání!\r\nSoubor: ", by = "\" \"Pelmar VEX\"; ";
  const std::string full = "write /full.txt; " + failed +
                           "/full.txt\r\nKód chyby 28\r\nSoubor je poškozen, jeho původní obsah leží v /kept" + by;
  const std::string anew = "message 52 \"Opravdu nový soubor ?\" \"Nový\"; ";
  const struct {
    const char *command, *chosen;
    Answer answer;
    std::string after;
  } cases[] = {
      {"mnu_open_st", "", kOk, same + open},
      {"mnu_open_st", "/b.txt", kOk, "|b /b.txt (/b.txt)|b.txt|/b.txt|/b.txt|0; " + open + "recent /b.txt; "},
      // required: text and path are in, the rest isn't, nobody says anything, and file number 1 stays taken
      {"mnu_open_st", "/README", kOk, "|r /README (/a.txt)*|a.txt|/a.txt|/README|1; " + open},
      {"mnu_open_st", "/no", kOk, same + open + "message 0 \"Soubor /no nenalezen!\" \"Soubor\"; "},
      {"Recent", "", kOk, same + "message 0 \"Soubor  nenalezen!\" \"Soubor\"; "},
      {"Mnu_Reload_File", "", kNo, same + reload},
      {"Mnu_Reload_File", "", kYes, "|saved /a.txt (/a.txt)|a.txt|/a.txt|/a.txt|0; " + reload + "recent /a.txt; "},
      {"mnu_save_st", "", kOk, same + save},
      {"mnu_save_st", "/x.y.txt", kOk,
       "[new|saved /x.y.txt (/x.y.txt)|x.y.txt|/x.y.txt|/x.y.txt|0; " + save +
           "write /x.y.txt; recent /x.y.txt; /x.y.txt=newsaved"},
      {"mnu_save_st", "/b.txt", kNo, same + save + over},
      {"mnu_save_st", "/full.txt", kOk, same + save + full},
      // required: the file is on the disk and the path changed, but title, tab and flag didn't follow
      {"mnu_save_st", "/NAME", kOk,
       "[new|saved /NAME (/a.txt)*|a.txt|/a.txt|/a.txt|1; " + save + "write /NAME; " + failed +
           "/NAME\r\nKód chyby 22" + by + "/NAME=newsaved"},
      {"mnukopsoub", "", kOk, same + save},
      {"mnukopsoub", "/new.txt", kOk, same + save + "write /new.txt; recent /new.txt; /new.txt=new"},
      {"mnuulvyb", "/b.txt", kYes, same + save + over + "write /b.txt; recent /b.txt; /b.txt=new"},
      {"mnuulvyb", "/full.txt", kOk, same + save + full},
      {"mnuzesouboru", "/in.txt", kOk,
       "abc|saved /a.txt (/a.txt)*|a.txt|/a.txt|/a.txt|1; " + open + "recent /in.txt; "},
      // A failure is silent, and where there is no field to read, the selection isn't lost.
      {"mnuzesouboru", "/no", kOk, same + open},
      {"mnuzesouboru", "/empty", kOk, same + open},
      {"mnuzesouboru", "", kOk, same + open},
      {"New", "", kNo, same + anew},
      {"mnuclean", "", kYes, "|  ()|||/a.txt|0; " + anew},
  };
  for (const auto& c : cases) {
    ScriptedPlatform platform;
    WholeEditor editor(platform);
    platform.files = {{"/a.txt", "saved"}, {"/b.txt", "b"}, {"/README", "r"}, {"/in.txt", "abc, rest"}, {"/empty", ""}};
    platform.write_errors["/full.txt"] = ENOSPC;
    platform.kept_content = "/kept";
    const auto files = platform.files;
    editor.opener.OpenPath("/a.txt");
    PutMarked(editor.text, "[new|saved");
    platform.calls.clear();
    platform.answers = {c.answer};
    platform.opens = platform.saves = {*c.chosen ? std::optional<std::string>(c.chosen) : std::nullopt};
    editor.commands.Run(c.command);
    std::string after = Marked(editor.text) + ' ' + editor.documents.CurrentPath() + ' ' + StateOf(editor.documents);
    after += "; " + platform.TakeTold();
    for (const auto& [path, bytes] : platform.files)
      if (!files.contains(path) || files.at(path) != bytes) after.append(path + '=').append(bytes);
    EXPECT_EQ(after, c.after) << c.command << ' ' << c.chosen;
    EXPECT_EQ(editor.file_number.IsOpen(), std::string_view(c.chosen) == "/README") << c.command;
  }
}

struct FilesTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  Documents& documents = editor.documents;
  std::array<std::string, 10>& recent = editor.settings.RecentFiles;
};

TEST_F(FilesTest, TheLimitIsExactAndWhatCantBeReadIsNotFound) {
  std::string full(64000, 'f');
  for (std::size_t i = 0; i < full.size(); ++i) full[i] = static_cast<char>(i);
  platform.files = {{"/př.txt", full}, {"/over.txt", full + 'o'}, {"/dir/", ""}};
  platform.read_errors["/locked.txt"] = EACCES;
  editor.opener.OpenPath("/př.txt");
  const std::string state = StateOf(documents);
  EXPECT_EQ(state, "(/př.txt)|př.txt|/př.txt|/př.txt|0");
  for (const std::string path : {"/over.txt", "/none.txt", "/dir", "/dir/", "/locked.txt", "\"/př.txt\"", ""}) {
    platform.answers = {kOk};
    editor.opener.OpenPath(path);
    EXPECT_EQ(platform.calls.back(), path == "/over.txt"
                                         ? "message 0 \"Nelze otevřít /over.txt, Soubor příliš velký\" \"Soubor\""
                                         : "message 0 \"Soubor " + path + " nenalezen!\" \"Soubor\"");
    EXPECT_TRUE(editor.text.Text() == full && StateOf(documents) == state && recent[1].empty()) << path;
    EXPECT_EQ(editor.opener.Preview(path), "Není k dispozici"_w);
  }
  EXPECT_EQ(editor.opener.Preview("/př.txt"), full);
}

TEST_F(FilesTest, RecentFilesMoveToTheHead) {
  RecentFiles& list = editor.files.recent;
  int shown = 0;
  const Listening heard = list.changed.Add([&] { ++shown; });
  const auto listed = [&] {
    std::string items = std::to_string(shown) + ':';
    for (int i = 1; i <= 10; ++i) items += ' ' + list.ItemText(i);
    return items;
  };
  for (int i = 1; i <= 11; ++i) list.PushRecentFile("/" + std::to_string(i));  // the first falls out
  EXPECT_EQ(listed(), "11: &0 /11 &1 /10 &2 /9 &3 /8 &4 /7 &5 /6 &6 /5 &7 /4 &8 /3 &9 /2");
  for (const char* path : {"/7", "/7", ""}) list.PushRecentFile(path);
  EXPECT_EQ(listed(), "12: &0 /7 &1 /11 &2 /10 &3 /9 &4 /8 &5 /6 &6 /5 &7 /4 &8 /3 &9 /2");
  list.PushRecentFile("/A");
  list.PushRecentFile("/a");  // case counts
  EXPECT_EQ(listed(), "14: &0 /a &1 /A &2 /7 &3 /11 &4 /10 &5 /9 &6 /8 &7 /6 &8 /5 &9 /4");
  platform.files = {{"/a.txt", "a"}, {"/b.txt", "b"}};
  for (const char* path : {"/a.txt", "/b.txt"}) editor.opener.OpenPath(path);
  editor.commands.Run("Recent");  // the second
  EXPECT_EQ(editor.text.Text(), "a");
  EXPECT_EQ(recent[0], "/a.txt");
}

// required: no file can be had while file number 1 is taken
TEST_F(FilesTest, ANameWithoutDotIsAnErrorElsewhereAndLeavesTheNumberTaken) {
  platform.files = {{"/README", "r"}, {"/b.txt", "b"}};
  EXPECT_THROW(editor.opener.OpenPath("/README"), RuntimeError);
  platform.answers = {kOk, kOk};
  editor.opener.OpenPath("/b.txt");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Soubor /b.txt nenalezen!\" \"Soubor\"");
  EXPECT_EQ(editor.opener.Preview("/b.txt"), "Není k dispozici"_w);
  editor.saver.SaveToPath("/b.txt");
  EXPECT_TRUE(platform.calls.back().starts_with("message 0 \"Chyba ukládání!"));
  EXPECT_EQ(platform.files["/b.txt"], "b");
}

TEST_F(FilesTest, AFastSaveAsksTwiceAndSaysWhatAnotherProgramDid) {
  const std::string ask = "message 52 \"Opravdu uložit soubor?\r\n\"/a.txt\"", to_end = "\" \"Soubor\"; ";
  const std::string written = "\r\nSoubor na disku mezitím změnil jiný program!", gone = "\r\nSoubor na disku už není!";
  const auto said = [&](Answer answer) {
    platform.TakeCalls();
    platform.answers.assign(2, answer);
    editor.commands.Run("Mnu_SaveFast");
    return platform.TakeTold();
  };
  editor.text.SetText("mine");
  editor.saver.SaveToPath("/a.txt");
  EXPECT_EQ(said(kNo), ask + to_end);
  platform.files["/a.txt"] = "their";
  EXPECT_EQ(said(kNo), ask + written + to_end);
  documents.SwitchTo(2);  // each document has its own
  EXPECT_EQ(editor.files.outside.OfCurrent(), OutsideChange::kNone);
  editor.opener.OpenPath("/a.txt");
  EXPECT_EQ(said(kNo), ask + to_end);
  documents.SwitchTo(1);
  int asked = 0;
  platform.on_message = [&] { editor.text.Type(std::to_string(++asked)); };
  said(kYes);
  EXPECT_EQ(platform.files["/a.txt"], "12mine");  // as it is when the second question is answered
  EXPECT_EQ(StateOf(documents), "(/a.txt)|a.txt|/a.txt|/a.txt|0");
  platform.files.erase("/a.txt");
  EXPECT_EQ(said(kYes), ask + gone + to_end + "write /a.txt; recent /a.txt; ");
  EXPECT_EQ(editor.files.outside.OfCurrent(), OutsideChange::kNone);
  platform.files["/a.txt"] = "their";
  documents.ClearCurrent();
  EXPECT_EQ(editor.files.outside.OfCurrent(), OutsideChange::kNone);
}

TEST(InsertFromFile, ReadsOneField) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {" \t abc \t,def", "abc"}, {"\"a, b\r\nc\" ,d", "a, b\r\nc"}, {"", ""},    {",x", ""},
      {"\"open", "open"},        {"a \"b\" c\nd", "a \"b\" c"},     {"   ", ""}, {"\r\nx", ""},
  };
  for (const auto& [bytes, field] : cases) EXPECT_EQ(FirstField(bytes), field) << bytes;
}

}  // namespace
}  // namespace pelmar
