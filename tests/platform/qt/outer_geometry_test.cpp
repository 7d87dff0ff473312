#include "platform/qt/outer_geometry.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QWidget>
#include <QWindow>

#include "platform/qt/controls/dialog_window.h"
#include "platform/twips.h"
#include "support/controls.h"

namespace pelmar {
namespace {

void Place(QWidget& window, const TwipsRect& place) {
  SetOuterWidth(window, place.width);
  SetOuterHeight(window, place.height);
  SetOuterPosition(window, place.left, place.top);
  QCoreApplication::processEvents();
  EXPECT_EQ(OuterGeometry(window), place);
}

TEST(OuterGeometry, CountsTheFrameOnceTheWindowIsThere) {
  QWidget window;
  Place(window, {1500, 900, 6000, 4500});
  EXPECT_EQ(window.size(), QSize(400, 300));
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  Place(window, {3000, 900, 6000, 4500});
  const QMargins frame = window.windowHandle()->frameMargins();
  EXPECT_EQ(window.width(), 400 - frame.left() - frame.right());
  EXPECT_EQ(ScreenTwips(window), window.screen()->size() * 15);
}

TEST(DialogWindow, IsCentredOnceAndKeepsItsPlace) {
  DialogWindow dialog(nullptr), large(nullptr);
  const QRect screen = dialog.screen()->availableGeometry();
  dialog.resize(300, 200);
  dialog.Present();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  EXPECT_LE((dialog.frameGeometry().center() - screen.center()).manhattanLength(), 12);
  dialog.move(5, 6);
  dialog.hide();
  dialog.Present();
  EXPECT_EQ(dialog.pos(), QPoint(5, 6));
  dialog.showMinimized();
  dialog.Present();
  EXPECT_FALSE(dialog.isMinimized());
  large.resize(9000, 9000);
  large.Present();
  EXPECT_TRUE(screen.contains(large.geometry()));
}

TEST(DialogWindow, BeginsInItsFirstFieldAndSparesValuesFromTheWheel) {
  DialogWindow dialog(nullptr);
  QLineEdit field(QStringLiteral("typed before"), &dialog);
  QComboBox box(&dialog);
  box.addItems({QStringLiteral("a"), QStringLiteral("b")});
  QScrollBar bar(&dialog);
  bar.setFocusPolicy(Qt::StrongFocus);
  dialog.Present();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_EQ(field.selectedText(), QStringLiteral("typed before"));
  RollWheel(box, {}, {0, -120});
  RollWheel(bar, {}, {0, -120});
  EXPECT_EQ(box.currentIndex(), 0);
  EXPECT_EQ(bar.value(), 0);
  EXPECT_TRUE(field.hasFocus());
  bar.setFocus();
  RollWheel(bar, {}, {0, -120});
  EXPECT_GT(bar.value(), 0);
  dialog.hide();
  field.deselect();
  dialog.Present();
  EXPECT_EQ(dialog.focusWidget(), &field);
  EXPECT_EQ(field.selectedText(), QStringLiteral("typed before"));
}

TEST(DialogWindow, EnterPressesTheButtonThatHasTheFocus) {
  DialogWindow dialog(nullptr);
  QLineEdit field(&dialog);
  QPushButton ok(QStringLiteral("ok"), &dialog), storno(QStringLiteral("storno"), &dialog);
  QToolButton show(&dialog);
  QCheckBox box(&dialog);
  ok.setDefault(true);
  storno.setAutoDefault(false);
  show.setText(QStringLiteral("show"));
  show.setFocusPolicy(Qt::StrongFocus);
  QStringList pressed;
  for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{&ok, &storno, &show})
    QObject::connect(button, &QAbstractButton::clicked, [&, button] { pressed += button->text(); });
  dialog.Present();
  for (QWidget* focus : std::initializer_list<QWidget*>{&field, &storno, &show, &box, &ok}) {
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_Return);
  }
  EXPECT_EQ(pressed.join(u' '), QStringLiteral("ok storno show ok ok"));
  EXPECT_FALSE(box.isChecked());
}

}  // namespace
}  // namespace pelmar
