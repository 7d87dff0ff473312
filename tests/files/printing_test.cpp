#include "files/printing.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/runtime_error.h"
#include "support/marked_text.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

using enum Answer;

// Each character is one unit wide. A tab ends at the next multiple of 8.
double EndOf(double x, std::string_view text) {
  for (const char ch : text) x = ch == '\t' ? (static_cast<int>(x) / 8 + 1) * 8.0 : x + 1;
  return x;
}

constexpr double kPage = 18;  // ten columns for text and eight for the margin

TEST(PrintLayout, WrapsAtBlanksAndBreaks) {
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"", {""}},
      {"\r\n", {""}},
      {"abcd efgh ij", {"abcd efgh", "ij"}},
      {"abcd efghi", {"abcd efghi"}},  // fits exactly
      {"a\tb c", {"a\tb", "c"}},
      {"            x", {"", " x"}},  // each blank ends an empty word, so a row of blanks wraps too
      // A word wider than the line begins a line and isn't broken. required: the first word too begins a new line
      {"ab abcdefghijklmnopqrstuvwxyz c", {"ab", "abcdefghijklmnopqrstuvwxyz", "c"}},
      {"abcdefghijk", {"", "abcdefghijk"}},
      {"ab\r\n\r\ncd\nef gh\rij", {"ab", "", "cd", "ef gh", "ij"}},
      {"abcde fg\r\nhijklmno p", {"abcde fg", "hijklmno p"}},  // only the part before the line break must fit
  };
  for (const auto& [text, paper] : cases) {
    std::vector<std::string> lines(1);
    for (const PrintedPiece& piece : LayOutForPrint(text, kPage, EndOf)) {
      lines.resize(piece.line + 1);
      lines.back().resize(static_cast<std::size_t>(piece.x), ' ');
      lines.back() += piece.text;
    }
    EXPECT_EQ(lines, paper) << text;
  }
}

struct PrintingTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
};

TEST_F(PrintingTest, FillsPageAfterPage) {
  editor.text.SetText("a b\r\nc\r\nd\r\ne\r\n\r\n\r\n\r\nf");
  PrintDocument(editor, {"Font", 0, 0, 8, true, false});
  EXPECT_EQ(platform.calls, (std::vector<std::string>{"busy 1", "print Pelmar VEX Font 8 bold", R"(put 0 0 "a")",
                                                      R"(put 0 2 "b")", R"(put 1 0 "c")", R"(put 2 0 "d")", "page",
                                                      R"(put 0 0 "e")", "page", R"(put 1 0 "f")", "busy 0"}));
}

TEST_F(PrintingTest, TheJobHasTheNameOfTheFile) {
  editor.documents.MakeCurrent("/a/b.txt");
  PrintDocument(editor, {});
  EXPECT_TRUE(platform.calls[1].starts_with("print b.txt ")) << platform.calls[1];
}

TEST_F(PrintingTest, AsksAboutASelectionAndPrintsNothingWithoutAnAnswer) {
  PlainView view;
  AddPrintCommands(editor, view);
  PutMarked(editor.text, "[new|saved");
  const std::tuple<const char*, Answer, const char*> cases[] = {
      {"mnuprint", kYes, R"(put 0 0 "new")"}, {"Print", kNo, R"(put 0 0 "newsaved")"}, {"mnuprint", kNone, nullptr}};
  for (const auto& [command, answer, put] : cases) {
    platform.answers = {answer};
    editor.commands.Run(command);
    const std::vector<std::string> calls = platform.TakeCalls();
    EXPECT_EQ(calls.front(), "message 52 \"Tisknout pouze výběr ?\" \"Tisk\"");
    EXPECT_EQ(calls.size(), put ? 5u : 1u) << command;
    EXPECT_EQ(std::ranges::count(calls, put ? put : ""), put ? 1 : 0) << command;
  }
}

TEST_F(PrintingTest, WithoutAPrinterTheTextGoesIntoAFileOrAFailureIsReported) {
  for (const auto& [error, report] : {std::pair(0, "je vytištěn do souboru\r\n/x.pdf\""),
                                      {ENOSPC, "nelze vytisknout ani do souboru\r\n/x.pdf\r\nna disku není místo\""}}) {
    platform.print_outcome = {.error = error, .problem = "Chybí modul.", .pdf = "/x.pdf"};
    platform.answers = {kOk};
    PrintDocument(editor, {});
    EXPECT_EQ(platform.calls.back(), std::string("message 64 \"Chybí modul. Text ") + report + " \"Tisk\"");
  }
}

TEST_F(PrintingTest, AFailingPrinterIsAnError) {
  platform.print_outcome = {.error = EIO, .printer = "P"};
  EXPECT_THROW(PrintDocument(editor, {}), RuntimeError);
  EXPECT_EQ(platform.busy, 0);
}

}  // namespace
}  // namespace pelmar
