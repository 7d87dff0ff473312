// The lock over the whole program: what is typed, clicked, dropped or asked by assistive technology while it is closed
// reaches neither the text nor any window that shows a part of it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTest>

#include "program/program.h"
#include "shell/windows/pass.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "texttools/windows/hledani.h"
#include "texttools/windows/visual.h"
#include "texttools/windows/vyber.h"

namespace pelmar {
namespace {

// Everything that a screen reader can get out of an object and what lies below it.
QString Heard(QAccessibleInterface* face = QAccessible::queryAccessibleInterface(qApp)) {
  if (face == nullptr || !face->isValid()) return {};
  QString heard;
  for (const auto part : {QAccessible::Name, QAccessible::Value, QAccessible::Description, QAccessible::Help})
    heard += face->text(part) + QLatin1Char('\n');
  if (QAccessibleTextInterface* text = face->textInterface())
    heard += text->text(0, text->characterCount()) + QLatin1Char('\n');
  for (int child = 0; child < face->childCount(); ++child) heard += Heard(face->child(child));
  return heard;
}

struct LockTest : testing::Test {
  ScriptedPlatform platform;
  Program program{platform};
  MainWindow& main = program.Main();
  Visual& look = program.Windows().Get<Visual>();

  LockTest() {
    main.show();
    main.Text().Buffer().SetText("the secret text");
    main.Text().Buffer().Select(4, 10);
    main.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
    main.findChild<QTimer*>(QStringLiteral("Timer1"))->start();
  }
  // What can be seen or heard of the secret.
  std::string Told() {
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) { return !window->isVisible(); });
    return (Heard().contains(QStringLiteral("secret")) ? "heard, " : "") + std::to_string(windows.size()) +
           " windows, text " + (main.Text().isVisible() ? "on" : "off") + ": " + main.Text().Text().toStdString() +
           ", " + State(main, "Panel1 Panel4");
  }
  // Closes the lock, acts, and opens it.
  void WhileLocked(std::function<void()> act) {
    Inside([this, act = std::move(act)] {
      act();
      QTest::keyClick(Find<QLineEdit>(program.Windows().Get<Pass>(), "Text1"), Qt::Key_Return);
    });
    main.findChild<QAction*>(QStringLiteral("Mnu_Lock"))->trigger();
  }
};

TEST_F(LockTest, NothingIsSeenOrHeardAndAllComesBack) {
  auto& find = program.Windows().Get<Hledani>();
  find.Present();
  Work(find, "Command1!");  // snapshot, term and history hold the secret
  program.Windows().Get<Vyber>().Present();
  look.Present();
  Work(look, "Check2!");  // not applied yet
  look.move(40, 50);
  WhileLocked([&] {
    QTest::qWait(600);  // a tick of the status timer
    EXPECT_EQ(Told(), "2 windows, text off: , Panel1= Panel4=");
  });
  main.activateWindow();
  QTest::qWait(600);
  EXPECT_EQ(Told(), "heard, 4 windows, text on: the secret text, Panel1=Znaky Výběru : 6 Panel4=Výběr : secret");
  EXPECT_LE((look.pos() - QPoint(40, 50)).manhattanLength(), 4);  // the test's platform moves it by its frame
  EXPECT_EQ(State(look, "Check2"), "Check2=1");
}

TEST_F(LockTest, NothingReachesTheText) {
  WhileLocked([&] {
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
    EXPECT_TRUE(program.Windows().Get<Pass>().isVisible());
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

}  // namespace
}  // namespace pelmar
