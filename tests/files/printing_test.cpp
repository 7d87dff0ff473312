#include "files/printing.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/runtime_error.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

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
  EXPECT_EQ(PrintName(""), "Pelmar VEX");
  EXPECT_EQ(PrintName("/a.b/c.d.txt"), "c.d");
  EXPECT_EQ(PrintName("/a/.profile"), ".profile");
  EXPECT_EQ(PrintName("C:\\a\\b"), "b");
}

struct PrintTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  EditorLook look;

  PrintTest() {
    look.font_name = "Courier New";
    look.font_size = 12;
    look.italic = true;
    platform.paper_width = kPage;
    editor.text.SetText("a b\r\nc\r\nd\r\ne\r\n\r\n\r\n\r\nf");
  }

  // What a print asks and puts on paper.
  std::string Printed(std::deque<Answer> answers) {
    platform.answers = std::move(answers);
    PrintDocument(editor, look);
    return platform.TakeTold();
  }
};

TEST_F(PrintTest, FillsPageAfterPageOfTheTextOrTheSelection) {
  const std::string begin = "busy 1; print Pelmar VEX Courier New 12 italic; put 0 0 \"a\"; ";
  const std::string whole =
      begin + "put 0 2 \"b\"; put 1 0 \"c\"; put 2 0 \"d\"; page; put 0 0 \"e\"; page; put 1 0 \"f\"; busy 0; ";
  EXPECT_EQ(Printed({}), whole);
  editor.text.Select(0, 1);
  const std::string ask = "message 52 \"Tisknout pouze výběr ?\" \"Tisk\"; ";
  EXPECT_EQ(Printed({Answer::kYes}), ask + begin + "busy 0; ");
  EXPECT_EQ(Printed({Answer::kNo}), ask + whole);
  EXPECT_EQ(Printed({Answer::kNone}), ask);
  EXPECT_EQ(editor.text.SelText(), "a");
}

TEST_F(PrintTest, NamesThePdfAndThrowsAnError) {
  editor.text.SetText("");
  platform.print_outcome.pdf = "/doc/x.pdf";
  for (const char* problem : {"", "Chybí modul."}) {
    platform.print_outcome.problem = problem;
    EXPECT_EQ(Printed({Answer::kOk}), "busy 1; print Pelmar VEX Courier New 12 italic; busy 0; message 64 \"" +
                                          std::string(*problem ? problem : "Není nastavena žádná tiskárna.") +
                                          " Text je vytištěn do souboru\r\n/doc/x.pdf\" \"Tisk\"; ");
  }
  platform.print_outcome = {.error = EIO, .pdf = {}};
  EXPECT_THROW(PrintDocument(editor, look), RuntimeError);
  EXPECT_EQ(platform.busy, 0);
}

}  // namespace
}  // namespace pelmar
