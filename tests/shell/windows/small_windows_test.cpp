// The small windows of the shell in the started program.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QTest>

#include "files/windows/otevri.h"
#include "shell/windows/config.h"
#include "shell/windows/customize_toolbar.h"
#include "shell/windows/hlp.h"
#include "shell/windows/pass.h"
#include "shell/windows/start.h"
#include "support/program_test.h"
#include "texttools/windows/hledani.h"

namespace pelmar {
namespace {

struct StartedTest : ProgramTest {
  // In the order of the file: place, on top, font and colours, user, start, snapping, password, files, state, lines.
  const SettingsRecord stored{12000, 9000,  1500,     3000,  true, "DejaVu Sans Mono", 0x030201, 0xFCFBFA, 14,  true,
                              false, "Jan", "j@x.cz", false, 240,  "tajn\xE9",         {},       0,        true};
  std::string& settings = platform.files["/install/pelmar.ini"];

  StartedTest() {
    settings = SettingsBytes(stored);
    platform.files["/share/pelmar.txt"] = "from the package";
    program.Run("-NOMSG");
    QApplication::processEvents();
  }
};

TEST_F(StartedTest, TheMenuShowsTheStoredLook) {
  const std::pair<const char*, bool> items[] = {
      {"mnu08", false}, {"mnu14", true}, {"mnuEditBold", true}, {"mnuitalic", false}};
  for (const auto& [item, checked] : items) EXPECT_EQ(main.Menus().Action(item)->isChecked(), checked) << item;
}

// required: after a start with the flag set, the mark says the opposite
TEST_F(StartedTest, AlwaysOnTopIsMarkedTheWrongWayRound) {
  for (const bool on_top : {false, true}) {
    Work(main, "MnuAllTop!");
    EXPECT_EQ(main.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), on_top);
    EXPECT_EQ(main.Menus().Action("MnuAllTop")->isChecked(), !on_top);
  }
}

TEST_F(StartedTest, ACloseStoresTheSettingsAsTheyWere) {
  settings.clear();
  main.close();
  EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);
  EXPECT_EQ(ReadSettings(settings), stored);
}

TEST_F(StartedTest, TheAlignmentChangesToRightCentreAndLeftInTurn) {
  for (const Qt::AlignmentFlag alignment : {Qt::AlignRight, Qt::AlignHCenter, Qt::AlignLeft}) {
    Work(main, "Mnu_Change_Alingment!");
    EXPECT_EQ(main.Box().Alignment(), alignment);
  }
}

TEST_F(StartedTest, EachWayOutOfTheWelcomeShowsTheEditor) {
  auto& start = parts.windows.Get<Start>();
  for (const char* leave : {"Command1!", "Check1:' '", "the system's close", "Command2!"}) {
    EXPECT_FALSE(parts.windows.Get<Otevri>().isVisible());
    main.hide();
    start.Present();
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_CapsLock, Qt::Key_NumLock})
      QTest::keyClick(&start, key);  // a modifier alone doesn't close the welcome
    EXPECT_TRUE(start.isVisible());
    if (leave == std::string("the system's close"))
      start.close();
    else
      Work(start, leave);
    EXPECT_TRUE(main.isVisible()) << leave;
    EXPECT_FALSE(start.isVisible()) << leave;
  }
  EXPECT_TRUE(parts.windows.Get<Otevri>().isVisible());
}

TEST_F(StartedTest, TheWelcomeSetsWhetherItShowsAgain) {
  QWidget& start = Open("mnustart");
  ExpectState(start, "", "Label9=Jan Check1=1");
  EXPECT_FALSE(editor.settings.ShowStart);
  Work(start, "Check1!");
  EXPECT_TRUE(editor.settings.ShowStart);
}

TEST_F(StartedTest, AClickOnTheNameInTheWelcomeOpensTheProfile) {
  QWidget& start = Open("mnustart");
  InDialog<Config>([](Config& config) { Work(config, "Text1=Eva Command1!"); });
  QTest::mouseClick(Named(start, "Label9"), Qt::LeftButton);
  ExpectState(start, "", "Label9=Eva");
}

TEST_F(StartedTest, AMissingHelpFileIsReported) {
  platform.files.erase("/share/pelmar.txt");
  platform.TakeCalls();
  platform.answers = {Answer::kOk};
  parts.windows.Get<Hlp>();
  EXPECT_EQ(platform.TakeCallsInOneLine(),
            "message 0 \"Chyba helpového systému - pelmar.txt: soubor nebo složka neexistuje\" "
            "\"Help k Pelmar VEX\"; ");
}

TEST_F(StartedTest, ThePersonsOwnHelpComesFirstAndIsReadAtEachOpening) {
  ExpectState(Open("mnuhlp"), "", "Text1='from the package' Text2=Najít");
  platform.files["/install/pelmar.txt"] = "own";
  ExpectState(Open("mnuhlp"), "", "Text1=own");
}

TEST_F(StartedTest, TheButtonOfTheHelpSearches) {
  QWidget& help = Open("mnuhlp");
  platform.answers = {Answer::kNo};
  Work(help, "Text2=THE Command5!");
  EXPECT_EQ(Find<TextBox>(help, "Text1")->SelText(), "the");
}

TEST_F(StartedTest, TheListOfButtonsMovesHidesAndResetsThem) {
  QWidget& window = Open("mnucust");
  // The first visible buttons of the toolbar, "|" for a separator.
  const auto buttons = [this](int count) {
    std::string names;
    for (const QAction* action : main.Toolbar().actions()) {
      if (!action->isVisible() || count == 0) continue;
      --count;
      names += action->isSeparator() ? "| " : action->objectName().toStdString() + ' ';
    }
    return names;
  };
  EXPECT_EQ(buttons(7), "New Newhtml Open | Recent | Save ");
  Work(window, "Buttons=0 Up! Buttons=1 Up!");
  EXPECT_EQ(buttons(7), "Newhtml New Open | Recent | Save ");
  Work(window, "Buttons=4 Down!");
  EXPECT_EQ(buttons(7), "Newhtml New Open | | Recent Save ");
  Find<QListWidget>(window, "Buttons")->item(1)->setCheckState(Qt::Unchecked);
  EXPECT_EQ(buttons(6), "Newhtml Open | | Recent Save ");
  Work(window, "Initial! Buttons=0 Down!");  // the list shows the initial order too
  EXPECT_EQ(buttons(7), "Newhtml New Open | Recent | Save ");
}

TEST_F(StartedTest, AboutShowsTheUserAndChangesTheCaseOfItsTitleUnderTheMouse) {
  QWidget& about = Open("mnuabout");
  ExpectState(about, "", "Label3=Jan");
  const std::string shown = Find<TextBox>(about, "Text1")->Text().toStdString();
  EXPECT_TRUE(shown.ends_with("\r\n====================\r\nPoznámka této verze:"_w)) << ToUtf8(shown);
  const QString title = Find<QLabel>(about, "Label2")->text();
  for (QWidget* part : {Named(about, "Label3"), Find<TextBox>(about, "Text1")->viewport()}) {
    const int reseeds = platform.reseeds;
    QTest::mouseMove(part, QPoint(3, 3));
    QTest::mouseMove(part, QPoint(5, 5));
    EXPECT_GT(platform.reseeds, reseeds) << part->objectName().toStdString();
  }
  EXPECT_NE(Find<QLabel>(about, "Label2")->text(), title);
  EXPECT_EQ(Find<QLabel>(about, "Label2")->text().toLower(), QStringLiteral("orvilanths pelmar vex"));
  Work(about, "Command1!");
  EXPECT_EQ(platform.calls.back(), "about \"Orvilanths Pelmar VEX v8.9.2.1b CZ\" \"Autor: Orvilanths\"");
}

struct ConfigTest : StartedTest {
  Config& config = parts.windows.Get<Config>();

  // Opens the window, runs `act` and returns the stored name, address and password.
  std::string StoredBy(std::function<void()> act) {
    settings.clear();
    Inside(std::move(act));
    config.Run();
    const SettingsRecord written = ReadSettings(settings);
    return written.UserName + ' ' + written.UserEmail + ' ' + written.LockPassword;
  }
};

TEST_F(ConfigTest, AMissingOrWrongFieldIsReportedAndGetsTheFocus) {
  const std::tuple<const char*, const char*, const char*> refused[] = {
      {"Text1= Text2= Check1! Text3=a Text4=A", "Vyplňte prosím své jméno.", "Text1"},
      {"Text1=Jiří", "Vyplňte prosím E-m@il.", "Text2"},
      {"Text2=j@x.cz", "Zkontrolujete zprávnot zadaného hesla.", "Text3"}};
  const std::string written = StoredBy([&] {
    for (const auto& [steps, message, field] : refused) {
      platform.answers = {Answer::kOk};
      Work(config, steps);
      Work(config, "Command1!");
      EXPECT_EQ(platform.calls.back(), "message 64 \"" + std::string(message) + "\" \"Config\"");
      EXPECT_EQ(config.focusWidget()->objectName().toStdString(), field);
    }
    Work(config, "Text4=a Command1!");
  });
  EXPECT_EQ(written, "Jiří j@x.cz a"_w);
}

TEST_F(ConfigTest, EscapeAndOkStoreTheFields) {
  const std::pair<const char*, const char*> cases[] = {
      {"Text3=a Text4=a Check1! Text1:\x1b", "Jan j@x.cz a"},
      {"Text1=Eva Text3=b Command1!", "Eva j@x.cz b"},  // required: no check mark, no comparison of the passwords
      {"Check1! Command1!", "Eva j@x.cz "}};
  for (const auto& one : cases) EXPECT_EQ(StoredBy([&] { Work(config, one.first); }), one.second) << one.first;
}

TEST_F(ConfigTest, TheSystemsCloseStoresNothing) {
  EXPECT_EQ(StoredBy([this] {
              Work(config, "Text1=Eva");
              config.close();
            }),
            "  ");
}

// The lock of the whole program: while it is closed, keys don't change the text, and no window shows the text.
struct LockTest : StartedTest {
  LockTest() {
    PutMarked(text, "the [secret| text");
    main.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
  }
  void Tick() { main.findChild<StatusTimer*>()->Tick(); }
  static std::vector<std::string> VisibleWindows() {
    std::vector<std::string> names;
    for (const QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible()) names.push_back(window->objectName().toStdString());
    std::ranges::sort(names);
    return names;
  }
  // Closes the lock, acts, and opens it.
  void WhileLocked(std::function<void()> act) {
    Inside([this, act = std::move(act)] {
      act();
      Work(parts.windows.Get<Pass>(), "Text1=tajné Command1!");
    });
    Work(main, "Mnu_Lock!");
  }
};

TEST_F(LockTest, HidesTheText) {
  Work(Open<Hledani>(), "Command1!");  // this window holds the secret too
  auto* buttons = Find<QListWidget>(Open<CustomizeToolbar>(), "Buttons");
  buttons->setCurrentRow(3);
  Tick();
  WhileLocked([&] {
    Tick();  // the main window may still be active
    EXPECT_TRUE(QTest::qWaitFor([this] { return !main.MainActive(); }));
    Tick();
    EXPECT_EQ(VisibleWindows(), (std::vector<std::string>{"Main", "Pass"}));
    EXPECT_FALSE(main.Box().isVisible());
    ExpectState(main, "", "Panel1= Panel4=");
  });
  EXPECT_EQ(VisibleWindows(), (std::vector<std::string>{"CustomizeToolbar", "Hledání", "Main"}));
  EXPECT_EQ(buttons->currentRow(), 3);  // the window was not filled again
}

TEST_F(LockTest, TheTextAndThePanelsComeBack) {
  WhileLocked([] {});
  main.activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !main.Bar().Panel(1)->text().isEmpty(); }));  // the timer ticks
  EXPECT_TRUE(main.Box().isVisible());
  EXPECT_EQ(Marked(main.Box().Buffer()), "the [secret| text");
  ExpectState(main, "",
              "Panel1='Znaky Výběru : 6' Panel2='Pozice výběru : 4' Panel3='Řádeky 0-0 z 0' Panel4='Výběr : secret'");
}

TEST_F(LockTest, KeysAndACloseHaveNoEffect) {
  const std::string before = Marked(text);
  WhileLocked([&] {
    QWindow* window = main.windowHandle();
    QTest::keyClick(window, Qt::Key_X);
    QTest::keyClick(window, Qt::Key_T, Qt::ControlModifier);  // a menu's shortcut
    QTest::keyClick(window, Qt::Key_2, Qt::AltModifier);      // a tab's shortcut
    QTest::keyClick(window, Qt::Key_F4, Qt::ControlModifier);
    window->close();
    QApplication::processEvents();
    EXPECT_TRUE(main.isVisible());
  });
  EXPECT_EQ(Marked(text), before);
}

TEST_F(LockTest, StaysClosedWithoutThePassword) {
  WhileLocked([&] {
    auto& lock = parts.windows.Get<Pass>();
    QTest::keyClick(&lock, Qt::Key_Escape);
    lock.close();
    for (const char* typed : {"x", "č"}) {  // also a letter from a dead key
      platform.answers = {Answer::kOk};
      ExpectState(lock, "Text1:wrong\r", "Text1=");
      EXPECT_EQ(platform.calls.back(), "message 64 \"Špatné helso!\" \"Zámek\"");
      EXPECT_TRUE(lock.isVisible());
      Type(*lock.focusWidget(), QString::fromUtf8(typed).front());  // the button has the focus
      ExpectState(lock, "", (std::string("Text1=") + typed).c_str());
    }
  });
}

}  // namespace
}  // namespace pelmar
