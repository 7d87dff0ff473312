// The dialogs that write HTML, each opened by its command.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QListWidget>
#include <QTreeWidget>
#include <filesystem>

#include "html/dialogs/table_row.h"
#include "html/samples/templaty.h"
#include "platform/qt/convert.h"
#include "platform/qt/filelists/file_list.h"
#include "support/program_test.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

const std::string kPageHead =
    R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Final//EN">¶ <HEAD>¶)"
    R"(  <META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1250">¶)"
    R"(  <META NAME="GENERATOR" CONTENT="Orvilanths PELmar VEX v8.9.2.1b CZ">¶)"
    R"(  <META NAME="AUTHOR" CONTENT="Jan Novák">¶  <META NAME="CREATED" CONTENT="11-24-2026 09:05:00">¶)"
    R"(  <TITLE>Stránka </TITLE>¶ </HEAD>¶ <BODY)";
const std::string kPageEnd = "¶¶ </BODY>¶</HTML>";

// The file lists begin in a folder with two pictures, a page and a folder with another picture.
struct HtmlDialogTest : ProgramTest {
  TempFolder temp;
  const std::string address = "file://" + temp.Path();
  const std::filesystem::path old_folder = std::filesystem::current_path();
  std::vector<std::string> shown;  // the files that were shown in the browser
  int picked = 0;                  // the number of picks: from black #FF0010, #FF0011 ..., from white #00FFEF ...

  HtmlDialogTest() {
    services.show_in_browser = [this](const std::string& path) { shown.push_back(path); };
    services.pick_color = [this](Color present) { return present ^ Rgb(255, 0, 16 + picked++); };
    platform.now = {2026, 11, 24, 9, 5, 0};
    editor.settings.UserName = "Jan Novák"_w;
    editor.settings.UserEmail = "žluť@b.cz"_w;
    for (const char* name : {"žЖ.GIF", "b.jpg", "x.htm", "sub/k\xF9.gif"}) temp.Put(name, "");
    std::filesystem::current_path(temp.Path());
  }
  ~HtmlDialogTest() override { std::filesystem::current_path(old_folder); }

  // Also expects that the dialog closes if it changed the document.
  void ExpectDocument(const std::string& command, const char* steps, const char* before, const std::string& after,
                      const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
    ProgramTest::ExpectDocument(command, steps, before, after, file, line);
    if (after != before && VisibleWindow()) ADD_FAILURE_AT(file, line) << command << " stays open after " << steps;
  }
};

TEST_F(HtmlDialogTest, BlocksWrapTheSelectionAndFragmentsComeBeforeIt) {
  ExpectDocument("mnuparagraph", "Command1!", "a[b|c", R"(a<P ALIGN = "LEFT" > b </P>|c)");
  ExpectDocument("mnulabel", "VScroll1=9 Option4! Check1! Command1!", "|", "<H6 NOWRAP> Nadpisový text </H6>|");
  ExpectDocument("mnubarva", "Check1! Check2! Check3! VScroll4=7 Combo1=Žluté Command3! Command1!", "[x|",
                 R"(<FONT SIZE="7" FACE="Žluté" COLOR="#FF0010">x</FONT>|)");
  ExpectDocument("mnuhr", "Command1!", "a[b|c", "a<HR>|bc");
  ExpectDocument("Line", "Check1! Option1! Shader! VScroll1=50 Command1!", "|",
                 R"(<HR ALIGN = "CENTER" NOSHADE Width = "50%">|)");
  ExpectDocument("mnulinelabel", "Command1!", "[x|",
                 R"(<HR ALIGN = "LEFT" Width = "60%"><H2>Nadpis</H2><HR ALIGN = "RIGHT" Width = "60%">|x)");
  ExpectDocument("mnulinelabel2", "Text1=ž Command1!", "|",
                 R"(<table border="0" width="100%">¶<tr><td width="33%"><hr></td><td align="center">ž</td>)"
                 R"(<td width="33%"><hr></td></tr>¶</table>|)");
  ExpectDocument("mnubreak", "Text2=ž Command1!", "[x|", "<SUP>A</SUP>/<SUB>ž</SUB>|x");
  ExpectDocument("mnuComment", "Command1!", "[x|", "<! Komentář >|x");  // required: this is no valid comment
  ExpectDocument("MnuMeta", "Command1!", "[x|", "Vyber meta-tag|x");
  ExpectDocument("MnuHTMLASCII", "HScroll1=255 Command1!", "[x|", "&#255;|x");
  ExpectDocument("mnumailto", "Command1!", "|", R"(<A HREF="mailto:žluť@b.cz" >mailto na žluť@b.cz</A>|)");
  ExpectDocument("mnuid", "Combo1=1 Command1!", "a[b|c",  // before the whole document
                 R"(|<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Transitional//EN">¶abc)");
}

TEST_F(HtmlDialogTest, AReopenedDialogBeginsAtItsCheckedOption) {
  ExpectDocument("mnuparagraph", "Option2! Command1!", "[x|", R"(<P ALIGN = "CENTER" > x </P>|)");
  EXPECT_EQ(Open("mnuparagraph").focusWidget()->objectName(), QStringLiteral("Option2"));
}

TEST_F(HtmlDialogTest, ASmileyIsPutTogetherOnlyByTheButton) {
  ExpectDocument("mnusmajl", "Combo2=7 Combo3=5 Combo5=2 Command1!", "|", ":-)|");
  ExpectDocument("mnusmajl", "Combo1=1 Command3! Command1!", "|", "(§ )-|");
}

TEST_F(HtmlDialogTest, LinksOfferTheAnchorsInsertedSinceTheStart) {
  ExpectDocument("mnukotva", "Text1=Kotva1 Command1!", "|", R"(<A NAME="Kotva1"></A>|)");
  ExpectDocument("mnukotva", "Text1=část Command1!", "a[b|c", R"(a<A NAME="část"></A>|bc)");
  ExpectDocument("mnuodkaz", "Command1!", "[x|", R"(<A HREF="#NováKotva">x</A>|)");
  ExpectDocument("mnuodkaz", "Combo1= Combo1:kot\r", "[x|", R"(<A HREF="#kot">x</A>|)");
  const auto* list = Find<QComboBox>(Open("mnuodkaz"), "Combo1");
  EXPECT_EQ(list->itemText(0) + u'|' + list->itemText(1), QStringLiteral("Kotva1|část"));
}

TEST_F(HtmlDialogTest, AnAnchorOrALinkWithoutANameIsNotWritten) {
  ExpectDocument("mnukotva", "Text1= Command1!", "[kept|", "[kept|");
  EXPECT_NE(VisibleWindow(), nullptr);
  ExpectDocument("mnuodkaz", "Combo1= Command1!", "[kept|", "[kept|");
  EXPECT_NE(VisibleWindow(), nullptr);
}

TEST_F(HtmlDialogTest, ALinkLeadsToTheChosenFileOrToATypedAddress) {
  ExpectDocument("mnuodkazjiny", "File1=0 Command1!", "[x|", R"(<A HREF="file://)" + temp.Path() + R"(/x.htm">x</A>|)");
  ExpectDocument("Link", "Check1! Check2! Check3! Text2=a Combo2=_top Command1!", "|",
                 R"(<A HREF="x.htm#a" TARGET="_top">Odkaz na x.htm#a</A>|)");
  ExpectDocument("Link", "Check1! Check3! Option2! Text1=http://žába.cz Option2! Command1!", "|",
                 R"(<A HREF="http://žába.cz">Odkaz na http://žába.cz</A>|)");
}

TEST_F(HtmlDialogTest, ImagesAndFramesHaveTheTickedAttributes) {
  ExpectDocument("Image",
                 "File1=0 Check1! Check2! Check3! Check4! Check5! Check6! Check7! Check8! Option7! VScroll1=600 "
                 "VScroll2=800 VScroll3=3 VScroll4=4 VScroll5=5 Text1='a \" <' Command1!",
                 "|",
                 R"(<IMG SRC="ž%D0%96.GIF" ALT="a " <" ALIGN="left" WIDTH="800" HEIGHT="600" VSPACE="5" HSPACE="4")"
                 R"( BORDER="3" LOWSRC="path/file.jpg" USEMAP="#mapa">|)");
  ExpectDocument("mnuHTML_Fme", "File1=0 Command1!", "a[b|c", "a<FRAME SRC=\"" + address + "/x.htm\">|bc");
  // required: SCROLLING appears twice, the second time exactly as typed
  ExpectDocument("mnuHTML_Fme",
                 "Check1! Check2! Check3! Check4! Check5! Check6! Check7! Check8! Check9! VScroll12=255 VScroll11=1 "
                 "VScroll10=16 VScroll1=4 VScroll2=5 VScroll4=400 VScroll5=400 Combo2=' no' Combo3=ř Command1!",
                 "|",
                 R"(<FRAME SRC="x.htm" NAME="Rám" ALIGN="ř" FRAMEBORDER="4" BORDERCOLOR="#FF0110" FRAMESPACING="5")"
                 R"( SCROLLING="no" MARGINHEIGHT="300" MARGINWIDTH="400" SCROLLING=" no" NORESIZE>|)");
}

TEST_F(HtmlDialogTest, AFrameGetsTheLabelsOfBarsThatNeverMoved) {  // required: 0, which the bars never reach
  ExpectDocument("mnuHTML_Fme", "File1=0 Check5! Check7! Check8! Command1!", "|",
                 R"(<FRAME SRC="x.htm" FRAMEBORDER="0" FRAMESPACING="0">|)");
}

TEST_F(HtmlDialogTest, AFramesetHoldsItsTitleAndTheSample) {
  Work(Open("mnuHTML_fset"), "Check2! Text3=Můj Command1!");
  const std::string written = Marked(text);
  EXPECT_NE(written.find("<TITLE>Můj</TITLE>¶ </HEAD>¶ <FRAMESET ROWS=\"*,50%,50\">¶ </FRAMESET>"), std::string::npos);
  EXPECT_NE(written.find("<NOFRAMES>¶[Tento Prohlížeč nepodporuje Framesy|¶ </NOFRAMES>"), std::string::npos);
  EXPECT_EQ(VisibleWindow(), nullptr);
}

TEST_F(HtmlDialogTest, APageHoldsTheProfileTheTimeAndTheSelection) {
  ExpectDocument("mnucreate", "Command1!", "|", kPageHead + ">¶[---TEXT---|" + kPageEnd);
  ExpectDocument("mnucreate", "Check8! HScroll1=7 Command1!", "[x|",
                 kPageHead + ">¶<BASEFONT SIZE=\"7\">¶[x|" + kPageEnd);
  EXPECT_FALSE(text.CanUndo());  // required for a replaced text
}

// required: the page gets the text of the label, at first black. The editor gets the swatch's colour, at first white.
TEST_F(HtmlDialogTest, TickedColoursOfAPageAlsoColourTheEditor) {
  main.SetEditorColors(Rgb(7, 7, 7), Rgb(8, 8, 8));
  ExpectDocument("Newhtml", "Check1! Command1!", "[x|", kPageHead + " BGCOLOR=\"#000000\">¶[x|" + kPageEnd);
  EXPECT_EQ(ColorToHex(main.Look().back_color), "#FFFFFF");
  EXPECT_EQ(ColorToHex(main.Look().fore_color), "#070707");
  ExpectDocument("Newhtml", "Check1! Check2! Command1!", "[x|", kPageHead + " TEXT=\"#000000\">¶[x|" + kPageEnd);
  EXPECT_EQ(ColorToHex(main.Look().fore_color), "#000000");
}

TEST_F(HtmlDialogTest, PickedColoursGoIntoThePreviewAndByOkIntoThePageAndTheEditor) {
  const QWidget& dialog = Open("Newhtml");
  Work(dialog, "Check1! Check2! Check5! Check6! Check7! Command4! Command5! Command6! Command7! Command8!");
  EXPECT_EQ(Find<TextBox>(dialog, "Text1")->TextColor().name(), QStringLiteral("#ff0013"));
  EXPECT_EQ(Find<TextBox>(dialog, "Text1")->BackgroundColor().name(), QStringLiteral("#00ffef"));
  ExpectDocument("Newhtml", "Command1!", "[x|",
                 kPageHead +
                     R"( BGCOLOR="#00FFEF" TEXT="#FF0013" LINK="#FF0012" VLINK="#FF0011" ALINK="#FF0014">¶[x|)" +
                     kPageEnd);
  EXPECT_EQ(ColorToHex(main.Look().fore_color), "#FF0013");
  EXPECT_EQ(ColorToHex(main.Look().back_color), "#00FFEF");
}

TEST_F(HtmlDialogTest, APageHasTheChosenBackground) {
  ExpectState(Open("Newhtml"), "Check3!", "Command1=(&Ok) Command3=()");
  ExpectDocument("Newhtml", "File1=0 Command1!", "[x|",
                 kPageHead + " BACKGROUND=\"" + address + "/ž%D0%96.GIF\">¶[x|" + kPageEnd);
  // required: a bare file name gets "file:///" too
  ExpectDocument("Newhtml", "Check4! Command1!", "[x|",
                 kPageHead + " BACKGROUND=\"file:///ž%D0%96.GIF\">¶[x|" + kPageEnd);
  // without a background it needs no file
  ExpectDocument("Newhtml", "Dir1=/ Check3! Combo1=*.BMP Command1!", "[x|", kPageHead + ">¶[x|" + kPageEnd);
}

TEST_F(HtmlDialogTest, TablesRowsAndCellsHaveTheTickedAttributes) {
  // required: a tag gets the text of a label whose bar never moved, so BORDER is 1 although its bar is at 0
  ExpectDocument(
      "Table", "Check1! Check2! Check3! Check4! Check5! Check6! Check7! Check8! Check9! Command1!", "|",
      R"(<TABLE WIDTH="1%" COLS="1" COLSPEC="L100%" ALIGN="LEFT" FRAME="NONE" BORDER="1" RULES="ALL" CELLSPACING="0")"
      R"( CELLPADDING="0">¶<CAPTION ALIGN="TOP">Nadpis</CAPTION>¶<TR><TD></TD></TR>¶</TABLE>|)");
  ExpectDocument("Table",
                 "Option1! VScroll3=300 VScroll4=5 VScroll4=0 VScroll5=7 VScroll6=8 VScroll1=2 Text1=c Text2=' <x> ' "
                 "Command1!",
                 "|",
                 R"(<TABLE WIDTH="300" COLS="2" COLSPEC="c" ALIGN="LEFT" FRAME="NONE" BORDER="0" RULES="ALL")"
                 R"( CELLSPACING="7" CELLPADDING="8">¶<CAPTION ALIGN="TOP"> <x> </CAPTION>¶)"
                 R"(<TR><TD></TD><TD></TD></TR>¶</TABLE>|)");
  ExpectDocument("mnurow", "VScroll1=2 Command1!", "[ab|c", "<TR><TD>Buňka1</TD><TD>Buňka2</TD></TR>¶|abc");
  ExpectDocument("mnurow", "Check1! Option4! Check2! VScroll1=1 Command1!", "|",
                 R"(<TR ALIGN="CHAR" CHAR="," VALIGN="MIDDLE"><TD>Buňka1</TD></TR>¶|)");
  ExpectDocument(
      "mnucell", "Check1! Check2! Check3! Check4! Check5! Check6! Check7! Check9! Command1!", "a[b|c",
      R"(a<TH ALIGN="CENTER" VALIGN="MIDDLE" BGCOLOR="#000000" COLSPAN="1" ROWSPAN="1" NOWRAP WIDTH="1">b</TH>|c)");
  ExpectDocument("mnucell", "Check1! Check2! Command3! VScroll4=2 VScroll5=20 Check8! VScroll6=50 Command1!", "[x|",
                 R"(<TH BGCOLOR="#FF0010" COLSPAN="2" ROWSPAN="20" NOWRAP WIDTH="50%">x</TH>|)");
}

struct TableGridTest : HtmlDialogTest {
  QWidget& table = Open("mnutable");
};

TEST_F(TableGridTest, EachCellAndRowKeepsItsTexts) {
  ExpectState(table, "VScroll1=2 VScroll2=2", "Label3=2 Label4=2 Label12=1/2 Label13=1/2 Label16=1/2");
  ExpectState(table, "HScroll1=2 VScroll7=2 VScroll8=2", "Label12=2/2 Label13=2/2 Label16=2/2");
  Work(table, "Text4=ř Text3=' NOWRAP' Text5=typed");
  ExpectState(table, "HScroll1=1 Text4=x HScroll1=2", "Text3=' NOWRAP' Text4=ř Text5=typed");
  Work(table, "Command1!");
  // required: nothing puts a blank before typed attributes
  EXPECT_EQ(Marked(text), "<TABLE>¶<TR><TD></TD><TD></TD></TR>¶<TRtyped><TD>x</TD><TD NOWRAP>ř</TD></TR>¶</TABLE>|");
  ExpectState(table, "Command4! Command5!", "Text3= Text4=ř Text5=");
}

TEST_F(TableGridTest, EnterGoesToTheNextCell) {
  Work(table, "VScroll1=3 VScroll2=3 TabStrip1=1 HScroll1=2 Text4=old HScroll1=1 Text4:a\rb\rc\rd\re\rf\rg\rh\ri\r");
  EXPECT_TRUE(Named(table, "Text4")->isVisible());
  EXPECT_EQ(table.focusWidget(), Named(table, "Command1"));
  Work(table, "Command1!");
  EXPECT_EQ(Marked(text),
            "<TABLE>¶<TR><TD>a</TD><TD>b</TD><TD>c</TD></TR>¶<TR><TD>d</TD><TD>e</TD><TD>f</TD></TR>¶"
            "<TR><TD>g</TD><TD>h</TD><TD>i</TD></TR>¶</TABLE>|");
}

TEST_F(TableGridTest, ShrinkingTheTableSelectsACellInsideAndKeepsAllTexts) {
  Work(table, "VScroll1=3 VScroll2=3 HScroll1=3 VScroll7=3 VScroll8=3 Text4=ř Text5=typed");
  ExpectState(table, "VScroll1=2 VScroll2=2", "Label12=2/2 Label13=2/2 Label16=2/2 Text4= Text5=");
  ExpectState(table, "VScroll1=3 VScroll2=3 HScroll1=3 VScroll7=3 VScroll8=3", "Text4=ř Text5=typed");
}

TEST_F(TableGridTest, AttributesOfACellAndOfARowComeFromTheirDialogs) {
  text.SetText("kept");
  // Presses the button, expects the state of the dialog that opens after the steps, and the state of the table.
  const auto expect = [&](const char* button, const char* steps, const char* fields, const char* state) {
    InDialog<QDialog>([&](QDialog& dialog) { ExpectState(dialog, steps, fields); });
    ExpectState(table, button, state);
  };
  expect("Command3!", "Check1! Option4! Command1!", "Check9=(0) Text1=,", "Text3=' ALIGN=\"CHAR\" CHAR=\",\"'");
  expect("Command3!", "Check1! Command2!", "", "Text3=' ALIGN=\"CHAR\" CHAR=\",\"'");  // cancelled
  expect("Command3!", "Command1!", "", "Text3=");                                      // nothing is ticked any more
  ExpectState(Open<TableRow>(), "", "VScroll1=1 Label2=1");                            // the dialog may already be open
  expect("Command6!", "Check2! Command1!", "VScroll1=(1) Label2=(1)", "Text5=' VALIGN=\"MIDDLE\"'");
  ExpectState(Open("mnurow"), "", "VScroll1=1 Label2=1");
  EXPECT_EQ(text.Text(), "kept");
}

TEST_F(HtmlDialogTest, EachOptionWritesItsValue) {
  const struct {
    const char* command;
    int first_option, last_option;
    const char *text_before_value, *values;
  } cases[] = {
      {"mnuparagraph", 1, 3, "ALIGN = \"", "LEFT CENTER RIGHT"},
      {"mnulabel", 1, 4, "ALIGN = \"", "LEFT CENTER RIGHT "},
      {"mnuhr", 1, 3, "ALIGN = \"", "CENTER LEFT RIGHT"},
      {"mnuobr", 1, 5, "ALIGN=\"", "top middle bottom left right"},  // required: in lower case
      {"mnutable", 3, 5, "ALIGN=\"", "LEFT CENTER RIGHT"},
      {"mnutable", 6, 13, "FRAME=\"", "NONE ABOVE BELOW HSIDES LHS RHS VSIDES BOX"},
      {"mnutable", 14, 17, "RULES=\"", "NONE ROWS COLS ALL"},
      {"mnutable", 18, 21, "CAPTION ALIGN=\"", "TOP BOTTOM LEFT RIGHT"},
      {"mnucell", 1, 4, " ALIGN=\"", "LEFT CENTER RIGHT CHAR"},
      {"mnucell", 5, 7, "VALIGN=\"", "TOP MIDDLE BOTTOM"},
      {"mnulist", 1, 3, "TYPE=\"", "disk circle square"},
      {"mnulistcount", 1, 5, "TYPE=\"", "1 a A I i"},
  };
  for (const auto& c : cases) {
    QWidget& window = Open(c.command);
    if (window.findChild<FileList*>() != nullptr) Work(window, "File1=0");
    for (auto* box : window.findChildren<QCheckBox*>()) box->setChecked(true);
    const char* ok = std::string_view(c.command).starts_with("mnulist") ? "Command3!" : "Command1!";
    QStringList values;
    for (int option = c.first_option; option <= c.last_option; ++option) {
      text.SetText("");
      Work(window, qPrintable(QStringLiteral("Option%1! ").arg(option) + QLatin1String(ok)));
      values += TextToQString(text.Text()).section(QLatin1String(c.text_before_value), 1).section(u'"', 0, 0);
    }
    EXPECT_EQ(values.join(u' ').toStdString(), c.values) << c.command;
  }
}

TEST_F(HtmlDialogTest, TheLabelOfARuleFollowsBarAndUnit) {
  const QWidget& rule = Open("mnuhr");
  ExpectState(rule, "", "Label1=(1%)");
  ExpectState(rule, "Check1! VScroll1=50", "Label1=' 50%'");
  ExpectState(rule, "Option5!", "Label1=' 50'");
  ExpectState(rule, "VScroll1=800", "Label1=800");
  ExpectState(rule, "Option5!", "Label1=' 800'");  // required: a click on the chosen unit counts too
  ExpectState(rule, "Option4!", "Label1=' 100%'");
}

TEST_F(HtmlDialogTest, TheSizeOfAnImageFollowsBarsAndUnit) {
  const QWidget& image = Open("mnuobr");
  ExpectState(image, "Check1! VScroll1=150", "Label3=' 150%' Label4=' 10%'");
  ExpectState(image, "Option7!", "Label3=' 150' Label4=' 10'");  // the values stay
  ExpectState(image, "VScroll1=0 VScroll2=0", "Label3=' 1' Label4=' 1'");
  ExpectState(image, "VScroll1=999 VScroll2=999", "Label3=' 600' Label4=' 800'");  // required: these limits
  ExpectState(image, "VScroll2=5 Option6!", "Label3=' 200%' Label4=' 10%'");
  ExpectState(image, "VScroll1=5 VScroll2=999", "Label3=' 10%' Label4=' 200%'");
}

TEST_F(HtmlDialogTest, OtherLabelsFollowTheirBars) {
  ExpectState(Open("mnubarva"), "Check1! VScroll4=7", "Label4=7 Combo1=(Combo1)");
  ExpectState(Open("MnuHTMLASCII"), "HScroll1=137 HScroll1:→", "Label1=138 Label2=Š");
  ExpectState(Open("mnuHTML_Fme"), "Check9! VScroll12=255 VScroll10=16", "Label8=#FF0010 Picture3=#ff0010");
  ExpectState(Open("mnucreate"), "Check8! HScroll1=3", "Label14=3");
  ExpectState(Open("mnucell"), "Check7! VScroll6=300", "Label8=300");
  ExpectState(Open("mnucell"), "Check8!", "Label8=100%");
  ExpectState(Open("mnurow"), "VScroll1=3 Check1! Option4! Check1!", "Label2=3 Text1=(,)");
}

TEST_F(HtmlDialogTest, TypedTextIsNotCompletedFromTheList) {
  ExpectState(Open("mnubarva"), "Check2! Combo1= Combo1:t", "Combo1=t");
  ExpectState(Open("MnuMeta"), "Combo1= Combo1:<", "Combo1=<");
  ExpectState(Open("mnuHTML_Fme"), "Check1! Combo2= Combo2:n Check6! Combo3= Combo3:c", "Combo2=n Combo3=c");
  ExpectState(Open("mnuodkazjiny"), "Check3! Combo2= Combo2:_s", "Combo2=_s");
}

TEST_F(HtmlDialogTest, TheOkButtonOfALinkNeedsAFileOrAnAddress) {
  const QWidget& link = Open("mnuodkazjiny");
  ExpectState(link, "", "Frame1= Text1=(http://) Command1=(&Ok)");
  ExpectState(link, "Option2!", "Frame1=() Text1=http:// Command1=&Ok");
  ExpectState(link, "Option1! File1=0 Text2= Text1=b Option1!", "Frame1= Command1=&Ok Command3=");
  ExpectState(link, "Option2! Text2= Text1=a", "Command1=(&Ok)");  // required: an empty anchor disables Ok
  ExpectState(link, "Text1=b Text2=k Text1=c", "Command1=&Ok");
  ExpectState(link, "Dir1=/ Option1!", "Label1=/ Command1=(&Ok) Command3=()");
}

TEST_F(HtmlDialogTest, EachCheckBoxEnablesItsControls) {
  const std::pair<const char*, const char*> cases[] = {
      {"mnubarva", "Check1: VScroll4 Label4; Check2: Combo1; Check3: Label1 Label2 Command3"},
      {"mnulistcount", "Check2: Option1 Option2 Option3 Option4 Option5; Check1: Text2; Check3:"},
      {"mnuHTML_Fme",
       "Check5:; Check4: Text1; Check6: Combo3; Check1: Combo2; Check7: VScroll1 Label13; Check8: VScroll2 Label4; "
       "Check9: Label8 letterR VScroll12 letterG VScroll11 letterB VScroll10; "
       "Check3: Label9 VScroll4 Label11 Label10 VScroll5 Label12; Check2:"},
      {"mnuHTML_fset", "Check1: Text1; Check2: Text2"},
      {"mnuhr", "Check1: Option4 Option5 VScroll1 Label1; Shader:"},
      {"mnuobr",
       "Check5:; Check4: Text1; Check6: Text2; Check7: Text3; "
       "Check1: Option6 Option7 Label5 VScroll1 Label3 Label6 VScroll2 Label4; "
       "Check8: Option1 Option2 Option3 Option4 Option5; Check3: Label9 VScroll4 Label11 Label10 VScroll5 Label12; "
       "Check2: Label7 VScroll3 Label8"},
      {"mnuodkazjiny", "Check2:; Check1: Text2; Check3: Combo2"},
      {"mnulist", "Check2: Option1 Option2 Option3; Check1: Text2; Check3:"},
      {"mnutable",
       "Check9:; Check1: Option1 Option2 VScroll3 Label5; Check2: Option3 Option4 Option5; "
       "Check8: Text2 Option18 Option19 Option20 Option21; "
       "Check4: Option6 Option7 Option8 Option9 Option10 Option11 Option12 Option13 Label6 VScroll4 Label7; "
       "Check5: Option14 Option15 Option16 Option17; Check3: Text1; Check6: VScroll5 Label8; Check7: VScroll6 Label9"},
      {"mnucell",
       "Check9:; Check1: Option1 Option2 Option3 Option4; Check2: Option5 Option6 Option7; Check3: Label2 Command3; "
       "Check4: VScroll4 Label3; Check5: VScroll5 Label4; Check7: VScroll6 Label8 Check8; Check8:; Check6:"},
      {"mnurow", "Check1: Option1 Option2 Option3 Option4; Check2: Option5 Option6 Option7"},
      {"mnucreate",
       "Check1: Label2 Command4; Check2: Label4 Command7; Check7: Label13 Command6; Check5: Label12 Command5; "
       "Check6: Label11 Command8; Check8: HScroll1 Label14; Check3: Drive1 Combo1 Dir1 File1 Check4; Check4:"},
  };
  for (const auto& [command, expected] : cases) {
    const QWidget& window = Open(command);
    std::string enabled;
    for (auto* box : window.findChildren<QCheckBox*>()) {
      QList<QWidget*> controls = window.findChildren<QWidget*>();
      controls.removeIf([](const QWidget* each) { return each->isEnabled() || !each->parentWidget()->isEnabled(); });
      box->click();
      enabled += (enabled.empty() ? "" : "; ") + box->objectName().toStdString() + ':';
      for (const QWidget* control : controls)
        if (control->isEnabled()) enabled += ' ' + control->objectName().toStdString();
    }
    EXPECT_EQ(enabled, expected) << command;
  }
}

TEST_F(HtmlDialogTest, TheChosenFileSetsLabelAndButtons) {
  const QWidget& image = Open("mnuobr");
  const std::string folder = temp.Path();
  const auto expect = [&](const char* steps, const std::string& state) { ExpectState(image, steps, state.c_str()); };
  expect("", "Label1= Command1=(&Ok) Command3=()");
  expect("File1=0", "Label1=" + folder + "/žЖ.GIF Command1=&Ok Command3=");
  expect("Check5!", "Label1=žЖ.GIF Command1=&Ok Command3=()");
  expect("Check5! Combo1=*.jpg", "Label1=" + folder + "/ Command1=(&Ok) Command3=()");
  expect("File1=0", "Label1=" + folder + "/b.jpg Command1=&Ok Command3=");
  Work(image, ("Dir1=" + folder + "/sub").c_str());
  expect("", "Label1=" + folder + "/sub/ Command1=(&Ok) Command3=()");
}

TEST_F(HtmlDialogTest, AButtonWithAPictureShowsTheChosenFileInTheBrowser) {
  Work(Open("mnuobr"), ("Dir1=" + temp.Path() + "/sub File1=0 Command3!").c_str());
  EXPECT_EQ(shown, std::vector<std::string>{temp.File("sub/k\xF9.gif")});
  EXPECT_FALSE(Find<QAbstractButton>(*VisibleWindow(), "Command3")->icon().pixmap(24).toImage().allGray());
}

TEST_F(HtmlDialogTest, TheAddressOfADisappearedFileIsStillWritten) {  // required
  Work(Open("mnuobr"), ("Dir1=" + temp.Path() + "/sub File1=0").c_str());
  std::filesystem::remove(temp.File("sub/k\xF9.gif"));
  ExpectDocument("mnuobr", "Command1!", "|", "<IMG SRC=\"" + address + "/sub/k%F9.gif\">|");
}

TEST_F(HtmlDialogTest, TheMenusTestPageHasOneMoreLineBreakThanTheToolbars) {  // required
  text.SetText("x");
  for (const auto& [command, page] : {std::pair("Browser", "x"), {"Mnu_Internal_Browser", "x\r\n"}}) {
    editor.commands.Run(command);
    EXPECT_EQ(platform.files[shown.back()], page) << command;
  }
}

TEST_F(HtmlDialogTest, APastedLineBreakStaysInAFieldForTextAndLeavesAName) {
  QGuiApplication::clipboard()->setText(QStringLiteral("a\nb"));
  for (const auto& [command, state] : {std::pair("mnuComment", "Text1='a\r\nb'"), {"mnukotva", "Text1=ab"}}) {
    const QWidget& dialog = Open(command);
    Work(dialog, "Text1=");
    QTest::keyClick(Named(dialog, "Text1"), Qt::Key_V, Qt::ControlModifier);
    ExpectState(dialog, "", state);
  }
}

TEST_F(HtmlDialogTest, ListsHoldTheirItemsAndTheTickedAttributes) {
  ExpectDocument("mnulist", "Command3!", "|", "<UL>¶<LI>Položka</LI>¶</UL>|");
  ExpectDocument("mnulistcount", "Check2! Option4! Check3! Check1! Text2=H Command3!", "[z|",
                 R"(<OL TYPE="I" COMPACT>¶<LH>H</LH>¶<LI>Položka</LI>¶</OL>|z)");
}

TEST_F(HtmlDialogTest, ItemsAreAddedAboveTheSelectedRowAndRemoved) {
  const QWidget& list = Open("mnulist");
  ExpectState(list, "Text1=a Command1! Text1:b\r List1=1 Text1=x List1: Command1!", "List1=Položka|x|>a|b");
  EXPECT_EQ(list.focusWidget(), Named(list, "Text1"));
  ExpectState(list, "Command2!", "List1=Položka|x|b");                 // the selected row
  ExpectState(list, "Command2!", "List1=Položka|x Command2=O&deber");  // without a selected row the last one
  ExpectState(list, "Command2! Command2!", "List1= Command2=(O&deber)");
}

TEST_F(HtmlDialogTest, TheDeleteKeyRemovesOnlyASelectedRow) {
  QWidget& list = Open("mnulist");
  list.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&list));
  ExpectState(list, "List1:\x7f", "List1=Položka");
  ExpectState(list, "List1:↓", "List1=>Položka");  // no row was selected
  ExpectState(list, "List1:\x7f", "List1=");
}

TEST_F(HtmlDialogTest, ADefinitionListHoldsPairs) {
  const QWidget& terms = Open("MnuListDef");
  // required: only the last change counts
  ExpectState(terms, "Command1! Atribut=a Hodnota= Hodnota:\r", "Command1=(&Přidej) Atributs=Text1");
  ExpectState(terms, "Atribut=b Hodnota:\r", "Atributs=Text1|b Values=Text1|");
  ExpectState(terms, "Values=0", "Atributs=>Text1|b Values=>Text1| Atribut=b");  // unlike in EdiTag, the fields stay
  Work(terms, "Command3!");
  EXPECT_EQ(Marked(text), "<DL>¶<DT>Text1</DT>¶<DD>Text1</DD>¶<DT>b</DT>¶<DD></DD>¶</DL>|");
}

TEST_F(HtmlDialogTest, CtrlAndAClickDeselectBothRowsOfAPair) {
  const QWidget& terms = Open("MnuListDef");
  ExpectState(terms, "Command1! Values=0", "Atributs=>Text1 Values=>Text1");
  auto* names = Find<QListWidget>(terms, "Atributs");
  QTest::mouseClick(names->viewport(), Qt::LeftButton, Qt::ControlModifier,
                    names->visualItemRect(names->item(0)).center());
  ExpectState(terms, "", "Atributs=Text1 Values=Text1");
}

TEST_F(HtmlDialogTest, ACustomTagWrapsTheSelection) {
  editor.commands.Run("Mnu_Insert_Custom_Tag");  // without its window
  EXPECT_EQ(Marked(text), "<TAG>Vlastní tag</TAG>|");
  ExpectDocument("mnuvlastni", "TagText=X Command1! Command3!", "[a|", R"(<X Atribut="Hodnota">a</X>|)");
  ExpectDocument("mnuvlastni", "Check1! Command3!", "[a|", R"(<X Atribut="Hodnota">|a)");
}

TEST_F(HtmlDialogTest, AttributesAreChosenFromAListOrTyped) {
  const QWidget& attributes = Open("mnuatr");
  ExpectState(attributes, "", "Atribut=Atribut Hodnota=Hodnota Command2=(O&deber)");
  ExpectState(attributes, "Atribut:↓", "Atribut=ALIGN");
  ExpectState(attributes,
              "Atribut=ID Hodnota= Hodnota:l Command1! Atribut:rel Command1! Atributs=1 Atribut=X Command1!",
              "Atributs=ID|X|>rel Values=l|l|>l");
  ExpectState(attributes, "Command2!", "Atributs=ID|X Values=l|l");
  ExpectState(attributes, "Command2!", "Atributs=ID Command2=O&deber");
}

TEST_F(HtmlDialogTest, AttributesGoIntoTheTagAtTheCaretOrTheDialogStaysOpen) {
  ExpectDocument("mnuatr", "Atribut=ID Hodnota=ž Command1! Command3!", "<A>|x</A>", R"(<A ID="ž"|>x</A>)");
  platform.answers = {Answer::kOk, Answer::kOk};
  ExpectDocument("mnuatr", "Command1! Command3!", "|<A>x</A>", "|<A>x</A>");
  ExpectDocument("mnuatr", "Command3!", "<A>x|y", "<A>x|y");
  EXPECT_NE(VisibleWindow(), nullptr);
  EXPECT_EQ(platform.TakeCallsInOneLine(),
            "message 0 \"Na úplný začátek textu atributy vložit nelze. Posuňte kurzor do tagu.\" \"Atribut\"; "
            "message 0 \"Za kurzorem už žádný tag nekončí. Posuňte kurzor do tagu nebo před něj.\" \"Atribut\"; ");
}

struct EdiTagTest : HtmlDialogTest {
  // Opens the tag at the caret of `before`, runs `steps`, expects `state`, runs `end` and expects `after`.
  void ExpectEdited(const char* before, const char* steps, const char* state, const char* end, const char* after) {
    PutMarked(text, before);
    InDialog<QDialog>([&](QDialog& dialog) {
      ExpectState(dialog, steps, state);
      Work(dialog, end);
      dialog.hide();
    });
    editor.commands.Run("Mnu_Edit_Tag");
    EXPECT_EQ(Marked(text), after) << steps;
  }
};

TEST_F(EdiTagTest, ATagIsReadIntoFieldsEditedAndWrittenBack) {
  ExpectEdited("a<IMG ALT=\"a b\" SRC=c>|d", "", "Text1=IMG Atributs=ALT|SRC Values='a b|c' Command2=O&deber",
               "Command3!", "a<IMG ALT=\"a b\" SRC=\"c\">|d");
  ExpectEdited("<A B=x¶y C=2>| ", "Atributs=0 Atributs=1 Atributs=0", "Atribut=B", "Command3!",
               R"(<A B="x¶y" C="2">| )");
  ExpectEdited("<A B=1 C=2>| ", "Atributs=1", "Values=1|>2 Atribut=C Hodnota=2", "Command3!", R"(<A B="1" C="2">| )");
  ExpectEdited("<A B=1 C=2>| ", "Values=0 Atribut=X HScroll1=50", "Atributs=>X|C Values=>50%|2", "Command3!",
               R"(<A X="50%" C="2">| )");
  ExpectEdited("<A B=1 C=2>| ", "Atributs=0 Atribut=", "Atributs=>|C Hodnota=1 Command1=(&Přidej)", "Command3!",
               R"(<A ="1" C="2">| )");
}

TEST_F(EdiTagTest, AColourOrAFileBecomesTheValue) {
  platform.opens = {"/ž.gif", std::nullopt};
  ExpectEdited("<A B=1 C=2>| ", "Values=1 Command5!", "Hodnota=#FF0010", "Command3!", R"(<A B="1" C="#FF0010">| )");
  ExpectEdited("<A B=1 C=2>| ", "Values=0 Command6! Command6!", "Values=>file:///ž.gif|2", "Command3!",
               R"(<A B="file:///ž.gif" C="2">| )");  // the second dialog was cancelled
  EXPECT_EQ(platform.calls.front(), R"(open "Všechno(*.*)|*.*" 1)");
}

TEST_F(EdiTagTest, AttributesAreAddedAndRemovedUnlessThePersonCancels) {
  ExpectEdited("<A B=1 C=2>| ", "Values=0 Command1!", "Atributs=B|>B|C", "Command3!", R"(<A B="1" B="1" C="2">| )");
  platform.answers = {Answer::kOk};  // a value is missing
  ExpectEdited("<A B=1 C=>| ", "Atributs=1 Command2!", "Atributs=B Values= Command2=(O&deber)", "Command3!",
               R"(<A B="">| )");
  ExpectEdited("<A B=1 C=2>| ", "Atributs=0 Command2!", "Atributs=C Values=2", "Command4!", "[<A B=1 C=2>| ");
}

TEST_F(EdiTagTest, WithoutATagTheDialogIsEmpty) {
  platform.answers = {Answer::kOk};
  ExpectEdited("|a", "", "Text1= Atributs= Command2=(O&deber)", "Command3!", "<>|a");
}

struct SampleTest : HtmlDialogTest {
  QWidget& window = Open("mnutemplate");
  QTreeWidget& list = *Find<QTreeWidget>(window, "ListView1");

  // The shown sample.
  [[nodiscard]] const std::string& Preview() const { return Find<TextBox>(window, "Text1")->Buffer().Text(); }
};

TEST_F(SampleTest, TheChosenRowIsShown) {
  EXPECT_EQ(Preview(), "Vyber dokument\r\n");  // required: Ok would put this hint into the document
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);  // the first row, not the second
  EXPECT_EQ(Preview(), SampleText("HTML1", editor.settings));
  ExpectState(window, "", "Label1='Zobrazení dokumentu :Jednoduchý HTML dokument 1'");
}

TEST_F(SampleTest, EachRowHasAPicture) {
  for (int row = 0; row < list.topLevelItemCount(); ++row)
    EXPECT_FALSE(list.topLevelItem(row)->icon(0).pixmap(16).toImage().allGray()) << row;
}

TEST_F(SampleTest, EnterReplacesTheDocumentByTheSample) {
  PutMarked(text, "ol|d");
  Work(window, "ListView1=9");
  EXPECT_EQ(Marked(text), "ol|d");
  Work(window, "ListView1:\r");
  EXPECT_EQ(Marked(text), '|' + ShownText(SampleText("BAT2", editor.settings)));
  EXPECT_FALSE(text.CanUndo());  // required for a replaced text
}

}  // namespace
}  // namespace pelmar
