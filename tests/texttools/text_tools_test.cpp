#include <gtest/gtest.h>

#include <vector>

#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"
#include "texttools/column_format.h"
#include "texttools/random_text.h"

namespace pelmar {
namespace {

TEST(TextTools, EachCommandLeavesItsTextAndCalls) {
  using enum Answer;
  const struct {
    const char* command;
    std::string_view before, after;
    const char* calls = "";
    Answer answer = kOk;
  } cases[] = {
      {"mnusmall", "x[ŘEKA|x"_w, "xřeka|x"_w},
      {"mnubig", "x[řeka|x"_w, "xŘEKA|x"_w},
      {"mnubig", "a|b", "a|b"},  // nothing selected, nothing said
      {"mnupropercase", "[ŽLUŤOUČKÝ kůň\tčeká\r\nna-dvoře. a\vb\fc\0d|"_w,
       "Žluťoučký Kůň\tČeká\r\nNa-dvoře. A\vB\fC\0D|"_w},
      {"mnuprevrat", "x[ab\r\nc|x", "xc\n\rba|x"},
      {"mnuHackyCarky", "x[Řeka|x"_w, "xReka|x"},
      {"mnu_untext", "x[řeka|x"_w, "xřeKA|x"_w, "reseed 1"},

      {"Mnu_Sort_Lines", "x[b\r\na\r\n|y", "xa\r\nb\r\n|y", "busy 1; busy 0; "},
      {"Mnu_Sort_Lines", "[b\r\n\r\na|", "ab\r\n|", "busy 1; busy 0; "},  // required: the end is missing where it was
      {"Mnu_Sort_Lines", "[b\n\na2\r\nA1\r\na1\r\n|", "\nA1\r\na1\r\na2\r\nb\n|", "busy 1; busy 0; "},
      {"Mnu_Sort_Lines", "a|b", "a|b", "busy 1; busy 0; "},
      // required: the last character is lost
      {"mnuEnterLineNumbers", "[a\r\nb\r\n|", "00001 a\r\n00002 b\r|", "busy 1; busy 0; "},
      {"mnuEnterLineNumbers", "[x|", "00001 |", "busy 1; busy 0; "},
      {"mnuEnterLineNumbers", "a|b", "a|b", "busy 1; message 0 \"Vyber text\" \"Očíslování\"; busy 0; "},
      {"MnuSelTextDivideWordsToLines", "[a\r\nb  c |", "a\r\nb \r\n \r\nc \r\n|", "busy 1; busy 0; "},
      {"MnuSelTextDivideWordsToLines", "[ab cd|", "ab \r\ncd\r\n|", "busy 1; busy 0; "},
      {"MnuSelTextDivideWordsToLines", "a|b", "a|b", "busy 1; busy 0; "},
      {"mnucharcount", "[ab\r|\n", "[ab\r|\n", "message 0 \"Počet znaků je : 3 celkem.\" \"Znaky\"; "},
      {"mnucharcount", "|ab", "|ab", "message 0 \"Počet znaků v celém textu je : 2 celkem.\" \"Znaky\"; "},

      {"mnunahslovo", "x[a b|x", "xgn |a bx", "reseed 1"},
      {"mnunahjmeno", "x|a", "xGn Agntagnt |a", "reseed 1"},
      {"mnunahtex", "|x", "Gna tgtgtgt. |x", "reseed 1"},
      {"MnuSelTextDada", "x[a b c d e|x", "xa c d eb |x", "busy 1; busy 0; reseed 1"},
      {"MnuSelTextDada", "a|b", "a|b", "busy 1; busy 0; reseed 1"},

      {"mnuadd", "a[bc|d", "aXY|bcd"},  // required: never over the selection
      {"Paste", "a|bc[d", "aXY|bcd"},
      {"mnucut", "a[bc|d", "a|d", "clipboard \"bc\"; "},
      {"Cut", "a[bc|d", "a|d", "clipboard \"bc\"; "},
      {"Copy", "a[bc|d", "a[bc|d", "clipboard \"bc\"; "},
      {"mnucopy", "a[bc|d", "a[bc|d", "clipboard \"abcd\"; "},
      {"mnucopysel", "a|d", "a|d", "clipboard \"\"; "},  // the empty text goes there all the same
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
    editor.documents.MakeCurrent("/a.txt", "");
    PutMarked(editor.text, c.before);
    platform.clipboard = "XY";
    platform.answers = {c.answer};
    editor.commands.Run(c.command);
    EXPECT_EQ(Marked(editor.text), c.after) << c.command;
    EXPECT_EQ(platform.TakeTold() + (platform.reseeds > 0 ? "reseed 1" : ""), c.calls) << c.command;
    const bool forgets = std::string_view(c.command) == "mnunewclip";  // required: on No as well
    EXPECT_EQ(editor.documents.CurrentPath(), forgets ? "" : "/a.txt") << c.command;
    EXPECT_EQ(editor.documents.Title() == "Pelmar VEX ()", forgets) << c.command;
  }
}

// What a generator makes of these draws, which repeat, and how many it takes.
template <class Generate>
std::string Made(const Generate& generate, const std::vector<double>& draws) {
  std::size_t taken = 0;
  const std::string text = generate([&] { return draws[taken++ % draws.size()]; });
  return std::to_string(taken) + ' ' + text;
}

TEST(RandomText, FollowsItsDraws) {
  EXPECT_EQ(Made(RandomSentence, {0}), "21 Aaaaaaaaaa. ");
  EXPECT_EQ(Made(RandomSentence, {0, 0, 0, 0.3, 0.9, 0.05, 0.3, 0.3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0.6}),
            "23 Aa b, aaaaaaa? ");
  EXPECT_TRUE(Made(RandomSentence, {0.999}).ends_with("Z" + std::string(49, 'z') + "! "));
  EXPECT_EQ(Made(RandomWord, {0}), "3 aa ");
  EXPECT_EQ(Made(RandomWord, {0.999}), "11 zzzzzzzzzz ");
  EXPECT_EQ(Made(RandomName, {0}), "6 Aa Aa ");
  EXPECT_EQ(Made(RandomName, {0.999}), "22 Zzzzzzzzzz Zzzzzzzzzz ");
  const auto shuffle = [](const Draw& draw) { return ShuffledWords("a b\r\n  c", draw); };
  EXPECT_EQ(Made(shuffle, {0}), "4 a b\r\n  c");
  EXPECT_EQ(Made(shuffle, {0.999}), "4 c b\r\n a ");  // required: the last word runs into the next one
  EXPECT_EQ(Made(shuffle, {0.5}), "4  b\r\n ca ");
}

std::string Shown(const Rows& rows) {
  std::string shown;
  for (const std::string& row : rows) shown += row + '|';
  return shown;
}

TEST(ColumnFormat, TheLoadMakesItsRowsAndTellsTheShortest) {
  const std::pair<std::string_view, std::string> cases[] = {
      {"", " 0"},
      {"a", " 1"},  // required: one character gives no row
      {"ab", "ab| 2"},
      {"ab\r\ncde", "ab|cde| 2"},
      {"abc\r\n", "abc|bc\r\n| 4"},  // required: the extra row
      {"abc\r\nde\r\n", "abc|de|e\r\n| 3"},
      {"abc\r\n\r\nde", "abc||de| 0"},
      {"abc\r\n\r\n", "abc|| 3"},           // the walk ends before the line feed of the empty line
      {"ab\ncd", "cd| 2"},                  // a bare line feed makes no row
      {"ab\rc\r\n", "ab|b\rc|\rc\r\n| 4"},  // only a line feed ends a line
      {"ab\r\nd", "ab| 2"},                 // required: a last line of one character gives no row
  };
  for (const auto& [selected, shown] : cases) {
    const SelectedRows result = RowsOfSelection(selected);
    EXPECT_EQ(Shown(result.rows) + ' ' + std::to_string(result.shortest), shown) << selected;
  }
}

TEST(ColumnFormat, OperationsActAtTheDistance) {
  const auto after = [](auto operation, auto... arguments) {
    Rows rows{"ab", "cde", "", "x"};
    operation(rows, arguments...);
    return Shown(rows) + ' ';
  };
  const std::string_view shown[] = {
      "-ab|-cde|-|-x| b|de||| ab-|cde-|-|x-| a|cd||| ",
      "a-b|c-de||x-| a|ce||x| a-b|cd-e||-x| b|ce||x| ",
      "ab-|cd-e||x| ab|cd||x| -ab|c-de||x| ab|de||x| ",
      "ab|cde-||x| ab|cde||x| ab|-cde||x| ab|cde||x| ",
  };
  for (std::size_t distance = 0; distance < std::size(shown); ++distance)
    EXPECT_EQ(after(InsertFromStart, distance, "-") + after(RemoveFromStart, distance) +
                  after(InsertFromEnd, distance, "-") + after(RemoveFromEnd, distance),
              shown[distance]);
  EXPECT_EQ(ShortestRow({"abc", "ab", "x"}) + 10 * ShortestRow({}), 1u);
}

}  // namespace
}  // namespace pelmar
