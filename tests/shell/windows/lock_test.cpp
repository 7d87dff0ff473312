// The lock over the whole program: what is typed, clicked, dropped or asked by assistive technology while it is closed
// reaches neither the text nor any window that shows a part of it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QTest>
#include <QTimer>

#include "platform/qt/controls/text_box.h"
#include "program/program.h"
#include "shell/windows/pass.h"
#include "support/scripted_platform.h"
#include "texttools/windows/hledani.h"
#include "texttools/windows/visual.h"
#include "texttools/windows/vyber.h"

namespace pelmar {
namespace {

// Everything that a screen reader can get out of an object and what lies below it.
void Collect(QAccessibleInterface* face, QString& heard) {
  if (face == nullptr || !face->isValid()) return;
  for (const auto part : {QAccessible::Name, QAccessible::Value, QAccessible::Description, QAccessible::Help})
    heard += face->text(part) + QLatin1Char('\n');
  if (QAccessibleTextInterface* text = face->textInterface())
    heard += text->text(0, text->characterCount()) + QLatin1Char('\n');
  for (int child = 0; child < face->childCount(); ++child) Collect(face->child(child), heard);
}

QString AllThatIsHeard() {
  QString heard;
  Collect(QAccessible::queryAccessibleInterface(qApp), heard);
  return heard;
}

struct LockTest : testing::Test {
  ScriptedPlatform platform;
  Program program{platform};
  MainWindow& main = program.Main();

  LockTest() {
    main.show();
    main.Text().setProperty("Text", QByteArray("the secret text"));
    main.Text().setProperty("SelStart", 4);
    main.Text().setProperty("SelLength", 6);
    main.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
  }
  template <class Window>
  Window& Open() {
    Window& window = program.Windows().Get<Window>();
    window.Present();
    return window;
  }
  // Closes the lock, acts, and opens it.
  void WhileLocked(const std::function<void(Pass&)>& act) {
    QTimer::singleShot(0, qApp, [this, act] {
      Pass& pass = program.Windows().Get<Pass>();
      EXPECT_TRUE(pass.isVisible());
      act(pass);
      QTest::keyClick(pass.findChild<QLineEdit*>(QStringLiteral("Text1")), Qt::Key_Return);
    });
    main.findChild<QAction*>(QStringLiteral("Mnu_Lock"))->trigger();
  }
};

TEST_F(LockTest, NothingIsSeenOrHeard) {
  Hledani& find = Open<Hledani>();
  find.findChild<QPushButton*>(QStringLiteral("Command1"))->click();  // snapshot, term and history hold the secret
  Open<Vyber>();
  EXPECT_TRUE(AllThatIsHeard().contains(QStringLiteral("secret")));
  WhileLocked([&](const Pass& pass) {
    EXPECT_FALSE(AllThatIsHeard().contains(QStringLiteral("secret")));
    for (const QWidget* window : QApplication::topLevelWidgets())
      EXPECT_TRUE(!window->isVisible() || window == &main || window == &pass) << qPrintable(window->objectName());
    EXPECT_FALSE(main.Text().isVisible());
    QTest::qWait(600);  // a tick of the status timer
    for (int panel = 1; panel <= 4; ++panel) EXPECT_EQ(main.Bar().Panel(panel)->text(), QString());
  });
  EXPECT_TRUE(main.Text().isVisible());
  EXPECT_TRUE(find.isVisible());
  EXPECT_TRUE(AllThatIsHeard().contains(QStringLiteral("secret")));
}

TEST_F(LockTest, NothingReachesTheText) {
  WhileLocked([&](const Pass& pass) {
    for (QWidget* target : {static_cast<QWidget*>(&main), static_cast<QWidget*>(&main.Text())}) {
      QWindow* window = target->window()->windowHandle();
      QTest::keyClick(window, Qt::Key_X);
      QTest::keyClick(window, Qt::Key_T, Qt::ControlModifier);  // a menu's shortcut
      QTest::keyClick(window, Qt::Key_2, Qt::AltModifier);      // a tab's
      QTest::keyClick(window, Qt::Key_F4, Qt::ControlModifier);
    }
    for (QToolButton* button : main.Toolbar().findChildren<QToolButton*>())
      QTest::mouseClick(main.windowHandle(), Qt::LeftButton, {}, button->mapTo(&main, button->rect().center()));
    main.windowHandle()->close();
    QApplication::processEvents();
    EXPECT_TRUE(main.isVisible());
    EXPECT_TRUE(pass.isVisible());

    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.txt"))});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&main, &enter);
    EXPECT_FALSE(enter.isAccepted());
  });
  EXPECT_EQ(main.Text().Text(), QByteArray("the secret text"));
  EXPECT_EQ(main.Text().SelText(), QByteArray("secret"));
  EXPECT_TRUE(platform.calls.empty()) << platform.calls.front();
}

TEST_F(LockTest, WindowsComeBackAsTheyWere) {
  Visual& look = Open<Visual>();
  auto* bold = look.findChild<QCheckBox*>(QStringLiteral("Check2"));
  bold->setChecked(true);  // not applied yet
  const QRect place = look.geometry();
  WhileLocked([](Pass&) {});
  EXPECT_TRUE(look.isVisible());
  EXPECT_TRUE(bold->isChecked());
  EXPECT_EQ(look.geometry(), place);
}

}  // namespace
}  // namespace pelmar
