#include "files/files.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sstream>

#include "files/encodings.h"
#include "files/line_ends.h"
#include "files/printing.h"
#include "platform/runtime_error.h"
#include "support/document_state.h"
#include "support/marked_text.h"
#include "support/plain_view.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

using enum Answer;

// What a command makes of a changed document of /a.txt, with a file chosen and all questions answered: what is asked
// and done, text, current path and state of the document, and the files, where these are other ones now.
std::string Outcome(const std::string& step) {
  std::string command, chosen, answer;
  std::istringstream(step) >> command >> chosen >> answer;
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  PlainView view;
  view.look = {"Courier New", 0, 0, 12, false, true};
  AddPrintCommands(editor, view);
  editor.commands.Add("1250", [&] { ConvertToPage(platform, chosen); });
  editor.commands.Add("utf8", [&] { ConvertToUtf8(platform, chosen, false); });
  editor.commands.Add("unx", [&] { ConvertToUnix(platform, chosen); });
  editor.commands.Add("dos", [&] { ConvertToDos(platform, chosen); });
  platform.files = {{"/a.txt", "saved"},
                    {"/a.1250", "old"},
                    {"/a.dos", "0123456789"},
                    {"/a.unx", "0123456789"},
                    {"/b.txt", "b"},
                    {"/bad1.utf8", "\xE8"},
                    {"/bad2.utf8", "\xEF\xBB\xBFůů\xC5"},
                    {"/bad3.utf8", "a\r\nb\rc\n\nůx\xC5y"},
                    {"/control", "\xC2\x85"},
                    {"/empty", ""},
                    {"/far.utf8", "😀"},
                    {"/fields", "abc, rest"},
                    {"/folder.d/lines.txt", "a\nb"},
                    {"/full.utf8", "a"},
                    {"/lines.txt", "a\r\nb"},
                    {"/name", "a"},
                    {"/outside.utf8", "ů\n→?😀\xC2\x85"}};
  for (const char* full : {"/full.1250", "/full.dos", "/full.txt"}) platform.write_errors[full] = ENOSPC;
  platform.kept_content = "/kept";
  platform.paper_width = 18;
  const auto files = platform.files;
  editor.opener.OpenPath("/a.txt");
  PutMarked(editor.text, "[new|saved");
  const auto state = [&editor] {
    return ToUtf8(Marked(editor.text)) + ' ' + editor.documents.CurrentPath() + ' ' + StateOf(editor.documents);
  };
  const std::string before = state();
  platform.calls.clear();
  platform.answers.assign(2, answer == "Ano" ? kYes : answer == "Ne" ? kNo : answer == "Nic" ? kNone : kOk);
  platform.opens = platform.saves = {chosen == "-" ? std::nullopt : std::optional(chosen)};
  std::string told;
  try {
    editor.commands.Run(command);
  } catch (const RuntimeError& error) {
    told += "error " + std::to_string(error.Number()) + ": " + error.what() + '\n';
  }
  for (const std::string& call : platform.calls) told += call + '\n';
  if (state() != before) told += state() + '\n';
  for (const auto& [path, bytes] : platform.files)
    if (!files.contains(path) || files.at(path) != bytes) told += path + '=' + ToUtf8(bytes) + '\n';
  if (editor.file_number.IsOpen()) told += "file number 1 is taken\n";
  EXPECT_EQ(platform.busy, 0) << told;
  return told;
}

// All is as it was when somebody looked at it last. Each line of the kept text that begins with "####" is a command,
// its file ("-" where none is chosen) and what questions are answered; below it stands what came of it. required: a
// name without a full stop stops opening and saving half-way; a path to convert is cut at its first full stop, be it a
// folder's, a longer old ".unx" keeps its tail, and a ".dos" loses what stands behind the last line feed.
TEST(Files, CommandsTellAndDoTheKept) {
  const std::string kept = Content(PELMAR_KEPT_FILE_COMMANDS);
  std::istringstream lines(kept);
  std::string told;
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with("#### ")) told += line + '\n' + Outcome(line.substr(5));
  for (std::size_t at = 0; (at = told.find('\r', at)) != std::string::npos;) told.replace(at, 1, "\\r");
  EXPECT_EQ(told, kept);
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

struct FastSave : FilesTest {
  const std::string ask = Asked(52, "Opravdu uložit soubor?\r\n\"/a.txt\"");
  const std::string overwrite = Asked(52, "Opravdu uložit /a.txt?\r\nSoubor již existuje a bude přepsán!");
  const std::string written = "write /a.txt; recent /a.txt; ";

  static std::string Asked(int type, const std::string& question) {
    return "message " + std::to_string(type) + " \"" + question + "\" \"Soubor\"; ";
  }
  std::string Said(const std::deque<Answer>& answers) {
    platform.TakeCalls();
    platform.answers = answers;
    editor.commands.Run("Mnu_SaveFast");
    EXPECT_TRUE(platform.answers.empty());
    return platform.TakeTold();
  }
};

TEST_F(FastSave, AsksTwiceAndKnowsWhatAnotherProgramDid) {
  const auto change = [this] { return editor.files.outside.OfCurrent(); };
  editor.text.SetText("mine");
  editor.saver.SaveToPath("/a.txt");
  EXPECT_EQ(change(), OutsideChange::kNone);
  platform.files["/a.txt"] = "their";
  EXPECT_EQ(change(), OutsideChange::kWritten);
  documents.SwitchTo(2);  // each document has its own
  EXPECT_EQ(change(), OutsideChange::kNone);
  editor.opener.OpenPath("/a.txt");
  EXPECT_EQ(Said({kNo}), ask);
  documents.SwitchTo(1);
  int asked = 0;
  platform.on_message = [&] { editor.text.Type(std::to_string(++asked)); };
  EXPECT_EQ(Said({kYes, kYes}), ask + overwrite + written);
  EXPECT_EQ(platform.files["/a.txt"], "12mine");  // as it is when the second question is answered
  EXPECT_EQ(StateOf(documents), "(/a.txt)|a.txt|/a.txt|/a.txt|0");
  platform.files.erase("/a.txt");
  EXPECT_EQ(change(), OutsideChange::kGone);
  EXPECT_EQ(Said({kYes}), ask + written);
  EXPECT_EQ(change(), OutsideChange::kNone);
  platform.files["/a.txt"] = "their";
  documents.ClearCurrent();
  EXPECT_EQ(change(), OutsideChange::kNone);
}

TEST_F(FastSave, AsksOnceBeforeTwoEncodingsGoOverAFileInUtf8) {
  const std::string mix = Asked(276, MixQuestion("/a.txt"));
  platform.files = {{"/a.txt", "\xC5\xBE"}, {"/page.txt", "\x9E"}};
  editor.opener.OpenPath("/a.txt");
  editor.text.Type("a");
  EXPECT_EQ(Said({kNo}), ask);  // still UTF-8
  editor.text.Type("\x9E");
  EXPECT_EQ(Said({kNo}), mix);
  EXPECT_EQ(Said({kYes, kYes, kNo}), mix + ask + overwrite);
  EXPECT_EQ(Said({kYes, kYes}), ask + overwrite + written);
  EXPECT_EQ(Said({kNo}), ask);
  platform.files["/a.txt"] = "\xC5\xBE";  // converted meanwhile
  platform.answers = {kNo};
  editor.saver.SaveToPath("/a.txt");
  EXPECT_EQ(platform.TakeTold(), mix);
  editor.saver.SaveToPath("/new.txt");  // spoils no file
  platform.answers = {kYes};
  editor.saver.SaveToPath("/page.txt");
  editor.text.SetText("\x9E");
  platform.answers = {kYes};
  editor.saver.SaveToPath("/a.txt");
  EXPECT_EQ(platform.files["/a.txt"], "\x9E");
}

TEST(InsertFromFile, ReadsOneField) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {" \t abc \t,def", "abc"},
      {"\"a, b\r\nc\" ,d", "a, b\r\nc"},
      {"", ""},
      {",x", ""},
      {"\"open", "open"},
      {"\"\",x", ""},
      {"a \"b\" c\nd", "a \"b\" c"},
      {"   ", ""},
      {"\r\nx", ""},
  };
  for (const auto& [bytes, field] : cases) EXPECT_EQ(FirstField(bytes), field) << bytes;
}

// The whole of what a rewriter makes of a text that comes in pieces of any length.
std::string Rewritten(FileRewriter&& rewriter, std::string_view text, RandomSource& random) {
  std::string out;
  while (!text.empty()) {
    const std::string piece(text.substr(0, 1 + random.Below(30)));
    out += rewriter.Rewrite(piece);
    text.remove_prefix(piece.size());
  }
  out += rewriter.Finish();
  return out.substr(0, rewriter.Kept());
}

TEST(LineEnds, EqualASlowWalkThroughRandomTexts) {
  RandomSource random(8);
  for (int round = 0; round < 3000; ++round) {
    const std::string text = random.Text(90, "a\r\n");
    std::string unix_text, dos_text;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] != '\n' || i == 0 || text[i - 1] != '\r') unix_text += text[i] == '\r' ? '\n' : text[i];
      dos_text += text[i] == '\n' ? "\r\n" : std::string(1, text[i]);
    }
    if (!unix_text.empty() && unix_text.back() != '\n') unix_text += '\n';
    dos_text.resize(dos_text.rfind('\n') + 1);  // required: what stands behind the last line feed is lost
    ASSERT_EQ(Rewritten(ToLineFeeds(), text, random), unix_text) << text;
    ASSERT_EQ(Rewritten(ToCrLf(), text, random), dos_text) << text;
  }
}

TEST(Encodings, OfOtherSystemsAreTold) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"\xC5\xBE\n", "Soubor je v UTF-8"}, {"\na", "Řádky končí"}, {"a\r\n\n", "Část řádků"}, {"\xBE\r\na\r", ""}};
  for (const auto& [text, told] : cases) {
    EXPECT_TRUE(FormatHint(text).starts_with(told)) << text;
    EXPECT_EQ(FormatHint(text).empty(), told.empty()) << text;
  }
}

TEST(Encodings, AnyTextGoesThereAndBackBesideItsFile) {
  RandomSource random(3);
  const std::pair<const char*, const char*> stems[] = {
      {"/a.d/b.c.txt", "/a.d/b.c."}, {"/a.d/b", "/a.d/b."}, {"/a/.rc", "/a/.rc."}, {"b.", "b."}};
  for (int round = 0; round < 400; ++round) {
    const std::string page = round % 2 ? random.Bytes(12) : random.Text(12, "k\xF9\xF2\r\n\x80?");
    const bool mark = round % 3 == 0;
    const std::string utf8 = (mark ? "\xEF\xBB\xBF" : "") + ToUtf8(page);
    const auto& [path, stem] = stems[round % 4];
    ScriptedPlatform platform;
    platform.answers.assign(1, kYes);  // where the bytes look like UTF-8 already
    platform.files = {{path, page}};
    ConvertToUtf8(platform, path, mark);
    ASSERT_EQ(platform.files[stem + std::string("utf8")], utf8);
    platform.files = {{path, utf8}};
    ConvertToPage(platform, path);
    ASSERT_EQ(platform.files[stem + std::string("1250")], page);
    ASSERT_EQ(platform.busy, 0);
  }
}

// Each character one wide, a tab leads to the next multiple of 8.
double EndOf(double x, std::string_view text) {
  for (const char ch : text) x = ch == '\t' ? (static_cast<int>(x) / 8 + 1) * 8.0 : x + 1;
  return x;
}

constexpr double kPage = 18;  // ten columns for text, eight for the "Z"s

TEST(PrintLayout, WrapsAtBlanksAndBreaks) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"\r\n", ""},
      {"abcd efgh ij", "abcd efgh|ij"},
      {"abcd efghi", "abcd efghi"},  // fits exactly
      {"a   b", "a   b"},
      {"a\tb c", "a\tb|c"},
      {"            x", "| x"},  // blanks run past the margin like words without width, each line with as many as fit
      // A wide word begins a line and isn't broken. required: a first one too
      {"ab abcdefghijklmnopqrstuvwxyz c", "ab|abcdefghijklmnopqrstuvwxyz|c"},
      {"abcdefghijk", "|abcdefghijk"},
      {"ab\r\n\r\ncd\nef gh\rij", "ab||cd|ef gh|ij"},
      {"abcde fg\r\nhijklmno p", "abcde fg|hijklmno p"},  // only what stands before the break has to fit
  };
  for (const auto& [text, paper] : cases) {
    std::vector<std::string> lines(1);
    for (const PrintedPiece& piece : LayOutForPrint(text, kPage, EndOf)) {
      lines.resize(piece.line + 1);
      lines.back().resize(static_cast<std::size_t>(piece.x), ' ');
      lines.back() += piece.text;
    }
    std::string put = lines[0];
    for (std::size_t line = 1; line < lines.size(); ++line) put += '|' + lines[line];
    EXPECT_EQ(put, paper) << text;
  }
}

TEST(PrintName, IsTheFilesName) {
  EXPECT_EQ(PrintName("") + ' ' + PrintName("/a.b/c.d.txt") + ' ' + PrintName("C:\\a\\b"), "Pelmar VEX c.d.txt b");
}

TEST(Printing, FillsPageAfterPageAndTellsWhereItWent) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  editor.text.SetText("a b\r\nc\r\nd\r\ne\r\n\r\n\r\n\r\nf");
  PrintDocument(editor, {"Font", 0, 0, 8, true, false});
  EXPECT_EQ(platform.TakeTold(),
            "busy 1; print Pelmar VEX Font 8 bold; put 0 0 \"a\"; put 0 2 \"b\"; put 1 0 \"c\"; put 2 0 \"d\"; page; "
            "put 0 0 \"e\"; page; put 1 0 \"f\"; busy 0; ");
  for (const auto& [error, told] : {std::pair(0, "je vytištěn do souboru\r\n/x.pdf\""),
                                    {ENOSPC, "nelze vytisknout ani do souboru\r\n/x.pdf\r\nna disku není místo\""}}) {
    platform.print_outcome = {.error = error, .problem = "Chybí modul.", .pdf = "/x.pdf"};
    platform.answers = {kOk};
    PrintDocument(editor, {});
    EXPECT_EQ(platform.calls.back(), std::string("message 64 \"Chybí modul. Text ") + told + " \"Tisk\"");
  }
  platform.print_outcome = {.error = EIO, .printer = "P"};
  EXPECT_THROW(PrintDocument(editor, {}), RuntimeError);
  EXPECT_EQ(platform.busy, 0);
}

}  // namespace
}  // namespace pelmar
