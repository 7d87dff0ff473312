#include <gtest/gtest.h>

#include <QAccessible>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include "files/windows/otevri.h"
#include "program/program.h"
#include "shell/windows/config.h"
#include "shell/windows/customize_toolbar.h"
#include "shell/windows/hlp.h"
#include "shell/windows/o.h"
#include "shell/windows/pass.h"
#include "shell/windows/start.h"
#include "support/controls.h"
#include "support/marked_text.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "text/codepage.h"
#include "texttools/windows/hledani.h"
#include "texttools/windows/visual.h"
#include "texttools/windows/vyber.h"

namespace pelmar {
namespace {

// The main window and the small ones, as the program puts them together.
struct SmallWindows : testing::Test {
  ScriptedPlatform platform;
  Program program{platform};
  MainWindow& main = program.Main();
  // In the order of the file.
  const SettingsRecord stored{12000, 9000,  1500,     3000,  true, "DejaVu Sans Mono", 0x030201, 0xFCFBFA, 14,  true,
                              false, "Jan", "j@x.cz", false, 240,  "tajn\xE9",         {},       0,        true};
  std::string& settings = platform.files["/install/pelmar.ini"];

  SmallWindows() {
    settings = SettingsBytes(stored);
    program.Run("-NOMSG");
  }
  template <class Window>
  Window& The() {
    return program.Windows().Get<Window>();
  }
  void Key(QWidget& window, Qt::Key key, const char* field = nullptr) {
    QTest::keyClick(field != nullptr ? Named(window, field) : &window, key);
  }
};

TEST_F(SmallWindows, AStartAndACloseLeaveTheSettingsAsTheyWere) {
  QApplication::processEvents();
  std::string marks;
  for (const char* item : {"mnu08", "mnu14", "mnuEditBold", "mnuitalic"})
    marks += main.Menus().Action(item)->isChecked() ? '+' : '-';
  EXPECT_EQ(marks, "-++-");
  for (const bool on_top : {false, true}) {
    Work(main, "MnuAllTop!");
    EXPECT_EQ(main.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), on_top);
    // required: after a start with the flag set, the mark says the opposite
    EXPECT_EQ(main.Menus().Action("MnuAllTop")->isChecked(), !on_top);
  }
  main.close();
  EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);
  EXPECT_TRUE(ReadSettings(settings) == stored);
  for (const Qt::AlignmentFlag alignment : {Qt::AlignRight, Qt::AlignHCenter, Qt::AlignLeft}) {
    main.NextAlignment();
    EXPECT_EQ(main.Box().Alignment(), alignment);
  }
}

TEST_F(SmallWindows, TheWelcomeLeadsToTheEditorHoweverItIsLeft) {
  auto& start = The<Start>();
  const std::function<void()> ways[] = {[&] { Work(start, "Command1!"); }, [&] { Key(start, Qt::Key_Space, "Check1"); },
                                        [&] { start.close(); }, [&] { Work(start, "Command2!"); }};
  for (const auto& leave : ways) {
    EXPECT_FALSE(The<Otevri>().isVisible());
    main.hide();
    start.Present();
    Key(start, Qt::Key_Shift);  // no key of its own
    EXPECT_TRUE(start.isVisible());
    leave();
    EXPECT_TRUE(main.isVisible() && !start.isVisible()) << &leave - ways;
  }
  EXPECT_TRUE(The<Otevri>().isVisible());
  start.Present();
  ExpectState(start, "", "Label9=Jan Check1=1");  // ShowStart is false
  for (const bool show : {true, false}) {
    Inside([this] { Work(The<Config>(), "Text1=Eva Command1!"); });
    Work(start, "Check1!");
    QTest::mouseClick(Named(start, "Label9"), Qt::LeftButton);
    EXPECT_EQ(ReadSettings(settings).ShowStart, show);
    ExpectState(start, "", "Label9=Eva");
  }
}

// Most of them are made anew, and read anew too.
TEST_F(SmallWindows, ThoseThatBeginAnewStandAtTheCentreAgain) {
  main.hide();
  platform.answers = {Answer::kOk};
  The<Hlp>();
  EXPECT_EQ(
      platform.TakeTold(),
      "message 0 \"Chyba helpového systému - pelmar.txt: soubor nebo složka neexistuje\" \"Help k Pelmar VEX\"; ");
  platform.files["/share/pelmar.txt"] = "package";
  const auto open = [&](const char* item) {
    main.findChild<QAction*>(QLatin1String(item))->trigger();
    const QWidgetList windows = QApplication::topLevelWidgets();
    return *std::ranges::find_if(windows, &QWidget::isVisible);
  };
  for (const char* item : {"mnuhlp", "mnumore", "mnupresnvyb", "mnucode", "mnu_rnd_encrypt"}) {
    QWidget* window = open(item);
    EXPECT_EQ(open(item), window);  // on show it stays as it is
    const QPoint centre = window->pos();
    window->move(1, 1);
    window->close();
    platform.files["/install/pelmar.txt"] = "the person's own now";  // comes first
    window = open(item);
    EXPECT_EQ(window->pos(), centre) << item;
    window->close();
  }
  QWidget* help = open("mnuhlp");
  EXPECT_EQ(State(*help, "Text2"), "Text2=Najít");
  Work(*help, "Text2=NOW");
  platform.answers = {Answer::kNo, Answer::kNo};
  Key(*help, Qt::Key_Return, "Text2");
  Work(*help, "Command5!");
  EXPECT_TRUE(platform.answers.empty());
  EXPECT_EQ(ViewOf(Find<TextBox>(*help, "Text1")->SelText()), "now");
  Work(*help, "Command1!");
  EXPECT_FALSE(help->isVisible());
}

TEST_F(SmallWindows, TheToolbarFollowsItsList) {
  auto& window = The<CustomizeToolbar>();
  window.Present();
  auto* list = Find<QListWidget>(window, "Buttons");
  const auto shown = [&] {
    std::string names;
    for (const QAction* action : main.Toolbar().actions())
      if (action->isVisible()) names += action->isSeparator() ? "| " : action->objectName().toStdString() + ' ';
    return names;
  };
  const std::string initial = shown();
  EXPECT_TRUE(initial.starts_with("New Newhtml Open | Recent | Save "));
  Work(window, "Up! Buttons=1 Up! Buttons=4 Down!");  // the first one can't go up
  list->item(0)->setCheckState(Qt::Unchecked);
  EXPECT_TRUE(shown().starts_with("New Open | | Recent Save ")) << shown();
  window.hide();
  window.Present();
  EXPECT_EQ(list->item(0)->checkState(), Qt::Unchecked);
  EXPECT_EQ(list->item(0)->text(), QStringLiteral("Nový HTML"));
  Work(window, "Initial!");
  EXPECT_EQ(shown(), initial);
  EXPECT_EQ(list->item(0)->checkState(), Qt::Checked);
}

TEST_F(SmallWindows, AboutPlaysWithTheNameUnderTheMouse) {
  auto& about = The<O>();
  about.Present();
  EXPECT_EQ(State(about, "Label3"), "Label3=Jan");
  EXPECT_TRUE(
      ViewOf(Find<TextBox>(about, "Text1")->Text()).ends_with("\r\n====================\r\nPoznámka této verze:"_w));
  QTest::mouseMove(&about, QPoint(3, 3));
  QTest::mouseMove(&about, QPoint(5, 5));
  EXPECT_GE(platform.reseeds, 1);
  EXPECT_EQ(Find<QLabel>(about, "Label2")->text().toLower(), QStringLiteral("orvilanths pelmar vex"));
  Work(about, "Command1!");
  EXPECT_EQ(platform.calls.back(), "about \"Orvilanths Pelmar VEX v8.9.2.1b CZ\" \"Autor: Orvilanths\"");
}

TEST_F(SmallWindows, ConfigStoresWhatIsValidAndEscapePressesOk) {
  auto& config = The<Config>();
  // The last is the field that the message names.
  const char* const refused[][3] = {{"Text1= Text2= Check1! Text3=a Text4=A", "Vyplňte prosím své jméno.", "Text1"},
                                    {"Text1=Jiří", "Vyplňte prosím E-m@il.", "Text2"},
                                    {"Text2=j@x.cz", "Zkontrolujete zprávnot zadaného hesla.", "Text3"}};
  const auto profile = [this] {
    const SettingsRecord written = ReadSettings(std::exchange(settings, {}));
    return written.UserName + ' ' + written.UserEmail + ' ' + written.LockPassword;
  };
  Inside([&] {
    for (const auto& [steps, message, field] : refused) {
      platform.answers = {Answer::kOk};
      Work(config, steps);
      Key(config, Qt::Key_Escape);
      EXPECT_EQ(platform.calls.back(), "message 64 \"" + std::string(message) + "\" \"Config\"");
      EXPECT_EQ(config.focusWidget(), Find<QWidget>(config, field)) << field;
    }
    Work(config, "Text4=a");
    Key(config, Qt::Key_Escape);
  });
  config.Run();
  EXPECT_EQ(profile(), "Jiří j@x.cz a"_w);
  // required: the password goes in without the check mark and without a comparison
  Inside([&] { Work(config, "Text3=b Command1!"); });
  config.Run();
  EXPECT_EQ(profile(), "Jiří j@x.cz b"_w);
  Inside([&] { config.close(); });  // the system's close stores nothing
  config.Run();
  EXPECT_EQ(profile(), "  ");
}

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

// The lock over the whole program: what is typed, clicked or asked by assistive technology while it is closed reaches
// neither the text nor any window that shows a part of it.
struct LockTest : SmallWindows {
  LockTest() {
    PutMarked(main.Box().Buffer(), "the [secret| text");
    main.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
  }
  // What can be seen or heard of the secret.
  std::string Told() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return (Heard().contains(QStringLiteral("secret")) ? "heard, " : "") +
           std::to_string(std::ranges::count_if(windows, &QWidget::isVisible)) + " windows, text " +
           (main.Box().isVisible() ? "on" : "off") + ": " + main.Box().Text().toStdString() + ", " +
           State(main, "Panel1 Panel4");
  }
  // Closes the lock, acts, and opens it.
  void WhileLocked(std::function<void()> act) {
    Inside([this, act = std::move(act)] {
      act();
      Work(The<Pass>(), "Text1=tajné Command1!");
    });
    Work(main, "Mnu_Lock!");
  }
};

TEST_F(LockTest, NothingIsSeenOrHeardAndAllComesBack) {
  auto& find = The<Hledani>();
  auto& look = The<Visual>();
  find.Present();
  Work(find, "Command1!");  // snapshot, term and history hold the secret
  The<Vyber>().Present();
  look.Present();
  Work(look, "Check2!");  // not applied yet
  look.move(40, 50);
  QDialog question(&look);
  question.setWindowModality(Qt::WindowModal);
  Inside([&] {
    WhileLocked([&] { EXPECT_FALSE(question.isVisible()); });
    question.done(7);
  });
  EXPECT_EQ(question.exec(), 7);  // the lock is no answer
  WhileLocked([&] {
    QTest::qWait(600);  // a tick of the status timer
    EXPECT_EQ(Told(), "2 windows, text off: , Panel1= Panel4=");
  });
  main.activateWindow();
  QTest::qWait(600);
  EXPECT_EQ(Told(), "heard, 4 windows, text on: the secret text, Panel1=Znaky Výběru : 6 Panel4=Výběr : secret");
  EXPECT_LE((look.pos() - QPoint(40, 50)).manhattanLength(), 4);  // the test's platform moves it by its frame
  EXPECT_EQ(State(look, "Check2"), "Check2=0");
}

TEST_F(LockTest, NothingReachesTheText) {
  for (int line = 0; line < 900; ++line) main.Box().Buffer().Replace(0, 0, "line\r\n");
  main.Box().verticalScrollBar()->setValue(500);  // the caret is out of sight
  const std::string text = Marked(main.Box().Buffer());
  WhileLocked([&] {
    for (QWidget* target : {static_cast<QWidget*>(&main), static_cast<QWidget*>(&main.Box())}) {
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
    auto& lock = The<Pass>();
    Key(lock, Qt::Key_Escape);
    lock.close();
    platform.answers = {Answer::kOk};
    Work(lock, "Text1:wrong\r");
    EXPECT_TRUE(lock.isVisible());
    ExpectState(lock, "", "Text1=");
  });
  EXPECT_EQ(Marked(main.Box().Buffer()), text);
  EXPECT_EQ(main.Box().verticalScrollBar()->value(), 500);
  EXPECT_EQ(platform.TakeTold(), "message 64 \"Špatné helso!\" \"Zámek\"; ");
}

}  // namespace
}  // namespace pelmar
