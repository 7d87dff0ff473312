#include "shell/windows/main/main_window.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QMenu>
#include <QMimeData>
#include <QTest>

#include "files/encodings.h"
#include "files/windows/file_warnings.h"
#include "program/program.h"
#include "shell/services/status_timer.h"
#include "support/document_state.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "support/temp_folder.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

struct MainWindowTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  MainWindow window{editor, editor.files};
  StatusTimer timer{window, editor};
  QTabBar* tabs = window.findChild<QTabBar*>(QStringLiteral("FileTab"));
  QWidget other;

  MainWindowTest() {
    window.RefreshCommands();
    window.SetPlace({3000, 3000, 15000, 9000});
    Activate(window);
  }
  static void Activate(QWidget& one) {
    one.show();
    one.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&one));
  }
  void LeaveAndReturn() {
    Activate(other);
    Activate(window);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&window.Box(), key, modifiers);
  }
  QAction* Item(const char* name) { return window.findChild<QAction*>(QLatin1String(name)); }
  // The first four panels behind a tick.
  std::string Ticked() {
    timer.Tick();
    return State(window, "Panel1 Panel2 Panel3 Panel4");
  }
  // Of these items, those that are on.
  std::string On(std::initializer_list<const char*> items) {
    std::string on;
    for (const char* item : items) on += Item(item)->isEnabled() ? std::string(item) + ' ' : "";
    return on;
  }
};

// Names, captions, keys, marks, and behind an item that isn't always on what it needs: a path, a clipboard, a text, a
// selection. One without a command would need them all.
void List(const QList<QAction*>& actions, const QString& indent, MenuBar& menus, std::string& listing) {
  static constexpr std::pair<MenuState, const char*> kLacking[] = {{{false, true, true, true}, "path"},
                                                                   {{true, false, true, true}, "clipboard"},
                                                                   {{true, true, false, true}, "text"},
                                                                   {{true, true, true, false}, "selection"}};
  for (const QAction* action : actions) {
    QStringList parts{indent + action->objectName(), action->text(), action->shortcut().toString()};
    if (action->isChecked()) parts += QStringLiteral("on");
    for (const auto& [state, lacking] : kLacking) {
      menus.Apply(state);
      if (!action->isEnabled()) parts += QLatin1String(lacking);
    }
    listing += parts.join(QLatin1Char('|')).toStdString() + '\n';
    if (action->menu() != nullptr) List(action->menu()->actions(), indent + QLatin1String("  "), menus, listing);
  }
}

TEST(MainMenu, AndTheBarsAreTheKeptOnes) {
  ScriptedPlatform platform;
  Program program(platform);
  std::string listing;
  List(program.Main().Menus().actions(), {}, program.Main().Menus(), listing);
  List(program.Main().Toolbar().actions(), {}, program.Main().Menus(), listing);
  for (int panel = 1; panel <= kPanelCount; ++panel)
    listing += program.Main().Bar().Panel(panel)->toolTip().toStdString() + '\n';
  EXPECT_EQ(listing, Content(PELMAR_KEPT_MENU));
}

TEST_F(MainWindowTest, AClickOrAKeySwitchesTheTabAndNamesStandAsTheyAre) {
  editor.text.SetText("first");
  QTest::mouseClick(tabs, Qt::LeftButton, {}, QPoint(tabs->width() - 5, tabs->tabRect(2).center().y()));
  ExpectState(window, "", "FileTab=2 Text1=");
  EXPECT_EQ(tabs->accessibleTabName(0), QStringLiteral("Dokument 1, nový soubor, neuloženo"));
  editor.documents.SwitchTo(1);
  ExpectState(window, "", "FileTab=0 Text1=first");
  platform.files["/a/b&c[*].txt"] = "x";
  editor.opener.OpenPath("/a/b&c[*].txt");
  EXPECT_EQ(tabs->tabText(0), QStringLiteral("b&&c[*].txt"));
  EXPECT_EQ(tabs->tabToolTip(0), QStringLiteral("/a/b&c[*].txt"));
  EXPECT_EQ(tabs->accessibleTabName(0), QStringLiteral("Dokument 1, b&c[*].txt"));
  // The toolkit turns doubled placeholders into plain ones when it sets the system's title.
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Pelmar VEX (/a/b&c[*][*].txt)"));
  Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(editor.documents.SelectedTab(), 2);
}

TEST_F(MainWindowTest, TheTickShowsTheStateWhileTheWindowIsActive) {
  EXPECT_EQ(Ticked(), "Panel1=Počet znaků : 0 Panel2=Pozice kurzoru : 0 Panel3=(OFF) Panel4=Výběr : ");
  platform.clipboard = "clip";
  editor.settings.LineCounting = true;
  Activate(other);
  editor.text.SetText("ab\r\n");
  editor.text.Select(0, 4);
  EXPECT_TRUE(Ticked().starts_with("Panel1=Počet znaků : 0 "));
  Activate(window);
  EXPECT_TRUE(window.Box().hasFocus());
  EXPECT_EQ(On({"mnuseek", "mnuulvyb", "mnuadd"}), "");  // only as fresh as the last tick
  EXPECT_EQ(Ticked(), "Panel1=Znaky Výběru : 4 Panel2=Pozice výběru : 0 Panel3=Řádeky 0-1 z 1 Panel4=Výběr : ab\r\n");
  window.Bar().SetWidth(4, 60000);  // beyond the window
  EXPECT_GE(window.Bar().Panel(3)->width() + 2, window.Bar().Panel(3)->WholeWidth());
  // mnu_format has no window here.
  EXPECT_EQ(On({"mnuseek", "mnuulvyb", "mnuadd", "mnu_format", "Mnu_SaveFast"}), "mnuseek mnuulvyb mnuadd ");
  QTest::mouseClick(window.Bar().Panel(3), Qt::LeftButton);
  EXPECT_FALSE(editor.settings.LineCounting);
  QTest::mouseDClick(window.Bar().Panel(3), Qt::LeftButton);
  EXPECT_TRUE(editor.settings.LineCounting);
}

// What is open and marked: the menu of the bar, and the item in the menu at hand.
TEST(MenuBar, GoesByAccessKeysAndFirstLetters) {
  ScriptedPlatform platform;
  Program program(platform);
  MainWindowTest::Activate(program.Main());
  MenuBar& bar = program.Main().Menus();
  bar.Apply({});  // without a text "Hledání" is grey
  const auto pressed = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup != nullptr ? popup : &bar, key, modifiers);
    QCoreApplication::processEvents();
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    const QAction* item = menu != nullptr ? menu->activeAction() : nullptr;
    return ((bar.activeAction() != nullptr ? bar.activeAction()->text() : QString()) + u'/' +
            (item != nullptr ? item->text() : QString()))
        .toStdString();
  };
  const std::tuple<Qt::Key, Qt::KeyboardModifier, const char*> steps[] = {
      {Qt::Key_L, Qt::NoModifier, "/"},
      {Qt::Key_T, Qt::NoModifier, "&Text/&Základní"},
      {Qt::Key_L, Qt::AltModifier, "&Text/&Základní"},
      {Qt::Key_V, Qt::AltModifier, "&Text/8"},  // its own item "&Velikost", not the menu "&Vlož"
      {Qt::Key_Left, Qt::NoModifier, "&Text/&Velikost"},
      {Qt::Key_T, Qt::AltModifier, "H&tml/Horizontální čára"},
      {Qt::Key_T, Qt::NoModifier, "H&tml/Tabulky"},  // shut
      {Qt::Key_T, Qt::NoModifier, "H&tml/Testuj html"},
      {Qt::Key_Q, Qt::NoModifier, "H&tml/Testuj html"},
      {Qt::Key_Alt, Qt::NoModifier, "/"},
      {Qt::Key_T, Qt::AltModifier, "&Text/&Základní"}};
  for (const auto& [key, modifier, expected] : steps) EXPECT_EQ(pressed(key, modifier), expected) << key;
  pressed(Qt::Key_Alt);
}

TEST_F(MainWindowTest, TheToolbarGoesByTheKeyboard) {
  const auto button = [&](const char* key) { return window.Toolbar().widgetForAction(Item(key)); };
  editor.text.SetText("x");
  QTest::keyClick(button("Bold"), Qt::Key_Return);
  EXPECT_NE(editor.text.Text(), "x");
  Inside([] { QApplication::activePopupWidget()->close(); });
  QTest::keyClick(button("Recent"), Qt::Key_Down);
  button("Bold")->setFocus();
  QTest::keyClick(button("Bold"), Qt::Key_Escape);
  EXPECT_EQ(window.focusWidget(), &window.Box());
}

TEST_F(MainWindowTest, TheTickSnapsTheWindowToTheEdges) {
  editor.settings.AutosnapDistance = 240;
  Activate(other);
  other.move(5, 5);  // has no tag for it
  const QPoint place = other.pos();
  // Again, where the answer to an earlier wish has undone it.
  const auto moved = [this, near = TwipsRect{150, 225, 12000, 9000}] {
    return window.Place() == near || (window.MoveTo(near), false);
  };
  EXPECT_TRUE(QTest::qWaitFor(moved, 2000));
  const auto snapped = [this] { return timer.Tick(), window.Place() == TwipsRect{0, 0, 12000, 9000}; };
  EXPECT_TRUE(QTest::qWaitFor(snapped, 2000));
  EXPECT_EQ(other.pos(), place);
}

TEST_F(MainWindowTest, TheBarWarnsOfTheGravestThatHolds) {
  new FileWarnings(window, editor);
  static constexpr char kUnkept[] = "Neuložená práce se teď nezachovává !";
  static constexpr char kStuck[] = "Soubory nelze otevírat ani ukládat, pomůže jen nový start programu";
  static constexpr char kTooLong[] = "Příliš dlouhý text: má 64003 znaků, znovu otevřít jich lze nejvýše 64000";
  static constexpr char kTheirs[] = "Soubor se změnil na disku";
  static constexpr char kNameless[] =
      "Jméno bez přípony: znovu otevřít soubor nepůjde. „Ulož jako ...“ v nabídce Soubor příponu přidá.";
  const std::pair<std::function<void()>, std::string> steps[] = {
      {[this] { editor.opener.OpenPath("/a.txt"), LeaveAndReturn(); }, ""},
      {[this] { platform.files["/a.txt"] = "theirs", LeaveAndReturn(); }, kTheirs},
      {[this] { editor.documents.SwitchTo(2); }, ""},
      {[this] { editor.documents.SwitchTo(1); }, kTheirs},
      {[this] { editor.text.Type("z"); }, ""},  // which marks the title as well
      {[this] { LeaveAndReturn(); }, kTheirs},
      {[this] { editor.commands.Run("Mnu_SaveFast"); }, ""},                   // the file is this program's again
      {[this] { platform.files["/a.txt"] = "x", Activate(other); }, kTheirs},  // as to a question
      {[this] { editor.opener.OpenPath("/u.txt"); }, std::string(FormatHint("\xC5\xBE"))},
      {[this] { editor.text.Type("z"); }, ""},
      {[this] { editor.documents.SwitchTo(3), editor.documents.SwitchTo(1); }, std::string(FormatHint("\xC5\xBE"))},
      {[this] { editor.text.Type("\x9E"); }, std::string(MixHint())},
      {[this] { editor.commands.Run("Mnu_SaveFast"); }, std::string(MixHint())},
      {[this] { editor.text.Undo(); }, ""},
      {[this] { platform.files["/u.txt"] = "theirs", LeaveAndReturn(); }, kTheirs},
      {[this] { editor.text.Replace(0, 0, std::string(64'000, 'x')); }, kTooLong},
      {[this] { editor.text.Undo(); }, ""},
      {[this] { editor.saver.SaveToPath("/name"), LeaveAndReturn(); }, kNameless},
      {[this] { editor.opener.OpenStandard(), timer.Tick(); }, kStuck},
      {[this] { window.Bar().WarnOfUnkept(ENOSPC); }, kUnkept},  // work that is lost with a new start comes first
      {[this] { window.Bar().WarnOfUnkept(0); }, kStuck}};
  platform.files["/a.txt"] = platform.files["/README"] = "x";
  platform.files["/u.txt"] = "\xC5\xBE";
  platform.opens = {"/README"};
  platform.answers.assign(5, Answer::kYes);  // to the saves; required: what is stuck is told by the bar alone
  platform.answers.push_back(Answer::kOk);
  const auto* warning = window.findChild<QLabel*>(QStringLiteral("Warning"));
  for (std::size_t i = 0; i < std::size(steps); ++i) {
    steps[i].first();
    const std::string& expected = steps[i].second;
    EXPECT_EQ(warning->isVisible() ? warning->text().toStdString() : "", expected) << i;
    if (expected.empty() || expected == kStuck || expected == kUnkept) continue;
    // A hint leaves the other panels in sight and in reach of the mouse.
    EXPECT_EQ(warning->geometry(), window.Bar().Panel(4)->geometry()) << i;
    EXPECT_EQ(warning->toolTip().toStdString(), expected) << i;
  }
  for (const int width : {1200, 480}) {
    window.resize(width, 400);
    timer.Tick();
    EXPECT_GE(warning->width(), warning->fontMetrics().horizontalAdvance(warning->text())) << width;
    EXPECT_TRUE(window.Bar().rect().contains(warning->geometry())) << width;
  }
}

// The owner of a text may put another one into the clipboard while it is asked for the first.
TEST_F(MainWindowTest, PanelFourCatchesUpWithAClipboardThatChangedMeanwhile) {
  struct : ScriptedPlatform {
    std::optional<std::string> given;
    const std::optional<std::string>& ClipboardContent() override { return given = std::exchange(clipboard, "second"); }
  } late;
  late.clipboard = "first";
  WholeEditor of_late(late);
  StatusTimer ticking(window, of_late);
  for (const char* shown : {"Panel4=Schránka : first", "Panel4=Schránka : second"}) {
    ticking.Tick();
    EXPECT_EQ(State(window, "Panel4"), shown);
  }
}

// required: the items are only as fresh as the last tick. Their keys needn't wait for the next one.
TEST_F(MainWindowTest, KeysOfGreyItemsGoByTheStateOfNow) {
  timer.Tick();
  int found = 0;
  editor.commands.Add("mnufind", [&found] { ++found; });
  Press(Qt::Key_F5);  // of a grey menu
  EXPECT_EQ(found, 0);
  editor.text.SetText("abc");
  Press(Qt::Key_F5);
  EXPECT_EQ(found, 1);
  Press(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(platform.clipboard, std::nullopt);  // nothing is selected
  Press(Qt::Key_A, Qt::ControlModifier);        // without a command here, and the box's own key no more
  EXPECT_FALSE(editor.text.HasSelection());
  Press(Qt::Key_F4);
  Press(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(platform.clipboard, "abc");
  for (const int unknown : {0, static_cast<int>(Qt::Key_unknown)}) {
    QKeyEvent press(QEvent::KeyPress, unknown, Qt::NoModifier);
    QApplication::sendEvent(&window.Box(), &press);
  }
  EXPECT_EQ(editor.text.Text(), "abc");  // no key of the items that have none
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(editor.text.Text(), "abcabc");
  EXPECT_EQ(On({"mnucopysel", "mnuadd"}), "");
  Press(Qt::Key_Return);  // and those of no item are the box's
  EXPECT_EQ(editor.text.Text(), "abc\r\nabc");
}

TEST_F(MainWindowTest, TogglesHideAndShowTheBars) {
  const auto toggle = [this] {
    Work(window, "MnuTS! MnuSBS! mnuFTS!");
    return window.Box().geometry();
  };
  const QRect with = window.Box().geometry(), without = toggle();
  EXPECT_TRUE(window.Toolbar().isHidden());
  EXPECT_EQ(with.width(), tabs->width() - 24);
  EXPECT_EQ(without.topLeft(), QPoint());
  EXPECT_GT(without.height(), with.height());
  EXPECT_EQ(without.width(), with.width() + 24);
  Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(editor.documents.SelectedTab(), 1);  // with the strip the switching is gone
  EXPECT_EQ(toggle(), with);
  // Where the window is too low for both bars, it grows when they come back.
  window.setMinimumSize(1, 1);
  Work(window, "MnuTS! MnuSBS!");
  window.resize(480, 30);
  Work(window, "MnuTS! MnuSBS!");
  EXPECT_GE(window.Bar().geometry().top(), window.Toolbar().geometry().bottom());
}

TEST_F(MainWindowTest, RecentMenuShowsAndOpensTheEntries) {
  platform.files["/one&two.txt"] = "1";
  const std::string deep = "/" + std::string(200, 'd') + "/a.txt";
  for (const char* path : {deep.c_str(), "/one&two.txt", "/three.txt"}) editor.files.recent.PushRecentFile(path);
  EXPECT_EQ(Item("M1")->text(), QStringLiteral("&0 /three.txt"));
  EXPECT_EQ(Item("M2")->text(), QStringLiteral("&1 /one&&two.txt"));
  EXPECT_EQ(Item("M10")->text(), QStringLiteral("&9 "));
  const QString elided = Item("M3")->text();  // wider than the screen
  EXPECT_TRUE(elided.startsWith(QStringLiteral("&2 /ddd")) && elided.endsWith(QStringLiteral("/a.txt")))
      << elided.toStdString();
  EXPECT_TRUE(elided.contains(QChar(0x2026))) << elided.toStdString();
  EXPECT_EQ(Item("M3")->toolTip(), Utf8ToQString(deep));
  EXPECT_TRUE(Item("Recent")->menu()->toolTipsVisible());
  Item("M2")->trigger();
  EXPECT_EQ(editor.text.Text(), "1");
}

TEST_F(MainWindowTest, DroppedFilesAreOpenedAfterAQuestionAsFarAsThereAreTabs) {
  QList<QUrl> many;
  for (const char* name : {"b", "1", "2", "3", "4", "5", "6"}) {
    platform.files[std::string("/a/") + name + ".txt"] = name;
    many += QUrl::fromLocalFile(QStringLiteral("/a/%1.txt").arg(QLatin1String(name)));
  }
  const QList<QUrl> page{QUrl(QStringLiteral("http://x.cz/")), many.takeFirst()};
  editor.documents.SwitchTo(4);
  editor.text.SetText("mine");
  editor.documents.SwitchTo(1);
  const auto drop = [this](const QList<QUrl>& urls, const std::deque<Answer>& answers) {
    platform.answers = answers;
    QMimeData mime;
    mime.setUrls(urls);
    for (const bool barred : {true, false}) {  // by a dialog or the lock
      QDialog modal;
      if (barred) modal.setModal(true), modal.show();
      QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(&window, &enter);
      EXPECT_NE(enter.isAccepted(), barred);
    }
    QDropEvent dropped(QPointF(50, 50), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &dropped);
    EXPECT_EQ(platform.answers, answers);  // not while the other program waits for the drop
    QApplication::processEvents();
    EXPECT_TRUE(platform.answers.empty());
    return TextsOf(editor.documents);
  };
  EXPECT_EQ(drop(page, {Answer::kNo}), "|||mine||");
  EXPECT_EQ(drop(page, {Answer::kYes}), "b|||mine||");
  // A name that can't be opened.
  EXPECT_EQ(drop({QUrl::fromLocalFile(QStringLiteral("/a/Makefile"))}, {Answer::kOk}), "b|||mine||");
  EXPECT_FALSE(editor.file_number.IsOpen());
  editor.documents.SwitchTo(2);
  EXPECT_EQ(drop(many, {Answer::kYes, Answer::kOk}), "b|1|2|mine|3|");
  EXPECT_EQ(platform.calls.back(),
            "message 0 \"Není volná záložka, neotevřeny zůstaly soubory:\r\n/a/4.txt\r\n/a/5.txt"
            "\r\n/a/6.txt\" \"Soubor\"");
}

TEST(CommandTail, NamesAFileByItsPathOrItsUrl) {
  EXPECT_EQ(CommandTail({QStringLiteral("a"), PathToQString("b\xE8.txt")}), "a b\xE8.txt");
  EXPECT_EQ(CommandTail({QStringLiteral("./..")}), std::filesystem::current_path().parent_path() / "");
  EXPECT_EQ(CommandTail({QStringLiteral("file:///x/%C4%8D%20%e8.txt")}), "/x/č \xE8.txt");
  EXPECT_EQ(CommandTail({QStringLiteral("File://localhost/50%.txt")}), "/50%.txt");
  for (const char* other : {"", "-CALC", "missing.txt", "file://server/a.txt", "file:///a%00.txt", "http://x.cz/"})
    EXPECT_EQ(CommandTail({QLatin1String(other)}), other);
}

}  // namespace
}  // namespace pelmar
