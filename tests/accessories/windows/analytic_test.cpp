// The window of the character analysis: its source, its list and its graph.
#include "accessories/windows/analytic.h"

#include <QListWidget>
#include <QScrollBar>

#include "support/program_test.h"

namespace pelmar {
namespace {

struct AnalyticTest : ProgramTest {
  Analytic& dialog = OpenOver("bba");
  QListWidget* list = Find<QListWidget>(dialog, "List1");
  QWidget* graph = Named(dialog, "Pic");

  Analytic& OpenOver(const std::string& document) {
    text.SetText(document);
    return Open<Analytic>();
  }
  [[nodiscard]] std::string FirstRow() const { return list->item(0)->text().toStdString(); }
  [[nodiscard]] std::string SelectedRow() const { return list->currentItem()->text().toStdString(); }
  // The number of columns just above the graph's lower edge that are not white.
  [[nodiscard]] int Columns() const {
    const QImage image = graph->grab().toImage();
    int columns = 0;
    for (int x = 2; x < image.width() - 2; ++x) columns += qGray(image.pixel(x, image.height() - 4)) < 255 ? 1 : 0;
    return columns;
  }
};

const std::string kTwoOfThree = "001 00002 066,67 098 \"b\"";

TEST_F(AnalyticTest, ShowsTheDocumentAtOnceAndItsChangesOnDemand) {
  EXPECT_EQ(FirstRow(), kTwoOfThree);
  EXPECT_EQ(Columns(), 2);
  text.SetText("cccc");
  EXPECT_EQ(FirstRow(), kTwoOfThree);
  Work(dialog, "Command1!");
  EXPECT_EQ(FirstRow(), "001 00004 100,00 099 \"c\"");
  EXPECT_EQ(Columns(), 1);
}

TEST_F(AnalyticTest, TheListKeepsWhatTheGraphOmits) {
  const struct {
    const char *document, *steps;
    int columns;
    std::string first_row;
  } cases[] = {
      {"", "Command1!", 0, kTwoOfThree},              // required for an empty text
      {"bba", "Command1! Check1:x", 0, kTwoOfThree},  // required: a character typed on this check box clears the graph
      {"  a", "Check2!", 1, "001 00002 066,67 032 \" \""},  // ignored blanks
  };
  for (const auto& c : cases) {
    text.SetText(c.document);
    Work(dialog, c.steps);
    EXPECT_EQ(Columns(), c.columns) << c.steps;
    EXPECT_EQ(FirstRow(), c.first_row) << c.steps;
  }
}

TEST_F(AnalyticTest, TypingInTheScratchBoxMakesItTheSource) {
  ExpectState(dialog, "Text1=zz", "Option2=1");
  EXPECT_EQ(FirstRow(), "001 00002 100,00 122 \"z\"");
  Work(dialog, "Option1!");
  EXPECT_EQ(FirstRow(), kTwoOfThree);
  Work(dialog, "Option2! Command1!");
  EXPECT_EQ(FirstRow(), "001 00002 100,00 122 \"z\"");
}

TEST_F(AnalyticTest, TheNarrowGraphHasThickerBars) {
  text.SetText("bbaa");
  Work(dialog, "Check1!");
  EXPECT_GT(Columns(), 2);
}

TEST_F(AnalyticTest, ARefreshKeepsScrollingAndFocusButNotTheSelection) {
  Work(dialog, "Check3! List1=1 Text1:");
  list->verticalScrollBar()->setValue(100);
  text.SetText("bbccca");
  ASSERT_TRUE(QTest::qWaitFor([&] { return FirstRow() == "001 00003 050,00 099 \"c\""; }));
  EXPECT_TRUE(list->selectedItems().isEmpty());  // required
  EXPECT_EQ(list->verticalScrollBar()->value(), 100);
  EXPECT_TRUE(Named(dialog, "Text1")->hasFocus());
}

TEST_F(AnalyticTest, SearchSelectsTheRowOfTheCharacter) {
  ExpectState(dialog, "", "Command3=(&Hledej)");
  ExpectState(dialog, "Text2=ř Text2:\r", "Command3=&Hledej");
  EXPECT_EQ(SelectedRow(), "248 00000 000,00 248 \"ř\"");
  Work(dialog, "Text2=b Command3!");
  EXPECT_EQ(SelectedRow(), kTwoOfThree);
}

TEST_F(AnalyticTest, ThePointerShowsTheCharacterUntilAClickBesideTheGraph) {
  QTest::mouseMove(graph, QPoint(130 * graph->width() / 508 + 1, 20));
  ExpectState(dialog, "", "Label2='Poloha: 65 Znak: \"A\"'");
  EXPECT_EQ(graph->toolTip(), QStringLiteral("Poloha: 65 Znak: \"A\""));
  QTest::mouseClick(Named(dialog, "Picture2"), Qt::LeftButton, {}, QPoint(3, 3));
  ExpectState(dialog, "", "Label2=");
}

}  // namespace
}  // namespace pelmar
