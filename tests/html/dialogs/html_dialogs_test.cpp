// The dialogs that write HTML, each opened by its command as a person opens it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>
#include <cstring>
#include <filesystem>

#include "files/files.h"
#include "html/dialogs/odkaz.h"
#include "html/dialogs/table_row.h"
#include "html/samples/templaty.h"
#include "platform/qt/convert.h"
#include "platform/qt/filelists/file_list.h"
#include "platform/qt/filelists/folder_list.h"
#include "platform/qt/textbox/text_box.h"
#include "program/commands.h"
#include "shell/services/program_parts.h"
#include "shell/windows/main/main_window.h"
#include "support/controls.h"
#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// What all pages tell of themselves.
constexpr const char* kHead = R"(  <META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1250">¶)"
                              R"(  <META NAME="GENERATOR" CONTENT="Orvilanths PELmar VEX v8.9.2.1b CZ">¶)";

// Opens the dialog by the command, takes the steps, presses "&Ok". "[" and "|" are those of marked_text.h: a text to
// begin with that has none is selected as a whole, a caret at the end of the outcome is left out. "¶" is a line end,
// "~" the folder of the test, "…" kHead. What an earlier row has set stays.
struct Row {
  const char* command;
  const char* steps;
  const char* before;
  std::string after;
};

struct HtmlDialogs : testing::Test {
  ScriptedPlatform platform;
  TempFolder temp;
  std::filesystem::path back = std::filesystem::current_path();
  Editor editor{platform};
  Files files{editor};
  MainWindow main{editor, files};
  StandAlones stand_alones;
  Keepers keepers;
  FilePickers file_pickers;
  Doors doors;
  WindowRegistry windows;
  std::vector<std::string> shown;
  std::vector<Color> asked;

  HtmlDialogs() {
    doors.show_in_browser = [this](const std::string& path) { shown.push_back(path); };
    doors.pick_color = [this](Color color) {
      asked.push_back(color);
      return Rgb(255, 0, 15 + static_cast<int>(asked.size()));
    };
    const ProgramParts parts{platform, editor, files, main, windows, stand_alones, keepers, file_pickers, doors};
    AddPageWindows(parts);
    AddLinkWindows(parts);
    AddTagWindows(parts);
    platform.now = {2026, 11, 24, 9, 5, 0};
    editor.settings.UserName = "Jan Novák"_w;
    editor.settings.UserEmail = "žluť@b.cz"_w;
    for (const char* name : {"žЖ.GIF", "b.jpg", "x.htm", "sub/k\xF9.gif"}) temp.Put(name, "");
    std::filesystem::current_path(temp.Path());  // where the lists of files begin
  }
  ~HtmlDialogs() override { std::filesystem::current_path(back); }

  QWidget* OnShow() {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible() && window->parentWidget() == &main) return window;
    return nullptr;
  }
  QWidget& Open(const char* command) {
    while (QWidget* window = OnShow()) window->hide();
    editor.commands.Run(command);
    if (OnShow() == nullptr) throw std::logic_error(std::string("nothing opens by ") + command);
    return *OnShow();
  }
  static void Ok(const QWidget& window) {
    for (auto* button : window.findChildren<QPushButton*>())
      if (button->isDefault()) button->click();
  }
  void Put(const char* marked) {
    PutMarked(editor.text, marked);
    if (std::strchr(marked, '|') == nullptr) editor.text.Select(0, editor.text.Size());
  }
  QString Folded(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("¶"))
        .replace(Utf8ToQString(temp.Path()), QStringLiteral("~"));
  }
  std::string Document() {
    QString marked =
        Folded(QString::fromStdString(Marked(editor.text))).replace(QString::fromUtf8(kHead), QStringLiteral("…"));
    if (!editor.text.HasSelection() && marked.endsWith(u'|')) marked.chop(1);
    return marked.toStdString();
  }
  void Expect(std::initializer_list<Row> rows) {
    for (const auto& [command, steps, before, after] : rows) {
      const QWidget& window = Open(command);
      Work(window, steps);
      Put(before);
      Ok(window);
      EXPECT_EQ(Document(), after) << command << ' ' << steps;
      EXPECT_FALSE(window.isVisible() || window.isModal()) << command << ' ' << steps;
    }
  }
  // The controls that are named in the expected state, as it has them.
  void ExpectState(const QWidget& window, const char* steps, const std::string& state) {
    Work(window, steps);
    QStringList names;
    for (const QString& word : QString::fromStdString(state).split(u' '))
      if (word.contains(u'=')) names += word.section(u'=', 0, 0);
    const std::string is = State(window, names.join(u' ').toUtf8());
    EXPECT_EQ(Folded(QString::fromStdString(is)).toStdString(), state) << steps;
  }
};

TEST_F(HtmlDialogs, WriteBlocksAndSmallTags) {
  Expect({
      {"mnuparagraph", "", "a[b|c", R"(a<P ALIGN = "LEFT" > b </P>|c)"},
      {"mnulabel", "", "x", R"(<H1 ALIGN = "CENTER"> x </H1>)"},
      {"mnulabel", "VScroll1=9 Option4! Check1!", "", "<H6 NOWRAP> Nadpisový text </H6>"},
      {"mnubarva", "Check1! Check2! Check3!", "x", R"(<FONT SIZE="1" FACE="Combo1" COLOR="#000000">x</FONT>)"},
      {"mnubarva", "VScroll4=7 Combo1=Žluté Command3!", "x", R"(<FONT SIZE="7" FACE="Žluté" COLOR="#FF0010">x</FONT>)"},
      {"mnuhr", "", "a[b|c", "a<HR>|bc"},
      {"Line", "Check1!", "", R"(<HR Width = "1%">)"},
      {"Line", "Option1! Shader! VScroll1=50", "", R"(<HR ALIGN = "CENTER" NOSHADE Width = "50%">)"},
      {"Line", "Option6! Option5! Shader! VScroll1=800", "", R"(<HR Width = "800">)"},
      {"mnulinelabel", "", "x",
       R"(<HR ALIGN = "LEFT" Width = "60%"><H2>Nadpis</H2><HR ALIGN = "RIGHT" Width = "60%">|x)"},
      {"mnulinelabel2", "Text1=ž", "",
       R"(<table border="0" width="100%">¶<tr><td width="33%"><hr></td><td align="center">ž</td>)"
       R"(<td width="33%"><hr></td></tr>¶</table>)"},
      {"mnubreak", "Text2=ž", "x", "<SUP>A</SUP>/<SUB>ž</SUB>|x"},
      {"mnuComment", "", "x", "<! Komentář >|x"},  // required: no comment of the language
      {"MnuMeta", "", "x", "Vyber meta-tag|x"},
      {"mnuid", "Combo1=1", "a[b|c", R"(|<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Transitional//EN">¶abc)"},
      {"MnuHTMLASCII", "HScroll1=255", "x", "&#255;|x"},
      {"mnusmajl", "", "x", ":-)|x"},
      {"mnusmajl", "Combo2=7 Combo3=5 Combo5=2", "", ":-)"},  // only the button puts it together
      {"mnusmajl", "Combo1=1 Command3!", "", "(§ )-"},
  });
  EXPECT_EQ(asked, std::vector<Color>{0});
}

TEST_F(HtmlDialogs, WriteAnchorsAndTheirLinks) {
  Expect({{"mnukotva", "Text1=Kotva1", "", R"(<A NAME="Kotva1"></A>)"},
          {"mnukotva", "Text1=část", "a[b|c", R"(a<A NAME="část"></A>|bc)"},
          {"mnukotva", "Text1=Kotva1", "", R"(<A NAME="Kotva1"></A>)"},
          {"mnuodkaz", "Combo1=část", "", R"(<A HREF="#část">Odkaz na část</A>)"}});
  Put("kept");
  for (const auto& [command, field] : {std::pair{"mnukotva", "Text1"}, {"mnuodkaz", "Combo1"}}) {
    const QWidget& dialog = Open(command);
    Work(dialog, (std::string(field) + "=''").c_str());
    QTest::keyClick(Named(dialog, field), Qt::Key_Q, Qt::AltModifier);  // no control has it
    EXPECT_EQ(State(dialog, field), std::string(field) + "=");
    Ok(dialog);
    EXPECT_TRUE(dialog.isVisible()) << command;
  }
  EXPECT_EQ(Document(), "[kept|");
  auto* list = Find<QComboBox>(*OnShow(), "Combo1");
  QTest::keyClicks(list, QStringLiteral("kotva1"));  // nothing is completed
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(Document(), "<A HREF=\"#kotva1\">kept</A>");
  QStringList names;
  for (int row = 0; row < list->count(); ++row) names += list->itemText(row);
  EXPECT_EQ(names.join(u'|'), QStringLiteral("Kotva1|část|Kotva1"));
}

TEST_F(HtmlDialogs, WriteLinksImagesAndFrames) {
  Expect({
      {"mnumailto", "", "", R"(<A HREF="mailto:žluť@b.cz" >mailto na žluť@b.cz</A>)"},
      {"mnuodkazjiny", "File1=0", "x", R"(<A HREF="file://~/x.htm">x</A>)"},
      {"Link", "Check1! Check2! Check3! Text2=a Combo2=_top", "",
       R"(<A HREF="x.htm#a" TARGET="_top">Odkaz na x.htm#a</A>)"},
      {"Link", "Text2='' Combo2=''", "", R"(<A HREF="x.htm" TARGET="">Odkaz na x.htm</A>)"},
      {"Link", "Check3! Option2! Text1=http://žába.cz Option2!", "",
       R"(<A HREF="http://žába.cz">Odkaz na http://žába.cz</A>)"},
      {"mnuobr", "File1=0", "a[b|c", R"(a<IMG SRC="file://~/ž%D0%96.GIF">|bc)"},
      {"Image", "Check1! Check2! Check3! Check4! Check5! Check6! Check7! Check8!", "",
       R"(<IMG SRC="ž%D0%96.GIF" ALT="Obrázek" ALIGN="left" WIDTH="10%" HEIGHT="10%" VSPACE="0" HSPACE="0" BORDER="0")"
       R"( LOWSRC="path/file.jpg" USEMAP="#mapa">)"},
      {"Image", "Option7! VScroll1=600 VScroll2=800 VScroll3=3 VScroll4=4 VScroll5=5 Text1='a \" <'", "",
       R"(<IMG SRC="ž%D0%96.GIF" ALT="a " <" ALIGN="left" WIDTH="800" HEIGHT="600" VSPACE="5" HSPACE="4" BORDER="3")"
       R"( LOWSRC="path/file.jpg" USEMAP="#mapa">)"},
      {"mnuHTML_Fme", "File1=0", "a[b|c", R"(a<FRAME SRC="file://~/x.htm">|bc)"},
      {"mnuHTML_Fme", "Check1! Check2! Check3! Check4! Check5! Check6! Check7! Check8! Check9!", "",
       R"(<FRAME SRC="x.htm" NAME="Rám" ALIGN="LEFT" FRAMEBORDER="0" BORDERCOLOR="#000000" FRAMESPACING="0")"
       R"( SCROLLING="yes" MARGINHEIGHT="0" MARGINWIDTH="0" SCROLLING="yes" NORESIZE>)"},
      // required: SCROLLING twice, the second as it was typed
      {"mnuHTML_Fme",
       "VScroll12=255 VScroll11=1 VScroll10=16 VScroll1=4 VScroll2=5 VScroll4=400 VScroll5=400 Combo2=' no' Combo3=ř",
       "",
       R"(<FRAME SRC="x.htm" NAME="Rám" ALIGN="ř" FRAMEBORDER="4" BORDERCOLOR="#FF0110" FRAMESPACING="5" SCROLLING="no")"
       R"( MARGINHEIGHT="300" MARGINWIDTH="400" SCROLLING=" no" NORESIZE>)"},
  });
}

TEST_F(HtmlDialogs, WriteWholePages) {
  const auto page = [](const std::string& body) {
    return R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Final//EN">¶ <HEAD>¶…  <META NAME="AUTHOR" CONTENT="Jan Novák">¶)"
           R"(  <META NAME="CREATED" CONTENT="11-24-2026 09:05:00">¶  <TITLE>Stránka </TITLE>¶ </HEAD>¶ <BODY)" +
           body + "¶¶ </BODY>¶</HTML>";
  };
  const auto look = [this] { return ColorToHex(main.Look().fore_color) + " " + ColorToHex(main.Look().back_color); };
  Expect({{"mnucreate", "", "", page(">¶[---TEXT---|")},
          {"mnucreate", "Check8! HScroll1=7", "x", page(">¶<BASEFONT SIZE=\"7\">¶[x|")}});
  // required: the editor takes the swatch, which begins white, the page the label, which says black
  main.SetEditorColors(Rgb(7, 7, 7), Rgb(8, 8, 8));
  Expect({{"Newhtml", "Check8! Check1!", "x", page(" BGCOLOR=\"#000000\">¶[x|")}});
  EXPECT_EQ(look(), "#070707 #FFFFFF");
  main.SetEditorColors(Rgb(7, 7, 7), Rgb(8, 8, 8));
  Expect({{"Newhtml", "Check1! Check2!", "x", page(" TEXT=\"#000000\">¶[x|")}});
  EXPECT_EQ(look(), "#000000 #080808");
  auto& dialog = Open("Newhtml");
  Work(dialog, "Check1! Check5! Check6! Check7! Command4! Command5! Command6! Command7! Command8!");
  const auto* preview = Find<TextBox>(dialog, "Text1");
  EXPECT_EQ(preview->TextColor().name() + preview->BackgroundColor().name(), QStringLiteral("#ff0013#ff0010"));
  EXPECT_EQ(look(), "#000000 #080808");  // not before "&Ok"
  Expect({{"Newhtml", "", "x",
           page(R"( BGCOLOR="#FF0010" TEXT="#FF0013" LINK="#FF0012" VLINK="#FF0011" ALINK="#FF0014">¶[x|)")}});
  EXPECT_EQ(look(), "#FF0013 #FF0010");

  Work(dialog, "Check1! Check2! Check5! Check6! Check7!");
  ExpectState(dialog, "Check3!", "Command1=(&Ok) Command3=()");
  Expect({{"Newhtml", "File1=0", "x", page(R"( BACKGROUND="file://~/ž%D0%96.GIF">¶[x|)")},
          // required: a bare name makes a file's address too
          {"Newhtml", "Check4!", "x", page(R"( BACKGROUND="file:///ž%D0%96.GIF">¶[x|)")}});
  ExpectState(dialog, "Combo1=*.BMP", "Command1=(&Ok) Command3=()");
  ExpectState(dialog, "Check4! Check3!", "Command1=&Ok Command3=()");
  Find<FolderList>(dialog, "Dir1")->SetPath(QStringLiteral("/"));  // as when the folder goes
  ExpectState(dialog, "", "Command1=&Ok Label10=/");               // one separator, not two
  Expect({{"Newhtml", "", "x", page(">¶[x|")},
          {"mnuHTML_fset", "Check2! Text3=Můj", "",
           R"(<!DOCTYPE HTML PUBLIC "-//IETF/DTD HTML v.m//EN">¶<HTML>¶ <HEAD>¶…  <TITLE>Můj</TITLE>¶ </HEAD>¶)"
           R"( <FRAMESET ROWS="*,50%,50">¶ </FRAMESET>¶ <NOFRAMES>¶[Tento Prohlížeč nepodporuje Framesy|¶)"
           R"( </NOFRAMES>¶</HTML>)"}});
}

TEST_F(HtmlDialogs, WriteTablesRowsAndCells) {
  Expect({
      {"mnutable", "", "a[b|c", "a<TABLE>¶<TR><TD></TD></TR>¶</TABLE>|bc"},
      // Untouched, a label is written as it stands, the thickness over a bar at 0 too.
      {"Table", "Check1! Check2! Check3! Check4! Check5! Check6! Check7! Check8! Check9!", "",
       R"(<TABLE WIDTH="1%" COLS="1" COLSPEC="L100%" ALIGN="LEFT" FRAME="NONE" BORDER="1" RULES="ALL" CELLSPACING="0")"
       R"( CELLPADDING="0">¶<CAPTION ALIGN="TOP">Nadpis</CAPTION>¶<TR><TD></TD></TR>¶</TABLE>)"},
      {"Table", "Option1! VScroll3=300 VScroll4=5 VScroll4=0 VScroll5=7 VScroll6=8 VScroll1=2 Text1=c Text2=' <x> '",
       "",
       R"(<TABLE WIDTH="300" COLS="2" COLSPEC="c" ALIGN="LEFT" FRAME="NONE" BORDER="0" RULES="ALL" CELLSPACING="7")"
       R"( CELLPADDING="8">¶<CAPTION ALIGN="TOP"> <x> </CAPTION>¶<TR><TD></TD><TD></TD></TR>¶</TABLE>)"},
      {"mnurow", "VScroll1=2", "[ab|c", "<TR><TD>Buňka1</TD><TD>Buňka2</TD></TR>¶|abc"},
      {"mnurow", "Check1! Option4! Check2! VScroll1=1", "",
       R"(<TR ALIGN="CHAR" CHAR="," VALIGN="MIDDLE"><TD>Buňka1</TD></TR>¶)"},
      {"mnurow", "Text1='' Check2!", "", R"(<TR ALIGN="CHAR"><TD>Buňka1</TD></TR>¶)"},
      {"mnucell", "", "", "<TD>Buňka</TD>"},
      {"mnucell", "Check1! Check2! Check3! Check4! Check5! Check6! Check7! Check9!", "a[b|c",
       R"(a<TH ALIGN="CENTER" VALIGN="MIDDLE" BGCOLOR="#000000" COLSPAN="1" ROWSPAN="1" NOWRAP WIDTH="1">b</TH>|c)"},
      {"mnucell", "Check1! Check2! Command3! VScroll4=2 VScroll5=20 Check8! VScroll6=50", "x",
       R"(<TH BGCOLOR="#FF0010" COLSPAN="2" ROWSPAN="20" NOWRAP WIDTH="50%">x</TH>)"},
  });
  const QWidget& cell = Open("mnucell");
  ExpectState(cell, "Check8! VScroll6=300", "Label8=300");
  ExpectState(cell, "Check8!", "Label8=100%");
  ExpectState(cell, "Option4! Option3!", "Text1=(,)");
}

TEST_F(HtmlDialogs, WalkThroughATable) {
  const QWidget& table = Open("mnutable");
  ExpectState(table, "VScroll1=3 VScroll2=3 HScroll1=3 VScroll7=3 VScroll8=3", "Label12=3/3 Label13=3/3 Label16=3/3");
  Work(table, "Text4=ř Text3=' NOWRAP' Text5=typed HScroll1=1 VScroll7=2 Text4=x HScroll1=3 VScroll7=3");
  // The position falls back, to an empty cell.
  ExpectState(table, "VScroll1=2 VScroll2=2", "Label12=2/2 Label13=2/2 Label16=2/2 Text3= Text4= Text5=");
  Expect({{"mnutable", "", "", "<TABLE>¶<TR><TD></TD><TD></TD></TR>¶<TR><TD>x</TD><TD></TD></TR>¶</TABLE>"},
          {"mnutable", "VScroll1=3 VScroll2=3", "",
           "<TABLE>¶<TR><TD></TD><TD></TD><TD></TD></TR>¶<TR><TD>x</TD><TD></TD><TD></TD></TR>¶"
           "<TRtyped><TD></TD><TD></TD><TD NOWRAP>ř</TD></TR>¶</TABLE>"}});
  ExpectState(table, "HScroll1=3 VScroll7=3 VScroll8=3 Command4! Command5!",
              "Label12=3/3 Label13=3/3 Label16=3/3 Text3= Text4=ř Text5=");
  // Enter goes from cell to cell and from a bar to what follows it, and ends the table only behind the last one.
  ExpectState(table,
              "VScroll1=2 VScroll2=2 HScroll1=1 VScroll7=1 TabStrip1=1 HScroll1:\r VScroll7:\r Text4:a\rb\rc\rd\r",
              "Label12=2/2 Label13=2/2 Text4=d");
  EXPECT_EQ(table.focusWidget()->objectName(), QStringLiteral("Command1"));
  Expect({{"mnutable", "", "", "<TABLE>¶<TR><TD>a</TD><TD>b</TD></TR>¶<TR><TD>c</TD><TD>d</TD></TR>¶</TABLE>"}});
  auto* tabs = Find<QTabBar>(table, "TabStrip1");
  EXPECT_EQ(tabs->tabText(0) + tabs->tabText(1), QStringLiteral("Celá tabulkaBuňka / Řádek"));
  tabs->setCurrentIndex(1);
  EXPECT_FALSE(Find<QWidget>(table, "Frame1")->isVisibleTo(&table));
  EXPECT_TRUE(Find<QWidget>(table, "Frame8")->isVisibleTo(&table));
}

TEST_F(HtmlDialogs, ATableAsksForAttributes) {
  const QWidget& table = Open("mnutable");
  const auto ask = [&](const char* button, const char* steps) {
    Inside([steps] {
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      EXPECT_FALSE(
          Named(*dialog, QLatin1String(dialog->inherits("pelmar::TableRow") ? "VScroll1" : "Check9"))->isEnabled());
      Work(*dialog, steps);
    });
    Work(table, button);
    return State(table, "Text3 Text5");
  };
  editor.text.SetText("kept");
  EXPECT_EQ(ask("Command3!", "Check1! Option4! Command1!"), "Text3= ALIGN=\"CHAR\" CHAR=\",\" Text5=");
  EXPECT_EQ(ask("Command3!", "Check1! Command2!"), "Text3= ALIGN=\"CHAR\" CHAR=\",\" Text5=");  // cancelled
  EXPECT_EQ(ask("Command3!", "Command1!"), "Text3= Text5=");  // nothing ticked removes them
  windows.Get<TableRow>().Present();                          // on show beside the editor, it comes back to ask
  EXPECT_EQ(ask("Command6!", "Check2! Command1!"), "Text3= Text5= VALIGN=\"MIDDLE\"");
  EXPECT_EQ(editor.text.Text(), "kept");
  ExpectState(Open("mnurow"), "", "VScroll1=1");
}

TEST_F(HtmlDialogs, EachOptionHasItsWord) {
  for (const auto& [command, first, last, mark, words] :
       {std::tuple{"mnuparagraph", 1, 3, "ALIGN = \"", "LEFT CENTER RIGHT"},
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
        {"mnulistcount", 1, 5, "TYPE=\"", "1 a A I i"}}) {
    QWidget& window = Open(command);
    if (auto* names = window.findChild<FileList*>()) names->setCurrentIndex(names->model()->index(0, 0));
    for (auto* box : window.findChildren<QCheckBox*>()) box->setChecked(true);
    QStringList written;
    for (int option = first; option <= last; ++option) {
      Work(window, qPrintable(QStringLiteral("Option%1!").arg(option)));
      Put("");
      Ok(window);
      const QString tag = TextToQString(editor.text.Text());
      written += tag.section(QLatin1String(mark), 1).section(u'"', 0, 0);
    }
    EXPECT_EQ(written.join(u' '), QLatin1String(words)) << command;
  }
}

TEST_F(HtmlDialogs, LabelsFollowBarsAndUnits) {
  for (const auto& [command, steps, state] : {
           std::tuple{"mnubarva", "Check1! VScroll4=7", "Label4=7"},
           {"mnuhr", "", "Label1=(1%)"},
           {"mnuhr", "Check1! VScroll1=50", "Label1= 50%"},
           {"mnuhr", "Option5!", "Label1= 50"},
           {"mnuhr", "VScroll1=800", "Label1=800"},
           {"mnuhr", "Option5!", "Label1= 800"},  // required: the unit that is set already counts as well
           {"mnuhr", "Option4!", "Label1= 100%"},
           {"MnuHTMLASCII", "HScroll1=38", "Label1=38 Label2=&"},
           {"MnuHTMLASCII", "HScroll1=138", "Label1=138 Label2=Š"},
           {"mnuobr", "Check1! VScroll1=150", "Label3= 150% Label4= 10%"},
           {"mnuobr", "Option7!", "Label3= 150 Label4= 10"},  // the values stay
           {"mnuobr", "VScroll1=999 VScroll2=0", "Label3= 600 Label4= 1"},
           {"mnuobr", "VScroll2=999", "Label3= 600 Label4= 800"},  // required: wider than high
           {"mnuobr", "VScroll2=5 Option6!", "Label3= 200% Label4= 10%"},
           {"mnuHTML_Fme", "Check9! VScroll12=255 VScroll10=16", "Label8=#FF0010 Picture3=#ff0010"},
           {"mnucreate", "Check8! HScroll1=3", "Label14=3"},
           {"mnucreate", "Check6! Command8!", "Label11=#FF0010 Picture3=#ff0010"},
           {"mnuodkazjiny", "", "Frame1= Text1=(http://) Command1=(&Ok)"},
           {"mnuodkazjiny", "Option2!", "Frame1=() Text1=http:// Command1=&Ok"},
           {"mnuodkazjiny", "Option1! File1=0 Text2='' Text1=b Option1!", "Frame1= Command1=&Ok"},
           {"mnuodkazjiny", "Option2! Text2='' Text1=a", "Command1=(&Ok)"},  // required: for want of a fragment
           {"mnuodkazjiny", "Text1=b Text2=k Text1=c", "Command1=&Ok"},
       })
    ExpectState(Open(command), steps, state);
}

TEST_F(HtmlDialogs, BoxesEnableWhatTheyTickAndEscapeLeavesTheTextAlone) {
  editor.text.SetText("kept");
  QStringList all;  // how many controls each box enables, and what all together don't
  windows.ForEach([&](QWidget& window) {
    const auto greyed = [&window] {
      QStringList names;
      for (const QWidget* control : window.findChildren<QWidget*>())
        if (!control->isEnabled() && control->parentWidget()->isEnabled()) names += control->objectName();
      return names;
    };
    window.show();
    const QStringList first = greyed();
    QString told = window.objectName();
    for (auto* box : window.findChildren<QCheckBox*>()) {
      const auto before = greyed().size();
      box->click();
      told += QStringLiteral(" %1").arg(before - greyed().size());
    }
    if (!first.isEmpty()) all += told + u' ' + greyed().join(u' ');
    for (auto* box : window.findChildren<QCheckBox*>()) box->click();
    EXPECT_EQ(greyed(), first) << window.objectName().toStdString();
    for (const auto* box : window.findChildren<QComboBox*>())  // what is typed isn't completed
      EXPECT_FALSE(box->isEditable() && box->completer()) << window.objectName().toStdString();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible()) << window.objectName().toStdString();
  });
  all.sort();
  EXPECT_EQ(all.join(u'|').toStdString(),
            "Attr Command2|Barva 2 1 3 |CisSeznam 5 1 0 |Frame 0 1 1 1 2 2 7 6 0 Command3 Command1|Frames 1 1 |Hr 4 0 |"
            "Obrazek 0 1 1 1 8 5 6 3 Command3 Command1|OdkazNaJiný 0 1 1 Command3 Text1 Command1|Seznam 3 1 0 |"
            "SeznamDef Command2|Table 0 4 3 5 11 4 1 2 2 ScrollLeftButton|TableCell 0 4 3 2 2 2 3 0 0 Text1|"
            "TableRow 4 3 Text1|Tagy 0 Command2|Vytvoř 2 2 2 2 2 2 4 0 Command3 Command1");
  EXPECT_EQ(editor.text.Text(), "kept");
}

TEST_F(HtmlDialogs, TheChosenFileLeadsLabelAndButtons) {
  auto& dialog = Open("mnuobr");
  auto* folders = Find<FolderList>(dialog, "Dir1");
  ExpectState(dialog, "", "Label1= Command1=(&Ok) Command3=()");
  ExpectState(dialog, "File1=0", "Label1=~/žЖ.GIF Command1=&Ok Command3=");
  ExpectState(dialog, "Check5!", "Label1=žЖ.GIF Command1=&Ok Command3=()");
  ExpectState(dialog, "Check5! Combo1=*.jpg", "Label1=~/ Command1=(&Ok) Command3=()");
  ExpectState(dialog, "File1=0", "Label1=~/b.jpg Command1=&Ok Command3=");
  folders->SetPath(Utf8ToQString(temp.File("sub")));
  ExpectState(dialog, "", "Label1=~/sub/ Command1=(&Ok) Command3=()");
  Expect({{"mnuobr", "Combo1=*.gif File1=0 Command3!", "", R"(<IMG SRC="file://~/sub/k%F9.gif">)"}});
  EXPECT_EQ(shown, std::vector<std::string>{temp.File("sub/k\xF9.gif")});
  std::filesystem::remove(temp.File("sub/k\xF9.gif"));
  Expect({{"mnuobr", "", "", R"(<IMG SRC="file://~/sub/k%F9.gif">)"}});  // required: that it still exists isn't checked
  const QWidget& link = Open("mnuodkazjiny");
  ExpectState(link, "File1=0", "Label1=~/x.htm Command1=&Ok Command3=");
  ExpectState(link, "Option2! Dir1=/ Option1!", "Label1=/ Command1=(&Ok) Command3=()");
}

TEST_F(HtmlDialogs, ListsOfItems) {
  Expect({{"mnulist", "", "", "<UL>¶<LI>Položka</LI>¶</UL>"},
          {"mnulistcount", "Check2! Option4! Check3! Check1! Text2=H", "z",
           R"(<OL TYPE="I" COMPACT>¶<LH>H</LH>¶<LI>Položka</LI>¶</OL>|z)"}});
  QWidget& bullets = Open("mnulist");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bullets));
  ExpectState(bullets, "Text1=a Command1! Text1=b Command1! Text1=c Command1! List1=2 Text1=x Command1:' '",
              "List1=Položka|a|x|>b|c");
  auto* item = Find<QLineEdit>(bullets, "Text1");
  EXPECT_EQ(bullets.focusWidget(), item);
  ExpectState(bullets, "Command2!", "List1=Položka|a|x|c");  // the selected row, then the last one
  ExpectState(bullets, "List1=3 List1:\x7f", "List1=Položka|a|x Command2=O&deber");
  ExpectState(bullets, "Command2! Command2! Command2!", "List1= Command2=(O&deber)");
  Open("mnulist");
  EXPECT_TRUE(bullets.testAttribute(Qt::WA_KeyboardFocusChange));  // or nothing would mark it
  EXPECT_EQ(item->selectedText(), QStringLiteral("x"));            // the first field, ready to be typed over
  for (const char* typed : {"2", "3"}) {
    QTest::keyClicks(item, QLatin1String(typed));
    QTest::keyClick(item, Qt::Key_Return);
  }
  ExpectState(bullets, "", "List1=2|3 Command2=O&deber");
  for (const char* command : {"mnulist", "mnulistcount"}) {
    auto* delegate = qobject_cast<QStyledItemDelegate*>(Find<QListView>(Open(command), "List1")->itemDelegate());
    EXPECT_EQ(delegate->displayText(QStringLiteral("a\r\nb"), {}), QStringLiteral("a¶b")) << command;
  }

  const QWidget& terms = Open("MnuListDef");
  ExpectState(terms, "Command1! Atribut=a Hodnota=''", "Command1=(&Přidej)");  // required: by the last change
  QTest::keyClick(Find<QLineEdit>(terms, "Hodnota"), Qt::Key_Return);
  ExpectState(terms, "Atribut=b", "Atributs=Text1 Command1=&Přidej");
  QTest::keyClick(Find<QLineEdit>(terms, "Hodnota"), Qt::Key_Return);
  EXPECT_EQ(Find<QLineEdit>(terms, "Atribut")->selectedText(), QStringLiteral("b"));
  ExpectState(terms, "Values=0", "Atributs=>Text1|b Values=>Text1| Atribut=b");  // the fields don't follow here
  Expect({{"MnuListDef", "", "", "<DL>¶<DT>Text1</DT>¶<DD>Text1</DD>¶<DT>b</DT>¶<DD></DD>¶</DL>"}});
}

TEST_F(HtmlDialogs, AttributesAndTagsOfOnesOwn) {
  Put("");
  editor.commands.Run("Mnu_Insert_Custom_Tag");  // without its window
  EXPECT_EQ(Document(), "<TAG>Vlastní tag</TAG>");
  Expect({{"mnuvlastni", "TagText=X Command1!", "a", R"(<X Atribut="Hodnota">a</X>)"},
          {"mnuvlastni", "Check1!", "a", R"(<X Atribut="Hodnota">|a)"}});
  const QWidget& attr = Open("mnuatr");
  ExpectState(attr, "", "Atribut=Atribut Hodnota=Hodnota Command2=(O&deber)");
  QTest::keyClick(Named(attr, QStringLiteral("Atribut")), Qt::Key_Down);
  ExpectState(attr, "", "Atribut=ALIGN");  // the first row of the list
  ExpectState(attr, "Atribut=ID Hodnota=ž Command1! Atribut=REL Command1! Atributs=1 Atribut=X Command1!",
              "Atributs=ID|X|>REL Values=ž|ž|>ž");  // the rows stay as they are
  ExpectState(attr, "Command2!", "Atributs=ID|X Values=ž|ž");
  Put("|<A>x</A>");
  platform.answers = {Answer::kOk};
  Ok(attr);  // at the very start of the text
  EXPECT_TRUE(attr.isVisible());
  Expect({{"mnuatr", "", "<A>|x</A>", R"(<A ID="ž" X="ž"|>x</A>)"}});
  EXPECT_EQ(platform.calls.size(), 1U);
}

TEST_F(HtmlDialogs, ATagIsTakenApartAndWrittenBack) {
  platform.opens = {"/ž.gif", std::nullopt};
  platform.answers = {Answer::kOk, Answer::kOk};
  const auto edit = [&](const std::function<void(QWidget&)>& act) {
    Inside([&] {
      QWidget& dialog = *QApplication::activeModalWidget();
      act(dialog);
      if (dialog.isVisible()) Ok(dialog);
      dialog.hide();
    });
    editor.commands.Run("Mnu_Edit_Tag");
  };
  for (const auto& [before, steps, state, after] : {
           std::tuple{"a<IMG ALT=\"a b\" SRC=c>|d", "", "Text1=IMG Atributs=ALT|SRC Values=a b|c Command2=O&deber",
                      "a<IMG ALT=\"a b\" SRC=\"c\">|d"},
           {"<A B=1 C=2>| ", "Atributs=1", "Values=1|>2 Atribut=C Hodnota=2", R"(<A B="1" C="2">| )"},
           {"<A B=1 C=2>| ", "Atributs=1 Values=0 Atribut=''", "Atributs=>|C Hodnota=1 Command1=(&Přidej)",
            R"(<A ="1" C="2">| )"},
           {"<A B=1 C=2>| ", "Values=0 Atribut=X HScroll1=50", "Atributs=>X|C Values=>50%|2", R"(<A X="50%" C="2">| )"},
           {"<A B=1 C=2>| ", "Values=1 Command5!", "Hodnota=#FF0010", R"(<A B="1" C="#FF0010">| )"},
           {"<A B=1 C=2>| ", "Values=0 Command6! Command6! Command1!",  // the second is cancelled
            "Atributs=B|>B|C", R"(<A B="file:///ž.gif" B="file:///ž.gif" C="2">| )"},
           {"<A B=x¶y C=2>| ", "Atributs=0 Atributs=1 Atributs=0", "Atribut=B", R"(<A B="x¶y" C="2">| )"},
           {"<A B=1 C=>| ", "Atributs=1 Command2!", "Atributs=B Values= Command2=(O&deber)", R"(<A B="">| )"},
           {"|a", "", "Text1= Atributs= Command2=(O&deber)", "<>|a"},
           {"<A B=1 C=2>| ", "Atributs=0 Command2! Command4!", "Atributs=C Values=2", "[<A B=1 C=2>| "},
       }) {
    Put(before);
    edit([&, s = steps, expected = state](QWidget& dialog) { ExpectState(dialog, s, expected); });
    EXPECT_EQ(Document(), after) << before << ' ' << steps;
  }
  EXPECT_EQ(asked, std::vector<Color>{0});
  EXPECT_EQ(platform.calls.front(), R"(open "Všechno(*.*)|*.*" 1)");
  // What is only looked at comes back whole, however long it is; the tabulator key reaches each control.
  const std::string longest(40000, 'A');
  editor.text.SetText("<B C=" + longest + ">");
  std::string order;
  edit([&](QWidget& dialog) {
    Work(dialog, "Atributs=0 Values=0");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    for (int i = 0; i < 12; ++i) {
      order += QApplication::focusWidget()->objectName().toStdString() + ' ';
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
  });
  EXPECT_EQ(order,
            "Text1 Atribut Hodnota Command1 Command2 Atributs Values HScroll1 Command5 Command6 Command3 Command4 ");
  EXPECT_TRUE(editor.text.Text() == "<B C=\"" + longest + "\">") << editor.text.Size();
}

TEST_F(HtmlDialogs, ASampleTakesThePlaceOfTheDocument) {
  Expect({{"mnutemplate", "", "x", "|Vyber dokument¶"}});
  Put("ol|d");
  const QWidget& window = Open("mnutemplate");
  auto* list = Find<QTreeWidget>(window, "ListView1");
  const auto preview = [&] { return std::string(ViewOf(Find<TextBox>(window, "Text1")->Text())); };
  const auto click = [&](int row) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->topLevelItem(row)).center());
  };
  EXPECT_EQ(list->topLevelItem(10)->text(1), QStringLiteral("file_ID.diz"));
  EXPECT_FALSE(list->topLevelItem(6)->icon(0).pixmap(20).isNull());
  EXPECT_EQ(preview(), "Vyber dokument\r\n");
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Down);  // the first row, not the second
  EXPECT_EQ(preview(), SampleText("HTML1", editor.settings));
  editor.settings.UserEmail = "c@d";
  click(0);  // made anew at each click
  EXPECT_EQ(preview(), SampleText("HTML1", editor.settings));
  ExpectState(window, "", "Label1=Zobrazení dokumentu :Jednoduchý HTML dokument 1");
  QTest::keyClick(list, Qt::Key_End);
  EXPECT_EQ(preview(), SampleText("DIZ1", editor.settings));
  click(9);
  EXPECT_EQ(Document(), "ol|d");
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(Document(), '|' + Folded(TextToQString(preview())).toStdString());
  EXPECT_EQ(preview(), SampleText("BAT2", editor.settings));
  EXPECT_FALSE(editor.text.CanUndo());  // required for a replaced text
}

}  // namespace
}  // namespace pelmar
