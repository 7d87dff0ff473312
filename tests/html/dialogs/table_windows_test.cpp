#include <gtest/gtest.h>

#include <QCheckBox>
#include <QStackedWidget>
#include <QTabBar>

#include "html/dialogs/table.h"
#include "html/dialogs/table_cell.h"
#include "html/dialogs/table_row.h"
#include "platform/color.h"
#include "support/controls.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

bool Enabled(const QWidget& window, const char* name) { return Find<QWidget>(window, name)->isEnabled(); }

struct TableWindows : testing::Test {
  TextBuffer text;
  TableCell cell{text, [](Color) { return Rgb(255, 0, 0); }, nullptr};
  TableRow row{text, nullptr};
  Table table{text, [this] { return cell.AskAttributes(); }, [this] { return row.AskAttributes(); }, nullptr};

  std::string Made() {
    text.SetText("");
    table.Present();
    Click(table, "Command1");
    EXPECT_FALSE(table.isVisible());
    return std::string(text.Text());
  }
};

TEST_F(TableWindows, BareTableAndTheOneWithEveryGroup) {
  EXPECT_EQ(Made(), "<TABLE>\r\n<TR><TD></TD></TR>\r\n</TABLE>");
  for (const char* box : {"Check1", "Check2", "Check3", "Check4", "Check5", "Check6", "Check7", "Check8", "Check9"})
    Click(table, box);
  // Untouched, a label is written as it stands, the thickness over a bar at 0 too.
  EXPECT_EQ(Made(),
            "<TABLE WIDTH=\"1%\" COLS=\"1\" COLSPEC=\"L100%\" ALIGN=\"LEFT\" FRAME=\"NONE\" BORDER=\"1\" RULES=\"ALL\" "
            "CELLSPACING=\"0\" CELLPADDING=\"0\">\r\n<CAPTION ALIGN=\"TOP\">Nadpis</CAPTION>\r\n<TR><TD></TD></TR>\r\n"
            "</TABLE>");
  Click(table, "Option1");
  for (const char* option : {"Option5", "Option13", "Option16", "Option21"}) Click(table, option);
  SetBar(table, "VScroll3", 300);
  SetBar(table, "VScroll4", 5);
  SetBar(table, "VScroll4", 0);
  SetBar(table, "VScroll5", 7);
  SetBar(table, "VScroll6", 8);
  SetBar(table, "VScroll1", 2);
  EXPECT_EQ(LabelText(table, "Label7"), " 0");
  EXPECT_EQ(Made(),
            "<TABLE WIDTH=\"300\" COLS=\"2\" COLSPEC=\"L100%\" ALIGN=\"RIGHT\" FRAME=\"BOX\" BORDER=\"0\" "
            "RULES=\"COLS\" CELLSPACING=\"7\" CELLPADDING=\"8\">\r\n<CAPTION ALIGN=\"RIGHT\">Nadpis</CAPTION>\r\n"
            "<TR><TD></TD><TD></TD></TR>\r\n</TABLE>");
}

TEST_F(TableWindows, AGroupIsEnabledByItsBox) {
  const std::pair<const char*, std::vector<const char*>> groups[] = {{"Check1", {"Option1", "Option2", "VScroll3"}},
                                                                     {"Check2", {"Option3", "Option4", "Option5"}},
                                                                     {"Check3", {"Text1"}},
                                                                     {"Check4", {"Option6", "Option13", "VScroll4"}},
                                                                     {"Check5", {"Option14", "Option17"}},
                                                                     {"Check6", {"VScroll5"}},
                                                                     {"Check7", {"VScroll6"}},
                                                                     {"Check8", {"Text2", "Option18", "Option21"}}};
  for (const auto& [box, controls] : groups) {
    for (const char* name : controls) EXPECT_FALSE(Enabled(table, name)) << name;
    Click(table, box);
    for (const char* name : controls) EXPECT_TRUE(Enabled(table, name)) << name;
    Click(table, box);
    for (const char* name : controls) EXPECT_FALSE(Enabled(table, name)) << name;
  }
}

TEST_F(TableWindows, TheWalkKeepsEveryCell) {
  SetBar(table, "VScroll1", 3);
  SetBar(table, "VScroll2", 3);
  SetBar(table, "HScroll1", 3);
  SetBar(table, "VScroll7", 3);
  SetBar(table, "VScroll8", 3);
  EXPECT_EQ(LabelText(table, "Label12"), "3/3");
  SetField(table, "Text4", QStringLiteral("ř"));
  SetField(table, "Text3", QStringLiteral(" NOWRAP"));
  SetField(table, "Text5", QStringLiteral(" ALIGN=\"LEFT\""));
  SetBar(table, "VScroll1", 2);
  SetBar(table, "VScroll2", 2);  // the position falls back, to an empty cell
  EXPECT_EQ(LabelText(table, "Label12"), "2/2");
  EXPECT_EQ(LabelText(table, "Label13"), "2/2");
  EXPECT_EQ(LabelText(table, "Label16"), "2/2");
  EXPECT_EQ(LineText(table, "Text4") + LineText(table, "Text3") + LineText(table, "Text5"), "");
  EXPECT_EQ(Made(), "<TABLE>\r\n<TR><TD></TD><TD></TD></TR>\r\n<TR><TD></TD><TD></TD></TR>\r\n</TABLE>");
  SetBar(table, "VScroll1", 3);
  SetBar(table, "VScroll2", 3);
  EXPECT_EQ(LabelText(table, "Label12"), "2/3");
  SetBar(table, "HScroll1", 3);
  SetBar(table, "VScroll7", 3);
  SetBar(table, "VScroll8", 3);
  EXPECT_EQ(LineText(table, "Text4"), "ř");
  EXPECT_TRUE(Made().ends_with("<TR ALIGN=\"LEFT\"><TD></TD><TD></TD><TD NOWRAP>ř</TD></TR>\r\n</TABLE>"_w));
  Click(table, "Command4");
  Click(table, "Command5");
  EXPECT_TRUE(Made().ends_with("<TR><TD></TD><TD></TD><TD>ř</TD></TR>\r\n</TABLE>"_w));
}

TEST_F(TableWindows, TabsShowOneFrameEach) {
  table.Present();
  EXPECT_TRUE(Find<QWidget>(table, "Frame1")->isVisible());
  Find<QTabBar>(table, "TabStrip1")->setCurrentIndex(1);
  EXPECT_FALSE(Find<QWidget>(table, "Frame1")->isVisible());
  EXPECT_TRUE(Find<QWidget>(table, "Frame8")->isVisible());
}

TEST_F(TableWindows, TheBuilderAsksForAttributes) {
  Inside([&] {
    EXPECT_TRUE(cell.isModal());
    EXPECT_FALSE(Enabled(cell, "Check9"));
    Click(cell, "Check1");
    Click(cell, "Option4");
    Click(cell, "Command1");
  });
  Click(table, "Command3");
  EXPECT_EQ(LineText(table, "Text3"), " ALIGN=\"CHAR\" CHAR=\",\"");
  EXPECT_TRUE(Enabled(cell, "Check9"));
  EXPECT_EQ(text.Text(), "");

  Inside([&] {
    Click(cell, "Check1");  // as it was left
    Click(cell, "Command2");
  });
  Click(table, "Command3");
  EXPECT_EQ(LineText(table, "Text3"), " ALIGN=\"CHAR\" CHAR=\",\"");
  Inside([&] { Click(cell, "Command1"); });  // nothing ticked removes the attributes
  Click(table, "Command3");
  EXPECT_EQ(LineText(table, "Text3"), "");

  row.Present();  // on show beside the editor, it comes back to ask
  Inside([&] {
    EXPECT_TRUE(row.isModal());
    EXPECT_FALSE(Enabled(row, "VScroll1"));
    Click(row, "Check2");
    Click(row, "Command1");
  });
  Click(table, "Command6");
  EXPECT_EQ(LineText(table, "Text5"), " VALIGN=\"MIDDLE\"");
  EXPECT_TRUE(Enabled(row, "VScroll1"));
  EXPECT_EQ(Made(), "<TABLE>\r\n<TR VALIGN=\"MIDDLE\"><TD></TD></TR>\r\n</TABLE>");
}

TEST_F(TableWindows, ACellForTheEditor) {
  cell.Present();
  EXPECT_FALSE(cell.isModal());
  EXPECT_FALSE(Enabled(cell, "Text1"));
  for (const char* box : {"Check1", "Check2", "Check3", "Check4", "Check5", "Check6", "Check7", "Check8", "Check9"})
    Click(cell, box);
  EXPECT_FALSE(Enabled(cell, "Text1"));
  Click(cell, "Option4");
  EXPECT_TRUE(Enabled(cell, "Text1"));
  Click(cell, "Option7");
  Click(cell, "Command3");
  SetBar(cell, "VScroll4", 2);
  SetBar(cell, "VScroll5", 20);
  Click(cell, "Check8");
  SetBar(cell, "VScroll6", 300);
  EXPECT_EQ(LabelText(cell, "Label8"), "300");
  Click(cell, "Check8");
  EXPECT_EQ(LabelText(cell, "Label8"), "100%");
  text.SetText("abc");
  text.Select(1, 2);
  Click(cell, "Command1");
  EXPECT_EQ(text.Text(),
            "a<TH ALIGN=\"CHAR\" CHAR=\",\" VALIGN=\"BOTTOM\" BGCOLOR=\"#FF0000\" COLSPAN=\"2\" ROWSPAN=\"20\" NOWRAP "
            "WIDTH=\"100%\">b</TH>c");
  EXPECT_FALSE(cell.isVisible());
}

TEST_F(TableWindows, ARowForTheEditor) {
  row.Present();
  SetBar(row, "VScroll1", 2);
  EXPECT_EQ(LabelText(row, "Label2"), "2");
  text.SetText("abc");
  text.Select(0, 2);
  Click(row, "Command1");
  EXPECT_EQ(text.Text(), "<TR><TD>Buňka1</TD><TD>Buňka2</TD></TR>\r\nabc"_w);
  row.Present();
  Click(row, "Command2");
  EXPECT_FALSE(row.isVisible());
}

}  // namespace
}  // namespace pelmar
