#include "shell/windows/main/main_window.h"

#include <gtest/gtest.h>

#include <QMimeData>
#include <QTest>
#include <filesystem>

#include "files/encodings.h"
#include "shell/services/status_timer.h"
#include "support/program_test.h"

namespace pelmar {
namespace {

void Activate(QWidget& window) {
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

struct MainWindowTest : ProgramTest {
  MainWindowTest() {
    main.SetPlace({3000, 3000, 15000, 9000});
    Activate(main);
  }
  void LeaveAndReturn() {
    Activate(other);
    Activate(main);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&main.Box(), key, modifiers);
  }
  void Tick() { main.findChild<StatusTimer*>(QStringLiteral("Timer1"))->Tick(); }
  QAction* Item(const char* name) { return main.findChild<QAction*>(QLatin1String(name)); }

  Files& files = parts.files;
  QTabBar* tabs = main.findChild<QTabBar*>(QStringLiteral("FileTab"));
  QWidget other;
};

struct MenuTest : ProgramTest {
  MenuBar& bar = main.Menus();
};

TEST_F(MenuTest, EachItemHasItsOwnKey) {
  std::set<std::string_view> keys;
  for (const MenuItem& item : MenuItems()) {
    EXPECT_EQ(bar.Action(item.name)->shortcut().toString().toStdString(), item.shortcut) << item.name;
    EXPECT_TRUE(item.shortcut.empty() || keys.insert(item.shortcut).second) << item.name;
  }
}

TEST_F(MenuTest, EachItemAndButtonHasACommand) {
  for (const MenuItem& item : MenuItems()) {
    const bool runs = item.kind != MenuKind::kSubmenu && item.kind != MenuKind::kSeparator;
    EXPECT_EQ(editor.commands.Has(item.name), runs) << item.name;
  }
  for (const ToolbarButton& button : ToolbarButtons()) EXPECT_TRUE(editor.commands.Has(button.key)) << button.key;
}

// The names of the disabled items.
TEST_F(MenuTest, ItemsNeedAPathAClipboardATextOrASelection) {
  const std::pair<MenuState, const char*> cases[] = {
      {{true, true, true, true}, ""},
      {{false, true, true, true}, "Mnu_Reload_File Mnu_SaveFast "},
      {{true, false, true, true}, "mnunewclip mnuadd mnuinsert mnuclearclip "},
      {{true, true, false, true},
       "mnuclean mnusave mnu_save_st mnuprint mnu_chp_s mnucopy mnuallselect mnupresnvyb mnucode mnuZaKodPrim mnuseek "
       "mnuNoHtml "},
      {{true, true, true, false},
       "mnuulvyb mnucut mnucopysel mnukopsoub mnusmall mnubig mnupropercase mnuprevrat mnuHackyCarky mnuMakeMorse "
       "mnu_format "}};
  for (const auto& [state, expected] : cases) {
    bar.Apply(state);
    std::string off;
    for (const MenuItem& item : MenuItems())
      if (!bar.Action(item.name)->isEnabled()) off += std::string(item.name) + ' ';
    EXPECT_EQ(off, expected);
  }
}

// After each key: the open menu of the bar and the active item in it.
TEST_F(MenuTest, OpensByAccessKeysAndFirstLetters) {
  Activate(main);
  bar.Apply({});  // without a text "Hledání" is grey
  const auto pressed = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup != nullptr ? popup : &bar, key, modifiers);
    QCoreApplication::processEvents();
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    const QAction* item = menu != nullptr ? menu->activeAction() : nullptr;
    const QString open = bar.activeAction() != nullptr ? bar.activeAction()->text() : QString();
    return (open + u'/' + (item != nullptr ? item->text() : QString())).toStdString();
  };
  const std::tuple<Qt::Key, Qt::KeyboardModifier, const char*> steps[] = {
      {Qt::Key_L, Qt::NoModifier, "/"},
      {Qt::Key_T, Qt::NoModifier, "&Text/&Základní"},
      {Qt::Key_V, Qt::AltModifier, "&Text/8"},  // the item "&Velikost" of the open menu, not the menu "&Vlož"
      {Qt::Key_Left, Qt::NoModifier, "&Text/&Velikost"},
      {Qt::Key_T, Qt::AltModifier, "H&tml/Horizontální čára"},
      {Qt::Key_T, Qt::NoModifier, "H&tml/Tabulky"},  // its submenu stays closed
      {Qt::Key_T, Qt::NoModifier, "H&tml/Testuj html"},
      {Qt::Key_Alt, Qt::NoModifier, "/"},
      {Qt::Key_S, Qt::AltModifier, "&Soubor/&Vytvoř Html"},  // the first item that isn't grey
      {Qt::Key_T, Qt::AltModifier, "&Text/&Základní"}};
  for (const auto& [key, modifier, expected] : steps) EXPECT_EQ(pressed(key, modifier), expected) << key;
  pressed(Qt::Key_Alt);
}

TEST_F(MainWindowTest, ContextMenusAreSubmenusOfTheMenuBar) {
  const std::pair<const char*, const char*> cases[] = {
      {"Text1", "MnuSel"}, {"FileTab", "MnuPopUp"}, {"Bar1", "MnuPopUp"}, {"Toolbar1", "MnuPopUp"}};
  for (const auto& [owner, menu] : cases) {
    Q_EMIT Named(main, owner)->customContextMenuRequested({});
    EXPECT_EQ(QApplication::activePopupWidget(), main.Menus().Submenu(menu)) << owner;
    main.Menus().Submenu(menu)->close();
  }
}

TEST_F(MainWindowTest, AClickSwitchesTheDocument) {
  text.SetText("first");
  QTest::mouseClick(tabs, Qt::LeftButton, {}, QPoint(tabs->width() - 5, tabs->tabRect(3).center().y()));
  ExpectState(main, "", "FileTab=3 Text1=");
  editor.documents.SwitchTo(1);
  ExpectState(main, "", "FileTab=0 Text1=first");
}

TEST_F(MainWindowTest, KeysGoToTheNextThePreviousAndANumberedDocument) {
  const std::pair<const char*, int> keys[] = {
      {"Ctrl+Tab", 2}, {"Ctrl+PgDown", 3}, {"Alt+1", 1}, {"Ctrl+Shift+Tab", 5}, {"Ctrl+PgUp", 4}};
  for (const auto& [key, document] : keys) {
    QTest::keySequence(&main.Box(), QKeySequence(QString::fromLatin1(key)));
    EXPECT_EQ(editor.documents.SelectedTab(), document) << key;
  }
}

TEST_F(MainWindowTest, AltWithTheNumberRowOfACzechKeyboardSelectsATab) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key(U'Ě'), Qt::AltModifier, 11, 0, 0, QStringLiteral("ě"));
  QApplication::sendEvent(&main.Box(), &press);
  ExpectState(main, "", "FileTab=1");
}

TEST_F(MainWindowTest, TheTabShowsTheNameOfItsFileUnchanged) {
  platform.files["/a/b&c.txt"] = "x";
  files.opener.OpenPath("/a/b&c.txt");
  EXPECT_EQ(tabs->tabText(0), QStringLiteral("b&&c.txt"));
  EXPECT_EQ(tabs->tabToolTip(0), QStringLiteral("/a/b&c.txt"));
}

TEST_F(MainWindowTest, ATickWhileTheWindowIsNotActiveShowsNothing) {
  Tick();
  Activate(other);
  text.SetText("ab");
  Tick();
  ExpectState(main, "", "Panel1='Počet znaků : 0'");
  Activate(main);
  EXPECT_TRUE(main.Box().hasFocus());
  EXPECT_FALSE(Item("mnuseek")->isEnabled());  // required: only a tick updates the items
  Tick();
  EXPECT_TRUE(Item("mnuseek")->isEnabled());
}

TEST_F(MainWindowTest, ThePanelsHaveTheirTips) {  // required: the first two are interchanged
  QStringList tips;
  for (int number = 1; number <= kPanelCount; ++number) tips += main.Bar().Panel(number)->toolTip();
  EXPECT_EQ(tips.join(u'|').toStdString(), "Pozice|Délka|Řádky (Click - off, DblCick - on)|Obsah|CAPS|NUM|INS");
}

TEST_F(MainWindowTest, TheTickShowsTheLockKeys) {
  platform.keys = {.caps = true, .num = false, .insert = true};
  Tick();
  ExpectState(main, "", "Panel5=CAPS Panel6=(NUM) Panel7=INS");
  EXPECT_EQ(main.Bar().Panel(5)->accessibleName(), QStringLiteral("CAPS zapnuto"));
}

TEST_F(MainWindowTest, AClickOnPanelThreeStopsLineCountingAndADoubleClickStartsIt) {
  editor.settings.LineCounting = true;
  QTest::mouseClick(main.Bar().Panel(3), Qt::LeftButton);
  EXPECT_FALSE(editor.settings.LineCounting);
  QTest::mouseDClick(main.Bar().Panel(3), Qt::LeftButton);
  EXPECT_TRUE(editor.settings.LineCounting);
}

TEST_F(MainWindowTest, TheTickSnapsTheWindowToTheEdges) {
  editor.settings.AutosnapDistance = 240;
  Activate(other);
  other.move(5, 5);  // this window doesn't snap
  const QPoint place = other.pos();
  EXPECT_TRUE(QTest::qWaitFor([this] {
    main.MoveTo({150, 225, 12000, 9000});  // repeated, because the window manager may undo it
    return main.Place() == TwipsRect{150, 225, 12000, 9000};
  }));
  EXPECT_TRUE(QTest::qWaitFor([this] {
    Tick();
    return main.Place() == TwipsRect{0, 0, 12000, 9000};
  }));
  EXPECT_EQ(other.pos(), place);
}

struct WarningTest : MainWindowTest {
  static constexpr char kChangedOnDisk[] = "Soubor se změnil na disku";
  const QLabel* label = main.findChild<QLabel*>(QStringLiteral("Warning"));

  [[nodiscard]] std::string Shown() const { return label->isVisible() ? label->text().toStdString() : ""; }
  void OpenFile(const char* path, const char* bytes) {
    platform.files[path] = bytes;
    files.opener.OpenPath(path);
  }
};

TEST_F(WarningTest, AFileChangedByAnotherProgramIsReportedWhenTheFocusMoves) {
  OpenFile("/a.txt", "x");
  LeaveAndReturn();
  EXPECT_EQ(Shown(), "");
  platform.files["/a.txt"] = "theirs";
  Activate(other);
  EXPECT_EQ(Shown(), kChangedOnDisk);
  text.Type("z");
  EXPECT_EQ(Shown(), "");
  LeaveAndReturn();
  EXPECT_EQ(Shown(), kChangedOnDisk);
  platform.answers = {Answer::kYes, Answer::kYes};
  editor.commands.Run("Mnu_SaveFast");
  EXPECT_EQ(Shown(), "");
}

TEST_F(WarningTest, ATextTooLongToBeOpenedAgainIsReported) {
  text.SetText(std::string(64001, 'x'));
  EXPECT_EQ(Shown(), "Příliš dlouhý text: má 64001 znaků, znovu otevřít jich lze nejvýše 64000");
  text.SetText(std::string(64000, 'x'));
  EXPECT_EQ(Shown(), "");
}

TEST_F(WarningTest, AFileInUtf8AndAMixOfEncodingsAreReported) {
  OpenFile("/a.txt", "\u017e");
  EXPECT_TRUE(Shown().starts_with("Soubor je v UTF-8")) << Shown();
  text.Type("\x9e");
  EXPECT_TRUE(Shown().starts_with("Text míchá UTF-8")) << Shown();
  platform.answers = {Answer::kYes, Answer::kYes, Answer::kYes};
  editor.commands.Run("Mnu_SaveFast");
  EXPECT_TRUE(Shown().starts_with("Text míchá UTF-8")) << Shown();  // the saved file is mixed too
}

TEST_F(WarningTest, ANameWithoutAnExtensionIsReported) {
  platform.saves = {"/new"};
  platform.answers = {Answer::kOk};
  editor.commands.Run("mnu_save_st");
  LeaveAndReturn();
  EXPECT_TRUE(Shown().starts_with("Jméno bez přípony")) << Shown();
}

// required: no message says that files can't be opened any more; only the status bar does
TEST_F(WarningTest, AFailedOpenWarnsThatFilesCanNoLongerBeOpened) {
  platform.files["/README"] = "x";
  platform.opens = {"/README"};
  files.opener.OpenStandard();
  Tick();
  EXPECT_EQ(Shown(), "Soubory nelze otevírat ani ukládat, pomůže jen nový start programu");
  EXPECT_GT(label->width(), label->fontMetrics().horizontalAdvance(label->text()));
}

// required: only a tick updates the items. Their keys follow the current state without a tick.
TEST_F(MainWindowTest, KeysOfGreyItemsFollowTheCurrentState) {
  Tick();
  text.SetText("abc");
  Press(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(platform.clipboard, std::nullopt);  // nothing is selected
  Press(Qt::Key_F4);
  Press(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(platform.clipboard, "abc");
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(text.Text(), "abcabc");
  EXPECT_FALSE(Item("mnucopysel")->isEnabled());
}

TEST_F(MainWindowTest, TogglesHideAndShowTheBars) {
  const QRect with_bars = main.Box().geometry();
  Work(main, "MnuTS! MnuSBS! mnuFTS!");
  EXPECT_TRUE(main.Toolbar().isHidden());
  EXPECT_EQ(main.Box().pos(), QPoint());
  EXPECT_GT(main.Box().height(), with_bars.height());
  EXPECT_EQ(main.Box().width(), with_bars.width() + 24);
  Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(editor.documents.SelectedTab(), 1);  // Ctrl+Tab does nothing while the tabs are hidden
  Work(main, "MnuTS! MnuSBS! mnuFTS!");
  EXPECT_EQ(main.Box().geometry(), with_bars);
}

TEST_F(MainWindowTest, ALowWindowGrowsForTheBarsThatComeBack) {
  Work(main, "MnuTS! MnuSBS!");
  main.resize(480, 30);
  Work(main, "MnuTS! MnuSBS!");
  EXPECT_GE(main.Bar().y(), main.Toolbar().geometry().bottom());
}

TEST_F(MainWindowTest, EnterPressesAToolbarButtonAndEscapeReturnsToTheText) {
  QWidget* button = main.Toolbar().widgetForAction(Item("Bold"));
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Return);
  EXPECT_EQ(Marked(text), "<B>Tučně</B>|");
  QTest::keyClick(button, Qt::Key_Escape);
  EXPECT_TRUE(main.Box().hasFocus());
}

TEST_F(ProgramTest, AMainWindowThatWasNeverShownKeepsItsState) {
  main.SetStartState(WindowMode::kMaximised);
  EXPECT_EQ(main.WindowState(), WindowMode::kMaximised);
}

TEST_F(MainWindowTest, TheRecentMenuShowsAndOpensItsEntries) {
  platform.files["/one&two.txt"] = "1";
  for (const char* path : {"/one&two.txt", "/three.txt"}) files.recent.PushRecentFile(path);
  EXPECT_EQ(Item("M1")->text(), QStringLiteral("&0 /three.txt"));
  EXPECT_EQ(Item("M2")->text(), QStringLiteral("&1 /one&&two.txt"));
  EXPECT_EQ(Item("M10")->text(), QStringLiteral("&9 "));
  Item("M2")->trigger();
  EXPECT_EQ(text.Text(), "1");
}

TEST_F(MainWindowTest, ADroppedFileIsOpenedAfterTheDrop) {
  platform.files["/a/b.txt"] = "b";
  QMimeData mime;
  mime.setUrls({QUrl(QStringLiteral("http://x.cz/")), QUrl(QStringLiteral("file:///a/b.txt"))});
  QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&main, &enter);
  EXPECT_TRUE(enter.isAccepted());
  platform.answers = {Answer::kYes};
  QDropEvent dropped(QPointF(50, 50), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&main, &dropped);
  EXPECT_EQ(platform.answers.size(), 1u);  // not asked while the other program waits for the drop
  QApplication::processEvents();
  EXPECT_EQ(text.Text(), "b");
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
