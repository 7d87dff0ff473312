#include <gtest/gtest.h>

#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(TextTools, EachCommandLeavesItsTextAndCalls) {
  const struct {
    const char* command;
    std::string_view before, after;
    const char* calls = "";
    Answer answer = Answer::kOk;
  } cases[] = {
      {"mnusmall", "x[ŘEKA|x"_w, "xřeka|x"_w},
      {"mnubig", "x[řeka|x"_w, "xŘEKA|x"_w},
      {"mnubig", "a|b", "a|b"},  // nothing selected, nothing said
      {"mnupropercase", "[ŽLUŤOUČKÝ kůň\tčeká\r\nna-dvoře. že|"_w, "Žluťoučký Kůň\tČeká\r\nNa-dvoře. Že|"_w},
      {"mnuprevrat", "x[ab\r\nc|x", "xc\n\rba|x"},
      {"mnuHackyCarky", "x[Řeka|x"_w, "xReka|x"},
      {"mnu_untext", "x[řeka|x"_w, "xřeKA|x"_w, "reseed 1"},

      {"Mnu_Sort_Lines", "x[b\r\na\r\n|y", "xa\r\nb\r\n|y", "busy 1 busy 0 "},
      {"Mnu_Sort_Lines", "[b\r\n\r\na|", "ab\r\n|", "busy 1 busy 0 "},  // required: the end is missing where it was
      {"Mnu_Sort_Lines", "[b\n\na2\r\nA1\r\na1\r\n|", "\nA1\r\na1\r\na2\r\nb\n|", "busy 1 busy 0 "},
      {"Mnu_Sort_Lines", "a|b", "a|b", "busy 1 busy 0 "},
      {"mnuEnterLineNumbers", "[a\r\nb\r\n|", "00001 a\r\n00002 b\r|",
       "busy 1 busy 0 "},  // required: the last one is lost
      {"mnuEnterLineNumbers", "[x|", "00001 |", "busy 1 busy 0 "},
      {"mnuEnterLineNumbers", "a|b", "a|b", "busy 1 message 0 \"Vyber text\" \"Očíslování\" busy 0 "},
      {"MnuSelTextDivideWordsToLines", "[a\r\nb  c |", "a\r\nb \r\n \r\nc \r\n|", "busy 1 busy 0 "},
      {"MnuSelTextDivideWordsToLines", "[ab cd|", "ab \r\ncd\r\n|", "busy 1 busy 0 "},
      {"MnuSelTextDivideWordsToLines", "a|b", "a|b", "busy 1 busy 0 "},
      {"mnucharcount", "[ab\r|\n", "[ab\r|\n", "message 0 \"Počet znaků je : 3 celkem.\" \"Znaky\" "},
      {"mnucharcount", "|ab", "|ab", "message 0 \"Počet znaků v celém textu je : 2 celkem.\" \"Znaky\" "},

      {"mnunahslovo", "x[a b|x", "xgn |a bx", "reseed 1"},
      {"mnunahjmeno", "x|a", "xGn Agntagnt |a", "reseed 1"},
      {"mnunahtex", "|x", "Gna tgtgtgt. |x", "reseed 1"},
      {"MnuSelTextDada", "x[a b c d e|x", "xa c d eb |x", "busy 1 busy 0 reseed 1"},
      {"MnuSelTextDada", "a|b", "a|b", "busy 1 busy 0 reseed 1"},

      {"mnuadd", "a[bc|d", "aXY|bcd"},  // required: never over the selection
      {"Paste", "a[bc|d", "aXY|bcd"},
      {"mnucut", "a[bc|d", "a|d", "clipboard \"bc\" "},
      {"Cut", "a[bc|d", "a|d", "clipboard \"bc\" "},
      {"Copy", "a[bc|d", "a[bc|d", "clipboard \"bc\" "},
      {"mnucopy", "a[bc|d", "a[bc|d", "clipboard \"abcd\" "},
      {"mnucopysel", "a|d", "a|d", "clipboard \"\" "},  // the empty text goes there all the same
      {"mnuallselect", "ab|cd", "[abcd|"},
      {"mnuinsert", "a|b", "a|b", "message 52 \"Opravdu vše nahradit textem ze schránky ?\" \"Vložení\" ", Answer::kNo},
      {"mnuinsert", "a|b", "|XY", "message 52 \"Opravdu vše nahradit textem ze schránky ?\" \"Vložení\" ",
       Answer::kYes},
      {"mnuclearclip", "|", "|", "message 52 \"Opravdu vyčistit schránku ?\" \"Vyčištění\" ", Answer::kNo},
      {"mnuclearclip", "|", "|", "message 52 \"Opravdu vyčistit schránku ?\" \"Vyčištění\" clipboard clear ",
       Answer::kYes},
      {"mnunewclip", "a|b", "a|b", "message 52 \"Opravdu nový dokument z textu ve schránce ?\" \"Nový\" ", Answer::kNo},
      {"mnunewclip", "a|b", "|XY", "message 52 \"Opravdu nový dokument z textu ve schránce ?\" \"Nový\" ",
       Answer::kYes},
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
    std::string calls;
    for (const std::string& call : platform.calls) calls += call + ' ';
    EXPECT_EQ(calls + (platform.reseeds > 0 ? "reseed 1" : ""), c.calls) << c.command;
    const bool forgets = std::string_view(c.command) == "mnunewclip";  // required: on No as well
    EXPECT_EQ(editor.documents.CurrentPath(), forgets ? "" : "/a.txt") << c.command;
  }
}

}  // namespace
}  // namespace pelmar
