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
  const std::pair<std::string, std::vector<PrintedPiece>> cases[] = {
      {"", {}},
      {"abcd efgh ij", {{0, 0, "abcd"}, {0, 5, "efgh"}, {1, 0, "ij"}}},
      {"abcd efghi", {{0, 0, "abcd"}, {0, 5, "efghi"}}},  // fits exactly
      {"a   b", {{0, 0, "a"}, {0, 4, "b"}}},
      {"a\tb c", {{0, 0, "a\tb"}, {1, 0, "c"}}},
      // Blanks run past the margin like words without width, each line with as many as fit.
      {"            x", {{1, 1, "x"}}},
      // A wide word begins a line and isn't broken. required: a first one too
      {"ab abcdefghijklmnopqrstuvwxyz c", {{0, 0, "ab"}, {1, 0, "abcdefghijklmnopqrstuvwxyz"}, {2, 0, "c"}}},
      {"abcdefghijk", {{1, 0, "abcdefghijk"}}},
      {"ab\r\n\r\ncd\nef gh\rij", {{0, 0, "ab"}, {2, 0, "cd"}, {3, 0, "ef"}, {3, 3, "gh"}, {4, 0, "ij"}}},
      // Only what stands before the break has to fit.
      {"abcde fg\r\nhijklmno p", {{0, 0, "abcde"}, {0, 6, "fg"}, {1, 0, "hijklmno"}, {1, 9, "p"}}},
      {"\r\n", {}},
  };
  for (const auto& [text, pieces] : cases) EXPECT_EQ(LayOutForPrint(text, kPage, EndOf), pieces) << text;
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
};

TEST_F(PrintTest, FillsPageAfterPage) {
  PrintDocument(editor, look);
  EXPECT_EQ(platform.TakeCalls(),
            (std::vector<std::string>{"busy 1", "print Pelmar VEX Courier New 12 italic", "put 0 0 \"a\"",
                                      "put 0 2 \"b\"", "put 1 0 \"c\"", "put 2 0 \"d\"", "page", "put 0 0 \"e\"",
                                      "page", "put 1 0 \"f\"", "busy 0"}));
}

TEST_F(PrintTest, AsksAboutTheSelection) {
  editor.text.Select(0, 1);
  platform.answers = {Answer::kYes, Answer::kNo};
  PrintDocument(editor, look);
  EXPECT_EQ(platform.TakeCalls(),
            (std::vector<std::string>{"message 52 \"Tisknout pouze výběr ?\" \"Tisk\"", "busy 1",
                                      "print Pelmar VEX Courier New 12 italic", "put 0 0 \"a\"", "busy 0"}));
  PrintDocument(editor, look);
  EXPECT_EQ(platform.calls.size(), 12u);  // the whole text
  EXPECT_EQ(editor.text.SelText(), "a");
  platform.TakeCalls();
  platform.answers = {Answer::kNone};
  PrintDocument(editor, look);
  EXPECT_EQ(platform.calls.size(), 1u);  // only the question
}

TEST_F(PrintTest, NamesThePdfAndThrowsAnError) {
  platform.print_outcome.pdf = "/doc/x.pdf";
  platform.answers = {Answer::kOk};
  editor.text.SetText("");
  PrintDocument(editor, look);
  EXPECT_EQ(platform.calls.back(),
            "message 64 \"Není nastavena žádná tiskárna. Text je vytištěn do souboru\r\n/doc/x.pdf\" \"Tisk\"");
  platform.answers = {Answer::kOk};
  platform.print_outcome.problem = "Chybí modul.";
  PrintDocument(editor, look);
  EXPECT_EQ(platform.calls.back(), "message 64 \"Chybí modul. Text je vytištěn do souboru\r\n/doc/x.pdf\" \"Tisk\"");
  platform.print_outcome = {.error = EIO, .pdf = {}};
  EXPECT_THROW(PrintDocument(editor, look), RuntimeError);
  EXPECT_EQ(platform.busy, 0);
}

}  // namespace
}  // namespace pelmar
