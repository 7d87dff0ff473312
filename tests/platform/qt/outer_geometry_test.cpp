#include "platform/qt/outer_geometry.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QToolButton>
#include <QWidget>
#include <QWindow>

#include "platform/qt/controls/dialog_window.h"

namespace pelmar {
namespace {

TEST(OuterGeometry, CountsTheFrameOnceTheWindowIsThere) {
  QWidget window;
  SetOuterWidth(window, 6000);
  SetOuterHeight(window, 4500);
  SetOuterPosition(window, 1500, 900);
  EXPECT_EQ(OuterGeometry(window), (TwipsRect{1500, 900, 6000, 4500}));
  EXPECT_EQ(window.size(), QSize(400, 300));
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  const QMargins frame = window.windowHandle()->frameMargins();
  SetOuterWidth(window, 6000);
  SetOuterHeight(window, 4500);
  SetOuterPosition(window, 3000, 900);
  QCoreApplication::processEvents();
  EXPECT_EQ(OuterGeometry(window), (TwipsRect{3000, 900, 6000, 4500}));
  EXPECT_EQ(window.width(), 400 - frame.left() - frame.right());
  EXPECT_EQ(ScreenTwips(window), window.screen()->size() * 15);
}

TEST(DialogWindow, IsCentredOnceAndKeepsItsPlace) {
  QWidget parent;
  parent.setGeometry(0, 0, 100, 100);
  parent.show();
  DialogWindow dialog(&parent);
  dialog.resize(300, 200);
  dialog.Present();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  const QPoint off = dialog.frameGeometry().center() - dialog.screen()->availableGeometry().center();
  EXPECT_LE(off.manhattanLength(), 12);
  dialog.move(5, 6);
  dialog.hide();
  dialog.Present();
  EXPECT_EQ(dialog.pos(), QPoint(5, 6));
}

TEST(DialogWindow, EnterPressesTheButtonThatHasTheFocus) {
  DialogWindow dialog(nullptr);
  QLineEdit field(&dialog);
  QPushButton ok(&dialog);
  QPushButton storno(&dialog);
  QToolButton show(&dialog);
  QCheckBox box(&dialog);
  ok.setDefault(true);
  storno.setAutoDefault(false);
  show.setFocusPolicy(Qt::StrongFocus);
  std::string pressed;
  QObject::connect(&ok, &QAbstractButton::clicked, [&] { pressed += "ok "; });
  QObject::connect(&storno, &QAbstractButton::clicked, [&] { pressed += "storno "; });
  QObject::connect(&show, &QAbstractButton::clicked, [&] { pressed += "show "; });
  dialog.Present();
  for (QWidget* focus : std::initializer_list<QWidget*>{&field, &storno, &show, &box, &ok}) {
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_Return);
  }
  EXPECT_EQ(pressed, "ok storno show ok ok ");
  EXPECT_FALSE(box.isChecked());
}

}  // namespace
}  // namespace pelmar
