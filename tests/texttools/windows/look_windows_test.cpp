#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "accessories/windows/color_dialog.h"
#include "platform/color.h"
#include "platform/qt/controls/cell_grid.h"
#include "platform/qt/controls/swatch.h"
#include "platform/qt/controls/text_box.h"
#include "platform/qt/outer_geometry.h"
#include "platform/twips.h"
#include "shell/windows/pos.h"
#include "support/controls.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "texttools/windows/visual.h"

namespace pelmar {
namespace {

TEST(ColorDialogWindow, PicksAndRemembers) {
  ScriptedPlatform platform;
  ColorDialog dialog(platform, nullptr);
  Inside([&] {
    EXPECT_EQ(Find<QLabel>(dialog, "Label11")->text(), QStringLiteral("#0A1400"));
    EXPECT_EQ(Find<Swatch>(dialog, "Picture13")->Color(), QColor(10, 20, 0));
    Click(dialog, "Command2");
  });
  EXPECT_EQ(dialog.PickColor(Rgb(10, 20, 0)), 0);  // required: Storno gives the run's last colour, black at first
  Inside([&] {
    Click(dialog, "Picture9");
    EXPECT_EQ(Find<QScrollBar>(dialog, "VScroll11")->value(), 255);
    EXPECT_EQ(Find<QLabel>(dialog, "Label2")->text(), QStringLiteral("255"));
    Click(dialog, "Command6");
    EXPECT_EQ(Find<QLabel>(dialog, "Label11")->text(), QStringLiteral("#E6E600"));
    Click(dialog, "Command1");
  });
  EXPECT_EQ(dialog.PickColor(0), Rgb(230, 230, 0));
  Inside([&] {
    auto* list = Find<QListWidget>(dialog, "List1");
    ASSERT_EQ(list->count(), 1);
    Q_EMIT list->itemClicked(list->item(0));
    EXPECT_EQ(Find<QLabel>(dialog, "Label11")->text(), QStringLiteral("#E60000"));  // required: green is zeroed
    dialog.close();
  });
  EXPECT_EQ(dialog.PickColor(5), Rgb(230, 230, 0));
}

TEST(PosWindow, PlacesTheMainWindow) {
  PlainView view;
  Pos pos(view, nullptr);
  pos.Present();
  auto* grid = Find<CellGrid>(pos, "Picture1");
  QTest::mouseMove(grid, QPoint(grid->width() - 4, 4));
  EXPECT_EQ(Find<QLabel>(pos, "Label1")->text(), QStringLiteral("Vpravo nahoře"));
  QTest::mousePress(grid, Qt::LeftButton, {}, QPoint(4, 4));
  QTest::mouseRelease(grid, Qt::LeftButton, {}, QPoint(-40, 4));  // drawn off the grid
  EXPECT_TRUE(view.calls.empty());
  QTest::mouseClick(grid, Qt::LeftButton, {}, QPoint(4, grid->height() - 4));
  const QSize screen = ScreenTwips(pos);
  EXPECT_EQ(view.calls, std::vector<std::string>{"normal"});
  EXPECT_EQ(view.place, (TwipsRect{0, screen.height() / 2, screen.width() / 2, screen.height() / 2}));
  QTest::keyClick(grid, Qt::Key_Up);
  QTest::keyClick(grid, Qt::Key_Right);
  EXPECT_EQ(Find<QLabel>(pos, "Label1")->text(), QStringLiteral("Maximalizace"));
  QTest::keyClick(grid, Qt::Key_Space);
  EXPECT_EQ(view.place, (TwipsRect{0, 0, screen.width(), screen.height()}));
}

struct VisualTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  PlainView view;
  Visual visual{view, editor.settings, {[](Color color) { return color + 1; }, [] {}}, nullptr};

  VisualTest() {
    view.look = {"Courier New", Rgb(10, 0, 0), Rgb(200, 200, 200), 12, true, false};
    editor.settings.AutosnapDistance = 300;
    editor.settings.LineCounting = true;
    visual.Present();
  }
};

TEST_F(VisualTest, LoadsTheLookOfTheTextBox) {
  EXPECT_TRUE(Find<QCheckBox>(visual, "Check2")->isChecked());
  EXPECT_TRUE(Find<QCheckBox>(visual, "Check1")->isChecked());
  EXPECT_TRUE(Find<QRadioButton>(visual, "Option2")->isChecked());
  EXPECT_EQ(Find<QComboBox>(visual, "Combo1")->currentText(), QStringLiteral("12"));
  EXPECT_EQ(Find<TextBox>(visual, "Label1")->TextColor(), QColor(10, 0, 0));
  EXPECT_EQ(Find<QLabel>(visual, "Label12")->text(), QStringLiteral("300"));
  for (const int size : {8, 10}) {
    view.look.font_size = size;
    Visual another(view, editor.settings, {}, nullptr);
    another.Present();
    EXPECT_EQ(Find<TextBox>(another, "Label1")->font().pointSize(), size);
  }
}

TEST_F(VisualTest, ASizeIsTakenAsItIsTyped) {
  auto* box = Find<QComboBox>(visual, "Combo1");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&visual));
  box->setFocus();  // or nothing would be completed
  box->lineEdit()->selectAll();
  QTest::keyClicks(box->lineEdit(), QStringLiteral("2"));
  EXPECT_EQ(box->currentText(), QStringLiteral("2"));
  EXPECT_EQ(Find<TextBox>(visual, "Label1")->font().pointSize(), 2);
}

TEST_F(VisualTest, AppliesThePreview) {
  Click(visual, "Option3");
  Click(visual, "Check3");
  Click(visual, "Command8");
  Find<QComboBox>(visual, "Combo1")->setEditText(QStringLiteral("11"));
  EXPECT_EQ(Find<TextBox>(visual, "Label1")->font().pointSize(), 11);
  EXPECT_EQ(view.look.font_name, "Courier New");  // only the preview so far
  Click(visual, "Command1");
  EXPECT_EQ(view.look.font_name, "Terminal");
  EXPECT_EQ(view.look.font_size, 8);  // a size outside the six
  EXPECT_TRUE(view.look.italic);
  EXPECT_EQ(view.look.fore_color, Rgb(11, 0, 0));
  EXPECT_TRUE(visual.isVisible());
}

TEST_F(VisualTest, SnapDistanceIsTakenOverByItsButtonOnly) {
  auto* slider = Find<QScrollBar>(visual, "VScroll7");
  slider->setValue(500);
  EXPECT_EQ(editor.settings.AutosnapDistance, 300);
  Click(visual, "Command5");
  EXPECT_EQ(editor.settings.AutosnapDistance, 500);
  Click(visual, "Command6");  // required: the slider alone
  EXPECT_EQ(slider->value(), 240);
  EXPECT_EQ(editor.settings.AutosnapDistance, 500);
  Click(visual, "Check1");
  EXPECT_FALSE(editor.settings.LineCounting);
}

TEST_F(VisualTest, ResetTouchesThePreviewOnly) {
  Click(visual, "Command3");
  EXPECT_FALSE(Find<QCheckBox>(visual, "Check2")->isChecked());
  EXPECT_EQ(Find<QComboBox>(visual, "Combo1")->currentText(), QStringLiteral("8"));
  EXPECT_EQ(Find<TextBox>(visual, "Label1")->BackgroundColor(), QColor(Qt::white));
  EXPECT_TRUE(view.look.bold);
}

}  // namespace
}  // namespace pelmar
