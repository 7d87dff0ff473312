#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QTest>
#include <set>

#include "html/dialogs/block_dialogs.h"
#include "html/dialogs/edi_tag.h"
#include "html/dialogs/inline_dialogs.h"
#include "html/dialogs/list_dialogs.h"
#include "html/dialogs/tag_dialogs.h"
#include "platform/color.h"
#include "platform/qt/controls/swatch.h"
#include "platform/qt/convert.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

using Rows = std::vector<std::string>;

bool Enabled(const QWidget& window, const char* name) { return Find<QWidget>(window, name)->isEnabled(); }
void SetBox(const QWidget& window, const char* name, const char* text) {
  Find<QComboBox>(window, name)->setEditText(QString::fromUtf8(text));
}
std::string BoxText(const QWidget& window, const char* name) {
  return Find<QComboBox>(window, name)->currentText().toStdString();
}
QListWidget* List(const QWidget& window, const char* name) { return Find<QListWidget>(window, name); }
Rows RowsOf(const QWidget& window, const char* name) {
  Rows rows;
  for (int row = 0; row < List(window, name)->count(); ++row)
    rows.push_back(List(window, name)->item(row)->text().toStdString());
  return rows;
}
int Selected(const QWidget& window, const char* name) {
  const QModelIndexList rows = List(window, name)->selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : rows.first().row();
}

struct TagWindows : testing::Test {
  TextBuffer text;
  ScriptedPlatform platform;
  std::vector<Color> asked;
  std::function<Color(Color)> pick = [this](Color color) {
    asked.push_back(color);
    return Rgb(255, 0, 16);
  };

  // What "&Ok" makes of a text that is selected as a whole.
  std::string Made(DialogWindow& window, std::string_view selection = {}, const char* ok = "Command1") {
    text.SetText(std::string(selection));
    text.Select(0, selection.size());
    window.Present();
    Click(window, ok);
    EXPECT_FALSE(window.isVisible());
    return text.Text();
  }
};

TEST_F(TagWindows, BlocksAndFontAsFirstOpenedAndChanged) {
  Odstavec paragraph(text, nullptr);
  EXPECT_EQ(Made(paragraph), R"(<P ALIGN = "LEFT" > Odstavcový text </P>)"_w);
  Click(paragraph, "Option3");
  EXPECT_EQ(Made(paragraph, "x"), R"(<P ALIGN = "RIGHT" > x </P>)");
  paragraph.Present();
  Click(paragraph, "Command2");
  EXPECT_EQ(text.Text(), R"(<P ALIGN = "RIGHT" > x </P>)");

  Nadpis heading(text, nullptr);
  EXPECT_EQ(Made(heading, "x"), R"(<H1 ALIGN = "CENTER"> x </H1>)");
  SetBar(heading, "VScroll1", 9);
  EXPECT_EQ(LabelText(heading, "Label1"), " 6");
  Click(heading, "Option4");
  Click(heading, "Check1");
  EXPECT_EQ(Made(heading, "x"), "<H6 NOWRAP> x </H6>");

  Barva font(text, pick, nullptr);
  EXPECT_EQ(Made(font), "<FONT> fontové písmo </FONT>"_w);
  for (const char* control : {"VScroll4", "Combo1", "Command3"}) EXPECT_FALSE(Enabled(font, control)) << control;
  for (const char* check : {"Check1", "Check2", "Check3"}) Click(font, check);
  EXPECT_EQ(Made(font, "x"), R"(<FONT SIZE="1" FACE="Combo1" COLOR="#000000">x</FONT>)");
  SetBar(font, "VScroll4", 7);
  EXPECT_EQ(LabelText(font, "Label4"), "7");
  SetBox(font, "Combo1", "Žluté");
  Click(font, "Command3");
  EXPECT_EQ(Find<Swatch>(font, "Label1")->Color(), QColor(255, 0, 16));
  EXPECT_EQ(Made(font, "x"), R"(<FONT SIZE="7" FACE="Žluté" COLOR="#FF0010">x</FONT>)"_w);
}

TEST_F(TagWindows, WidthOfTheLineFollowsItsUnit) {
  Hr line(text, nullptr);
  EXPECT_EQ(Made(line, "abc"), "<HR>abc");
  EXPECT_FALSE(Enabled(line, "VScroll1"));
  Click(line, "Check1");
  for (const char* control : {"Option4", "Option5", "VScroll1"}) EXPECT_TRUE(Enabled(line, control)) << control;
  EXPECT_EQ(LabelText(line, "Label1"), "1%");
  EXPECT_EQ(Made(line), R"(<HR Width = "1%">)");
  SetBar(line, "VScroll1", 50);
  EXPECT_EQ(LabelText(line, "Label1"), " 50%");
  Click(line, "Option1");
  Click(line, "Shader");
  EXPECT_EQ(Made(line), R"(<HR ALIGN = "CENTER" NOSHADE Width = "50%">)");
  Click(line, "Option5");
  EXPECT_EQ(LabelText(line, "Label1"), " 50");
  SetBar(line, "VScroll1", 800);
  EXPECT_EQ(LabelText(line, "Label1"), "800");
  Click(line, "Option5");  // required: the unit that is set already counts as well
  EXPECT_EQ(LabelText(line, "Label1"), " 800");
  Click(line, "Option2");
  EXPECT_EQ(Made(line), R"(<HR ALIGN = "LEFT" NOSHADE Width = "800">)");
  Click(line, "Option4");
  EXPECT_EQ(LabelText(line, "Label1"), " 100%");
}

TEST_F(TagWindows, FragmentsOfOneTextOrChoice) {
  LineLabel lined(text, nullptr);
  EXPECT_EQ(Made(lined, "x"),
            "<HR ALIGN = \"LEFT\" Width = \"60%\"><H2>Nadpis</H2><HR ALIGN = \"RIGHT\" Width = \"60%\">x");
  Label table(text, nullptr);
  EXPECT_NE(Made(table, "x").find("<td align=\"center\">Nadpis</td>"), std::string::npos);
  Zlomek fraction(text, nullptr);
  SetField(fraction, "Text2", QStringLiteral("ž"));
  EXPECT_EQ(Made(fraction, "x"), "<SUP>A</SUP>/<SUB>ž</SUB>x"_w);
  Comment comment(text, nullptr);
  EXPECT_EQ(Made(comment, "x"), "<! Komentář >x"_w);

  Meta meta(text, nullptr);
  EXPECT_EQ(Made(meta, "x"), "Vyber meta-tagx");
  Find<QComboBox>(meta, "Combo1")->setCurrentIndex(6);
  EXPECT_EQ(Made(meta), R"(<META NAME="AUTHORr" CONTENT="Orvilanth">)");
  EXPECT_EQ(Find<QComboBox>(meta, "Combo1")->count(), 7);

  HtmlID doctype(text, nullptr);
  Find<QComboBox>(doctype, "Combo1")->setCurrentIndex(1);
  EXPECT_EQ(Made(doctype, "x"), "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">\r\nx");
}

TEST_F(TagWindows, CharacterByItsNumber) {
  HTMLAscii ascii(text, nullptr);
  EXPECT_EQ(Made(ascii), "&#0;");
  for (const auto& [code, sign] : {std::pair{65, "A"}, {38, "&"}, {60, "<"}, {138, "Š"}, {255, "˙"}}) {
    SetBar(ascii, "HScroll1", code);
    EXPECT_EQ(LabelText(ascii, "Label1"), std::to_string(code));
    EXPECT_EQ(LabelText(ascii, "Label2"), sign);
  }
  EXPECT_EQ(Made(ascii, "x"), "&#255;x");
}

TEST_F(TagWindows, SmileyOfFiveParts) {
  Smajl smiley(text, nullptr);
  const std::pair<const char*, QString> boxes[] = {{"Combo1", QStringLiteral(" (<{[/*+=-~")},
                                                   {"Combo2", QStringLiteral(":;8&$=B§|")},
                                                   {"Combo3", QStringLiteral("-<*o~ ")},
                                                   {"Combo4", QStringLiteral(")]}>7&I#wV/!")},
                                                   {"Combo5", QStringLiteral(" =-")}};
  for (const auto& [name, signs] : boxes) {
    QString rows;
    for (int row = 0; row < Find<QComboBox>(smiley, name)->count(); ++row)
      rows += Find<QComboBox>(smiley, name)->itemText(row);
    EXPECT_EQ(rows, signs);
  }
  EXPECT_EQ(Made(smiley, "x"), ":-)x");
  Find<QComboBox>(smiley, "Combo2")->setCurrentIndex(7);
  Find<QComboBox>(smiley, "Combo3")->setCurrentIndex(5);
  EXPECT_EQ(Made(smiley), ":-)");  // only the button puts it together
  Click(smiley, "Command3");
  EXPECT_EQ(Made(smiley), "§ )"_w);
}

TEST_F(TagWindows, ListsOfItems) {
  Seznam bullets(text, nullptr);
  EXPECT_EQ(Made(bullets, "", "Command3"), "<UL>\r\n<LI>Položka</LI>\r\n</UL>"_w);
  for (const char* item : {"a", "b", "c"}) {
    SetField(bullets, "Text1", QString::fromLatin1(item));
    Click(bullets, "Command1");
  }
  List(bullets, "List1")->setCurrentRow(2);
  SetField(bullets, "Text1", QStringLiteral("x"));
  Click(bullets, "Command1");
  EXPECT_EQ(RowsOf(bullets, "List1"), (Rows{"Položka", "a", "x", "b", "c"}));
  Click(bullets, "Command2");  // the selected row, then the last one
  EXPECT_EQ(RowsOf(bullets, "List1"), (Rows{"Položka", "a", "x", "c"}));
  Click(bullets, "Command2");
  EXPECT_EQ(RowsOf(bullets, "List1"), (Rows{"Položka", "a", "x"}));
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(Enabled(bullets, "Command2"));
    Click(bullets, "Command2");
  }
  EXPECT_FALSE(Enabled(bullets, "Command2"));
  EXPECT_FALSE(Enabled(bullets, "Option2"));
  Click(bullets, "Check2");
  Click(bullets, "Option2");
  EXPECT_EQ(Made(bullets, "", "Command3"), "<UL TYPE=\"circle\">\r\n</UL>");

  CisSeznam numbers(text, nullptr);
  for (const char* name : {"Check2", "Option4", "Check3", "Check1"}) Click(numbers, name);
  SetField(numbers, "Text2", QStringLiteral("H"));
  EXPECT_EQ(Made(numbers, "z", "Command3"), "<OL TYPE=\"I\" COMPACT>\r\n<LH>H</LH>\r\n<LI>Položka</LI>\r\n</OL>z"_w);
  numbers.Present();
  auto* item = Find<QLineEdit>(numbers, "Text1");
  EXPECT_EQ(item->selectedText(), QStringLiteral("Položka"));  // the first field, ready to be typed over
  QTest::keyClicks(item, QStringLiteral("2"));
  QTest::keyClick(item, Qt::Key_Return);
  QTest::keyClicks(item, QStringLiteral("3"));
  QTest::keyClick(item, Qt::Key_Return);
  EXPECT_EQ(RowsOf(numbers, "List1"), (Rows{"Položka", "2", "3"}));
  EXPECT_TRUE(numbers.isVisible());
}

TEST_F(TagWindows, ListOfDefinitions) {
  SeznamDef list(text, nullptr);
  EXPECT_EQ(Made(list, "", "Command3"), "<DL>\r\n</DL>");
  EXPECT_FALSE(Enabled(list, "Command2"));
  Click(list, "Command1");
  SetField(list, "Atribut", QStringLiteral("a"));
  SetField(list, "Hodnota", QString());
  EXPECT_FALSE(Enabled(list, "Command1"));  // required: by the field that changed last
  SetField(list, "Atribut", QStringLiteral("b"));
  Click(list, "Command1");
  List(list, "Values")->setCurrentRow(0);
  EXPECT_EQ(Selected(list, "Atributs"), 0);
  EXPECT_EQ(LineText(list, "Atribut"), "b");  // the fields don't follow here
  EXPECT_EQ(Made(list, "", "Command3"), "<DL>\r\n<DT>Text1</DT>\r\n<DD>Text1</DD>\r\n<DT>b</DT>\r\n<DD></DD>\r\n</DL>");
}

TEST_F(TagWindows, AttributesOfATag) {
  Attr attr(text, platform, nullptr);
  EXPECT_EQ(BoxText(attr, "Atribut"), "Atribut");
  EXPECT_EQ(BoxText(attr, "Hodnota"), "Hodnota");
  EXPECT_FALSE(Enabled(attr, "Command2"));
  SetBox(attr, "Atribut", "ID");
  SetBox(attr, "Hodnota", "ž");
  Click(attr, "Command1");
  SetBox(attr, "Atribut", "REL");
  Click(attr, "Command1");
  List(attr, "Atributs")->setCurrentRow(1);
  EXPECT_EQ(Selected(attr, "Values"), 1);
  SetBox(attr, "Atribut", "X");  // the rows stay as they are
  Click(attr, "Command1");
  EXPECT_EQ(RowsOf(attr, "Atributs"), (Rows{"ID", "X", "REL"}));
  EXPECT_EQ(Selected(attr, "Atributs"), 2);
  EXPECT_EQ(Selected(attr, "Values"), 2);
  Click(attr, "Command2");
  EXPECT_EQ(RowsOf(attr, "Atributs"), (Rows{"ID", "X"}));
  EXPECT_EQ(Selected(attr, "Atributs"), -1);
  EXPECT_EQ(Selected(attr, "Values"), -1);
  text.SetText("<A>x</A>");
  attr.Present();
  platform.answers = {Answer::kOk};
  Click(attr, "Command3");  // at the very start of the text
  EXPECT_TRUE(attr.isVisible());
  EXPECT_EQ(text.Text(), "<A>x</A>");
  EXPECT_EQ(platform.TakeCalls().size(), 1u);
  text.SetSelStart(2);
  Click(attr, "Command3");
  EXPECT_FALSE(attr.isVisible());
  EXPECT_EQ(text.Text(), "<A ID=\"ž\" X=\"ž\">x</A>"_w);
}

TEST_F(TagWindows, CustomTagFromTheHiddenWindow) {
  Tagy tag(text, nullptr);
  tag.InsertCustomTag();
  EXPECT_EQ(text.Text(), "<TAG>Vlastní tag</TAG>"_w);
  SetField(tag, "TagText", QStringLiteral("X"));
  Click(tag, "Command1");
  EXPECT_EQ(Made(tag, "a", "Command3"), "<X Atribut=\"Hodnota\">a</X>");
  Click(tag, "Check1");
  text.Select(0, 1);
  tag.InsertCustomTag();
  EXPECT_TRUE(text.Text().starts_with("<X Atribut=\"Hodnota\"><X"));
}

struct EdiTagTest : TagWindows {
  EdiTag dialog{text, platform, pick, nullptr};

  void Open(std::string_view tag, std::function<void()> act) {
    text.SetText(std::string(tag));
    text.Select(tag.size(), tag.size());
    bool acted = false;
    Inside([&] {
      acted = true;
      EXPECT_TRUE(dialog.isModal());
      act();
      dialog.hide();
    });
    dialog.Run();
    EXPECT_TRUE(acted);
  }
};

TEST_F(EdiTagTest, TakesTheTagApartAndWritesItBack) {
  Open("a<IMG ALT=\"a b\" SRC=c>d", [&] {
    EXPECT_EQ(text.SelText(), "<IMG ALT=\"a b\" SRC=c>");
    EXPECT_EQ(LineText(dialog, "Text1"), "IMG");
    EXPECT_EQ(RowsOf(dialog, "Atributs"), (Rows{"ALT", "SRC"}));
    EXPECT_EQ(RowsOf(dialog, "Values"), (Rows{"a b", "c"}));
    EXPECT_TRUE(Enabled(dialog, "Command2"));
    Click(dialog, "Command3");
  });
  EXPECT_EQ(text.Text(), "a<IMG ALT=\"a b\" SRC=\"c\">d");
}

TEST_F(EdiTagTest, FieldsFollowAndRewriteTheSelectedRow) {
  platform.opens = {"/home/ž.gif", std::nullopt};
  Open("<A B=1 C=2>", [&] {
    List(dialog, "Atributs")->setCurrentRow(1);
    EXPECT_EQ(Selected(dialog, "Values"), 1);
    EXPECT_EQ(BoxText(dialog, "Atribut"), "C");
    EXPECT_EQ(BoxText(dialog, "Hodnota"), "2");
    List(dialog, "Values")->setCurrentRow(0);
    EXPECT_EQ(BoxText(dialog, "Atribut"), "B");
    EXPECT_EQ(RowsOf(dialog, "Atributs"), (Rows{"B", "C"}));
    SetBox(dialog, "Atribut", "");
    EXPECT_FALSE(Enabled(dialog, "Command1"));
    SetBox(dialog, "Atribut", "X");
    EXPECT_TRUE(Enabled(dialog, "Command1"));
    SetBar(dialog, "HScroll1", 50);
    EXPECT_EQ(RowsOf(dialog, "Values"), (Rows{"50%", "2"}));
    Click(dialog, "Command5");
    EXPECT_EQ(asked, std::vector<Color>{0});
    EXPECT_EQ(RowsOf(dialog, "Values"), (Rows{"#FF0010", "2"}));
    Click(dialog, "Command6");
    Click(dialog, "Command6");  // cancelled: all stays
    EXPECT_EQ(RowsOf(dialog, "Values"), (Rows{"file:///home/ž.gif", "2"}));
    Click(dialog, "Command1");  // before the selected row
    EXPECT_EQ(RowsOf(dialog, "Atributs"), (Rows{"X", "X", "C"}));
    Click(dialog, "Command3");
  });
  EXPECT_EQ(text.Text(), "<A X=\"file:///home/ž.gif\" X=\"file:///home/ž.gif\" C=\"2\">"_w);
  EXPECT_EQ(platform.TakeCalls().front(), R"(open "Všechno(*.*)|*.*" 1)");
}

TEST_F(EdiTagTest, RemovesEachListByItsOwnSelection) {
  Open("<A B=1 C=2>", [&] {
    List(dialog, "Atributs")->setCurrentRow(0);
    List(dialog, "Values")->blockSignals(true);
    List(dialog, "Values")->setCurrentRow(1);
    List(dialog, "Values")->blockSignals(false);
    Click(dialog, "Command2");
    EXPECT_EQ(RowsOf(dialog, "Atributs"), Rows{"C"});
    EXPECT_EQ(RowsOf(dialog, "Values"), Rows{"1"});
    Click(dialog, "Command2");
    EXPECT_FALSE(Enabled(dialog, "Command2"));
    Click(dialog, "Command4");
  });
  EXPECT_EQ(text.Text(), "<A B=1 C=2>");
  EXPECT_EQ(text.SelLength(), text.Size());
}

TEST_F(EdiTagTest, LineBreaksInAValueSurviveTheClick) {
  Open("<A B=x\r\ny C=2>", [&] {
    List(dialog, "Atributs")->setCurrentRow(0);
    Click(dialog, "Command3");
  });
  EXPECT_EQ(text.Text(), "<A B=\"x\r\ny\" C=\"2\">");
}

TEST_F(EdiTagTest, WithoutATagItOpensEmpty) {
  platform.answers = {Answer::kOk};
  Open("ab", [&] {
    EXPECT_EQ(RowsOf(dialog, "Atributs"), Rows());
    EXPECT_FALSE(Enabled(dialog, "Command2"));
    Click(dialog, "Command3");
  });
  EXPECT_EQ(text.Text(), "ab<>");
}

// The keyboard reaches every control that is on, and a screen reader has a name for each.
TEST_F(TagWindows, KeyboardReachesEveryControl) {
  Odstavec paragraph(text, nullptr);
  Hr line(text, nullptr);
  Nadpis heading(text, nullptr);
  Barva font(text, pick, nullptr);
  LineLabel lined(text, nullptr);
  Label table(text, nullptr);
  Zlomek fraction(text, nullptr);
  Comment comment(text, nullptr);
  Meta meta(text, nullptr);
  HtmlID doctype(text, nullptr);
  HTMLAscii ascii(text, nullptr);
  Smajl smiley(text, nullptr);
  Seznam bullets(text, nullptr);
  CisSeznam numbers(text, nullptr);
  SeznamDef definitions(text, nullptr);
  Attr attr(text, platform, nullptr);
  Tagy tag(text, nullptr);
  EdiTag editor(text, platform, pick, nullptr);
  for (DialogWindow* window : std::initializer_list<DialogWindow*>{
           &paragraph, &line, &heading, &font, &lined, &table, &fraction, &comment, &meta, &doctype, &ascii, &smiley,
           &bullets, &numbers, &definitions, &attr, &tag, &editor}) {
    SCOPED_TRACE(window->objectName().toStdString());
    for (QCheckBox* box : window->findChildren<QCheckBox*>()) box->setChecked(true);
    window->Present();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    std::set<QWidget*> reached;
    for (int i = 0; i < 40; ++i) {
      reached.insert(QApplication::focusWidget());
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (QWidget* control : window->findChildren<QWidget*>()) {
      if ((control->focusPolicy() & Qt::TabFocus) == 0 || !control->isEnabled() || control->focusProxy() != nullptr ||
          control->objectName().isEmpty() || control->objectName().startsWith(QLatin1String("qt_")))
        continue;
      EXPECT_TRUE(reached.contains(control)) << control->objectName().toStdString();
      EXPECT_FALSE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
          << control->objectName().toStdString();
    }
    EXPECT_LE(window->height(), 560);
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
  }
}

}  // namespace
}  // namespace pelmar
