#include <gtest/gtest.h>

#include <vector>

#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "texttools/column_format.h"
#include "texttools/random_text.h"

namespace pelmar {
namespace {

using namespace std::string_view_literals;

TEST(TextTools, EachCommandChangesTheTextAndCallsThePlatform) {
  using enum Answer;
  const struct {
    const char* command;
    std::string_view before, after;
    const char* calls = "";
    Answer answer = kOk;
    int reseeds = 0;
  } cases[] = {
      {"mnusmall", "x[ŘEKA|x", "xřeka|x"},
      {"mnubig", "x[řeka|x", "xŘEKA|x"},
      {"mnupropercase", "[ŽLUŤOUČKÝ kůň\tčeká¶na-dvoře. a\vb\fc\0d\re|"sv,
       "Žluťoučký Kůň\tČeká¶Na-dvoře. A\vB\fC\0D\rE|"sv},
      {"mnuprevrat", "x[ab¶c|x", "xc\n\rba|x"},
      {"mnuHackyCarky", "x[Řeka|x", "xReka|x"},
      {"mnu_untext", "x[řeka|x", "xřeKA|x", "", kOk, 1},

      {"Mnu_Sort_Lines", "x[b¶a¶|y", "xa¶b¶|y", "busy 1; busy 0; "},
      {"Mnu_Sort_Lines", "[b¶¶a|", "ab¶|", "busy 1; busy 0; "},  // required: "a" still has no line end
      {"Mnu_Sort_Lines", "[b\n\na2¶A1¶a1¶|", "\nA1¶a1¶a2¶b\n|", "busy 1; busy 0; "},
      // required: the last character is lost
      {"mnuEnterLineNumbers", "[a¶b¶|", "00001 a¶00002 b\r|", "busy 1; busy 0; "},
      {"mnuEnterLineNumbers", "[x|", "00001 |", "busy 1; busy 0; "},
      {"mnuEnterLineNumbers", "a|b", "a|b", "busy 1; message 0 \"Vyber text\" \"Očíslování\"; busy 0; "},
      {"MnuSelTextDivideWordsToLines", "[a¶b  c |", "a¶b ¶ ¶c ¶|", "busy 1; busy 0; "},
      {"MnuSelTextDivideWordsToLines", "[ab cd|", "ab ¶cd¶|", "busy 1; busy 0; "},
      {"mnucharcount", "[ab\r|\n", "[ab\r|\n", "message 0 \"Počet znaků je : 3 celkem.\" \"Znaky\"; "},
      {"mnucharcount", "|ab", "|ab", "message 0 \"Počet znaků v celém textu je : 2 celkem.\" \"Znaky\"; "},

      {"mnunahslovo", "x[a b|x", "xgn |a bx", "", kOk, 1},
      {"mnunahjmeno", "x|a", "xGn Agntagnt |a", "", kOk, 1},
      {"mnunahtex", "|x", "Gna tgtgtgt. |x", "", kOk, 1},
      // required: the last word has no blank
      {"MnuSelTextDada", "x[a b c d e|x", "xa c d eb |x", "busy 1; busy 0; ", kOk, 1},

      {"Mnu_Open_Next_Window", "a|", "a|", "start copy; "},
      {"mnuadd", "a[bc|d", "aXY|bcd"},  // required: the selection stays
      {"Paste", "a|bc[d", "aXY|bcd"},
      {"Cut", "a[bc|d", "a|d", "clipboard \"bc\"; "},
      {"Copy", "a[bc|d", "a[bc|d", "clipboard \"bc\"; "},
      {"mnucopy", "a[bc|d", "a[bc|d", "clipboard \"abcd\"; "},
      {"mnucopysel", "a|d", "a|d", "clipboard \"\"; "},  // an empty text is copied too
      {"mnuallselect", "ab|cd", "[abcd|"},
      {"mnuinsert", "a|b", "a|b", "message 52 \"Opravdu vše nahradit textem ze schránky ?\" \"Vložení\"; ", kNo},
      {"mnuinsert", "a|b", "|XY", "message 52 \"Opravdu vše nahradit textem ze schránky ?\" \"Vložení\"; ", kYes},
      {"mnuclearclip", "|", "|", "message 52 \"Opravdu vyčistit schránku ?\" \"Vyčištění\"; ", kNo},
      {"mnuclearclip", "|", "|", "message 52 \"Opravdu vyčistit schránku ?\" \"Vyčištění\"; clipboard clear; ", kYes},
      {"mnunewclip", "a|b", "a|b", "message 52 \"Opravdu nový dokument z textu ve schránce ?\" \"Nový\"; ", kNo},
      {"mnunewclip", "a|b", "|XY", "message 52 \"Opravdu nový dokument z textu ve schránce ?\" \"Nový\"; ", kYes},
  };
  for (const auto& c : cases) {
    ScriptedPlatform platform;
    WholeEditor editor(platform);
    editor.documents.MakeCurrent("/a.txt");
    PutMarked(editor.text, c.before);
    platform.clipboard = "XY";
    platform.answers = {c.answer};
    editor.commands.Run(c.command);
    EXPECT_EQ(Marked(editor.text), c.after) << c.command;
    EXPECT_EQ(platform.TakeCallsInOneLine(), c.calls) << c.command;
    EXPECT_EQ(platform.reseeds, c.reseeds) << c.command;
    // required: the command forgets the path after No too
    EXPECT_EQ(editor.documents.CurrentPath(), c.command == "mnunewclip"sv ? "" : "/a.txt") << c.command;
  }
}

TEST(RandomText, DependsOnlyOnItsDraws) {
  const std::vector<double> lowest{0}, highest{0.999};
  const std::vector<double> mixed{0, 0, 0, 0.45, 0.9, 0.05, 0.45, 0.45, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0.6};
  const struct {
    std::string (*generate)(const Draw&);
    std::vector<double> draws;
    std::string text;
    std::size_t taken;
  } cases[] = {
      {RandomSentence, lowest, "Aaaaaaaaaa. ", 21},
      {RandomSentence, mixed, "Aa b, aaaaaaa? ", 23},
      {RandomWord, highest, "zzzzzzzzzz ", 11},
      {RandomName, highest, "Zzzzzzzzzz Zzzzzzzzzz ", 22},
  };
  for (const auto& c : cases) {
    std::size_t taken = 0;
    EXPECT_EQ(c.generate([&] { return c.draws[taken++ % c.draws.size()]; }), c.text);
    EXPECT_EQ(taken, c.taken) << c.text;
  }
  EXPECT_TRUE(RandomSentence([] { return 0.999; }).ends_with("Z" + std::string(49, 'z') + "! "));
}

TEST(ColumnFormat, MakesRowsOfTheSelectionAndMeasuresTheShortest) {
  const std::tuple<std::string_view, Rows, std::size_t> cases[] = {
      {"", {}, 0},
      {"a", {}, 1},  // required: one character gives no row
      {"ab", {"ab"}, 2},
      {"abc\r\n", {"abc", "bc\r\n"}, 4},  // required: the extra row
      {"abc\r\nde\r\n", {"abc", "de", "e\r\n"}, 3},
      {"abc\r\n\r\nde", {"abc", "", "de"}, 0},
      {"abc\r\n\r\n", {"abc", ""}, 3},              // the loop ends before the line feed of the empty line
      {"ab\ncd", {"cd"}, 2},                        // a bare line feed makes no row
      {"ab\rc\r\n", {"ab", "b\rc", "\rc\r\n"}, 4},  // only a line feed ends a line
      {"ab\r\nd", {"ab"}, 2},                       // required: a last line of one character gives no row
  };
  for (const auto& [selected, rows, shortest] : cases) {
    const SelectedRows result = RowsOfSelection(selected);
    EXPECT_EQ(result.rows, rows) << selected;
    EXPECT_EQ(result.shortest, shortest) << selected;
  }
}

TEST(ColumnFormat, InsertsAndRemovesAtTheDistance) {
  const struct {
    std::size_t distance;
    Rows insert_from_start, remove_from_start, insert_from_end, remove_from_end;
  } cases[] = {
      {0, {"-ab", "-cde", "-", "-x"}, {"b", "de", "", ""}, {"ab-", "cde-", "-", "x-"}, {"a", "cd", "", ""}},
      {1, {"a-b", "c-de", "", "x-"}, {"a", "ce", "", "x"}, {"a-b", "cd-e", "", "-x"}, {"b", "ce", "", "x"}},
      {2, {"ab-", "cd-e", "", "x"}, {"ab", "cd", "", "x"}, {"-ab", "c-de", "", "x"}, {"ab", "de", "", "x"}},
      {3, {"ab", "cde-", "", "x"}, {"ab", "cde", "", "x"}, {"ab", "-cde", "", "x"}, {"ab", "cde", "", "x"}},
  };
  const auto after = [](auto operation, auto... arguments) {
    Rows rows{"ab", "cde", "", "x"};
    operation(rows, arguments...);
    return rows;
  };
  for (const auto& c : cases) {
    EXPECT_EQ(after(InsertFromStart, c.distance, "-"), c.insert_from_start) << c.distance;
    EXPECT_EQ(after(RemoveFromStart, c.distance), c.remove_from_start) << c.distance;
    EXPECT_EQ(after(InsertFromEnd, c.distance, "-"), c.insert_from_end) << c.distance;
    EXPECT_EQ(after(RemoveFromEnd, c.distance), c.remove_from_end) << c.distance;
  }
  EXPECT_EQ(ShortestRow({"abc", "ab", "x"}), 1u);
  EXPECT_EQ(ShortestRow({}), 0u);
}

}  // namespace
}  // namespace pelmar
