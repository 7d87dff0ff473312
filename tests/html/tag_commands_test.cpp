#include "html/tag_commands.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct TagCommandsTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};

  // Runs the commands in an empty document, one after the other, and returns the document.
  std::string Written(std::initializer_list<const char*> commands) {
    editor.text.SetText("");
    for (const char* command : commands) editor.commands.Run(command);
    return ToUtf8(editor.text.Text());
  }
  // Runs the command in a document of the selected text and "-", and returns the document.
  std::string AfterCommand(const std::string& command, const std::string& selected) {
    editor.text.SetText(selected + "-");
    editor.text.Select(0, selected.size());
    editor.commands.Run(command);
    return editor.text.Text();
  }
};

TEST_F(TagCommandsTest, WriteFixedTexts) {
  EXPECT_EQ(Written({"mnubr", "MnuHTMLeft", "MnuHTMLright", "mnuHTMLAnd", "MnuHTMLnobr", "mnuand", "mnudolar",
                     "mnucross", "mnuSS", "mnuZav", "mnubackslash", "mnucop", "mnureg", "mnutm"}),
            "<BR>&lt;&gt;&amp;&nbsp;&$#ß@\\©®™");
}

TEST_F(TagCommandsTest, WriteTheTimeAndTheProfile) {
  platform.now = {2026, 3, 9, 7, 5, 0};
  EXPECT_EQ(Written({"mnudate", "mnutime", "mnuemail"}), "03-09-202607:05:00\"\" <>");
  editor.settings.UserName = "Jan Novák"_w;
  editor.settings.UserEmail = "jan@x.cz";
  EXPECT_EQ(Written({"mnuemail"}), "\"Jan Novák\" <jan@x.cz>");
}

TEST_F(TagCommandsTest, WrapTheSelectionWithoutTheSample) { EXPECT_EQ(AfterCommand("mnupre", "x"), "<PRE> x </PRE>-"); }

TEST_F(TagCommandsTest, WithoutASelectionWrapASample) {
  EXPECT_EQ(Written({"mnucenter"}), "<CENTER> Centrovaný text </CENTER>");
  EXPECT_EQ(Written({"Center"}), "<CENTER>Centrovaný text</CENTER>");  // required: without blanks
  EXPECT_EQ(Written({"Bold", "Italic", "Underline"}), "<B>Tučně</B><I>Kurzívou</I><U>Podtrženě</U>");
  EXPECT_EQ(Written({"mnuBold", "mnuHtmlI", "mnuHTMLU", "mnustrike", "mnuhttpbig", "mnusmaal", "mnu_strong", "mnusup"}),
            "<B>Tučně</B><I>Kurzívou</I><U>Podtrženě</U><STRIKE>Přeškrtnutě</STRIKE><BIG>Velké</BIG>"
            "<SMALL>Malé</SMALL><STRONG>Silně</STRONG><SUP>Horní index</SUP>");
  EXPECT_EQ(Written({"mnusub", "mnutt", "mnucite", "mnuadress", "mnupre", "mnucitetext", "mnuhtml_fno"}),
            "<SUB>Dolní index</SUB><TT>Pevná šířka znaků</TT><CITE>Citát</CITE>"
            "<ADDRESS>http://www.pohádka.cz</ADDRESS><PRE> Předformátovaný text </PRE>"
            "<BLOCKQUOTE> Citovaný text </BLOCKQUOTE><NOFRAMES>rámce nejsou viditelné</NOFRAMES>");
}

TEST_F(TagCommandsTest, MakeListsOfTheSelectedLines) {
  const std::pair<const char*, const char*> cases[] = {
      {"a\r\n\r\nbc", "<UL><LI>a</LI>\r\n<LI></LI>\r\n<LI>b</LI></UL>-"},  // required: the last character is lost
      {"x", "<UL><LI></LI></UL>-"},
      {"a\nbc", "<UL><LI>a\n<LI>b</LI></UL>-"},
  };
  for (const auto& [lines, list] : cases) EXPECT_EQ(AfterCommand("mnu_HTML_sel_list", lines), list);
  EXPECT_EQ(AfterCommand("mnu_HTML_sel_num_list", "ab"), "<OL><LI>a</LI></OL>-");
}

TEST_F(TagCommandsTest, MakeNoListWithoutASelection) {
  platform.answers = {Answer::kOk};
  EXPECT_EQ(AfterCommand("mnu_HTML_sel_num_list", ""), "-");
  EXPECT_EQ(platform.TakeCallsInOneLine(), "message 0 \"Vyber text\" \"HTML list\"; ");
}

TEST_F(TagCommandsTest, StripTags) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "-"},
      {"a <b>c</b> > d", "a c > d-"},
      {"<a<b>c>d", "c>d-"},
      {"<P\r\nX>&lt;\r\n\x9e</P>\n<", "&lt;\r\n\x9e\n-"},
  };
  for (const auto& [html, plain] : cases) {
    EXPECT_EQ(AfterCommand("mnuNoHtml", html), plain);
    EXPECT_EQ(editor.text.SelStart(), editor.text.Size() - 1) << html;
    EXPECT_EQ(platform.TakeCallsInOneLine(), "busy 1; busy 0; ") << html;
  }
}

}  // namespace
}  // namespace pelmar
