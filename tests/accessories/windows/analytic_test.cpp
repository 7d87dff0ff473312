#include "accessories/windows/analytic.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "platform/qt/controls/text_box.h"
#include "support/controls.h"

namespace pelmar {
namespace {

struct AnalyticTest : testing::Test {
  TextBuffer document;
  std::unique_ptr<Analytic> dialog;

  Analytic& Load(const std::string& text) {
    document.SetText(text);
    dialog = std::make_unique<Analytic>(document, nullptr);
    dialog->Present();
    return *dialog;
  }
  [[nodiscard]] QString Row(int row) const { return Find<QListWidget>(*dialog, "List1")->item(row)->text(); }
  void Click(const char* name) const { Find<QAbstractButton>(*dialog, name)->click(); }
  // How many columns of the graph's lowest line are drawn.
  [[nodiscard]] int DarkColumns() const {
    const QImage image = Find<QWidget>(*dialog, "Pic")->grab().toImage();
    int columns = 0;
    for (int x = 2; x < image.width() - 2; ++x) columns += qGray(image.pixel(x, image.height() - 4)) < 64 ? 1 : 0;
    return columns;
  }
};

TEST_F(AnalyticTest, AnalysesTheDocumentAtLoadAndOnDemand) {
  Load("bba");
  EXPECT_EQ(Row(0), QStringLiteral("001 00002 066,67 098 \"b\""));
  EXPECT_EQ(DarkColumns(), 2);
  document.SetText("cccc");
  EXPECT_EQ(Row(0), QStringLiteral("001 00002 066,67 098 \"b\""));
  Click("Command1");
  EXPECT_EQ(Row(0), QStringLiteral("001 00004 100,00 099 \"c\""));
  document.SetText("");
  Click("Command1");
  EXPECT_EQ(Row(0), QStringLiteral("001 00004 100,00 099 \"c\""));  // required: the list keeps its rows
  EXPECT_EQ(DarkColumns(), 0);
}

TEST_F(AnalyticTest, TheScratchTextBecomesTheSource) {
  Load("a");
  Find<TextBox>(*dialog, "Text1")->SetText("zz");
  EXPECT_TRUE(Find<QAbstractButton>(*dialog, "Option2")->isChecked());
  EXPECT_EQ(Row(0), QStringLiteral("001 00002 100,00 122 \"z\""));
  Click("Option1");
  EXPECT_EQ(Row(0), QStringLiteral("001 00001 100,00 097 \"a\""));
}

TEST_F(AnalyticTest, RefreshesWithoutDisturbing) {
  Load("bba");
  Find<QAbstractButton>(*dialog, "Check3")->setChecked(true);
  auto* list = Find<QListWidget>(*dialog, "List1");
  list->setCurrentRow(1);  // "a"
  list->verticalScrollBar()->setValue(100);
  auto* scratch = Find<TextBox>(*dialog, "Text1");
  scratch->setFocus();
  document.SetText("bbccca");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Row(0).contains(QStringLiteral("099")); }, 3000));
  EXPECT_EQ(list->currentRow(), 2);
  EXPECT_EQ(list->verticalScrollBar()->value(), 100);
  EXPECT_TRUE(scratch->hasFocus());
}

TEST_F(AnalyticTest, FindsACharacterInTheList) {
  Load("bba");
  EXPECT_FALSE(Find<QPushButton>(*dialog, "Command3")->isEnabled());
  auto* sought = Find<QLineEdit>(*dialog, "Text2");
  sought->setText(QStringLiteral("ř"));
  QTest::keyClick(sought, Qt::Key_Return);
  EXPECT_EQ(Row(Find<QListWidget>(*dialog, "List1")->currentRow()).mid(17, 3), QStringLiteral("248"));
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(AnalyticTest, ShowsThePlaceInTheGraph) {
  Load("bba");
  auto* graph = Find<QWidget>(*dialog, "Pic");
  auto* label = Find<QLabel>(*dialog, "Label2");
  QTest::mouseMove(graph, QPoint(130 * graph->width() / 508 + 1, 20));
  EXPECT_EQ(label->text(), QStringLiteral("Poloha: 65 Znak: \"A\""));
  EXPECT_EQ(graph->toolTip(), label->text());
  QTest::keyClick(graph, Qt::Key_Right);
  EXPECT_EQ(label->text(), QStringLiteral("Poloha: 66 Znak: \"B\""));
  QTest::keyClick(graph, Qt::Key_Home);
  EXPECT_EQ(label->text(), QStringLiteral("Poloha: 0 Znak: \"NUL\""));
  QTest::mouseClick(graph, Qt::LeftButton);
  EXPECT_FALSE(label->text().isEmpty());
  QTest::mouseClick(Find<QWidget>(*dialog, "Picture2"), Qt::LeftButton, {}, QPoint(3, 3));
  EXPECT_EQ(label->text(), QString());
}

TEST_F(AnalyticTest, AKeyOnTheCheckBoxBlanksTheGraph) {
  Load("bba");
  QTest::keyClick(Find<QWidget>(*dialog, "Check1"), Qt::Key_X);
  EXPECT_EQ(DarkColumns(), 0);
  Click("Check2");
  EXPECT_EQ(DarkColumns(), 2);
  // The blank toggles, and so it is drawn anew: only "b", and thicker.
  QTest::keyClick(Find<QWidget>(*dialog, "Check1"), Qt::Key_Space);
  EXPECT_GE(DarkColumns(), 3);
}

}  // namespace
}  // namespace pelmar
