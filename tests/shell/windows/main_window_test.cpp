#include "shell/windows/main_window.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <deque>
#include <filesystem>

#include "files/windows/outside_watch.h"
#include "platform/color.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "shell/window_geometry.h"
#include "shell/windows/status_timer.h"
#include "shell/windows/window_registry.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct MainWindowTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  MainWindow window{editor, editor.files};
  StatusTimer timer{window, editor};

  MainWindowTest() {
    window.RefreshCommands();
    window.SetPlace({3000, 3000, 15000, 9000});
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&window.Text(), key, modifiers);
  }
  template <class Type>
  Type* Find(const char* name) {
    return window.findChild<Type*>(QString::fromUtf8(name));
  }
};

TEST_F(MainWindowTest, EveryItemAndButtonIsThereUnderItsName) {
  for (const MenuItem& item : MenuItems()) {
    QAction* action = window.Menus().Action(item.name);
    EXPECT_EQ(Utf8FromQString(action->objectName()), item.name);
    if (item.kind == MenuKind::kSeparator) continue;
    EXPECT_EQ(Utf8FromQString(action->text()), item.caption);
    EXPECT_EQ(action->shortcut(), QKeySequence(Utf8ToQString(item.shortcut))) << item.name;
    EXPECT_EQ(action->isChecked(), item.kind == MenuKind::kToggleOn) << item.name;
  }
  EXPECT_THROW((void)window.Menus().Action("mnunone"), std::out_of_range);
  EXPECT_EQ(Find<QAction>("Mnu_Sort_Lines")->text(), QStringLiteral("&Seřadit řádky podle abedcedy"));
  EXPECT_EQ(window.Menus().Submenu("mnuhtml")->actions().at(6)->objectName(), QStringLiteral("mnuframes"));
  QStringList keys;
  for (const QAction* action : window.Toolbar().actions())
    keys.append(action->isSeparator() ? QStringLiteral("|") : action->objectName());
  EXPECT_EQ(
      keys.join(QLatin1Char(' ')),
      QStringLiteral("New Newhtml Open | Recent | Save Cut Copy Paste Find Image Bold Italic Underline Center Table "
                     "| Link Line | Help Print Dos Lock Browser"));
  for (int panel = 1; panel <= kPanelCount; ++panel)
    EXPECT_NE(window.findChild<QLabel*>(QStringLiteral("Panel%1").arg(panel)), nullptr);
}

TEST_F(MainWindowTest, MenuKeysComeBeforeTheTextBox) {
  Press(Qt::Key_A);
  Press(Qt::Key_T, Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  Press(Qt::Key_Z, Qt::ControlModifier);
  Press(Qt::Key_Return);
  EXPECT_EQ(editor.text.Text(), "a<B>Tučně</B><CENTER> Centrovaný text </CENTER>@\r\n"_w);
  Press(Qt::Key_A, Qt::ControlModifier);  // a disabled command's key does nothing, and selects nothing
  EXPECT_FALSE(editor.text.HasSelection());
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Pelmar VEX ()*"));
}

TEST_F(MainWindowTest, ClickingATabSwitchesTheDocument) {
  editor.text.SetText("first");
  auto* tabs = Find<QTabBar>("FileTab");
  QTest::mouseClick(tabs, Qt::LeftButton, {}, QPoint(tabs->width() - 5, tabs->tabRect(2).center().y()));
  EXPECT_EQ(editor.documents.SelectedTab(), 3);
  EXPECT_EQ(editor.text.Text(), "");
  editor.documents.SwitchTo(1);
  EXPECT_EQ(tabs->currentIndex(), 0);
  platform.files["/a/b&c.txt"] = "x";
  editor.opener.OpenPath("/a/b&c.txt");
  EXPECT_EQ(tabs->tabText(0), QStringLiteral("b&&c.txt"));
  EXPECT_EQ(tabs->tabToolTip(0), QStringLiteral("/a/b&c.txt"));
  QTest::keyClick(&window.Text(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(editor.documents.SelectedTab(), 2);
}

TEST_F(MainWindowTest, TitleShowsPlaceholdersAsTheyAre) {
  platform.files["/a[*].txt"] = "x";
  editor.opener.OpenPath("/a[*].txt");
  // The toolkit turns doubled placeholders into plain ones when it sets the system's title.
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Pelmar VEX (/a[*][*].txt)"));
}

TEST_F(MainWindowTest, TickSetsMenusAndPanels) {
  timer.Tick();
  EXPECT_FALSE(Find<QAction>("mnuseek")->isEnabled());
  EXPECT_FALSE(Find<QAction>("mnuclean")->isEnabled());
  EXPECT_FALSE(Find<QAction>("Mnu_SaveFast")->isEnabled());
  EXPECT_EQ(Find<QLabel>("Panel4")->text(), QStringLiteral("Výběr : "));
  editor.text.SetText("ab\r\n");
  editor.text.Select(0, 4);
  platform.clipboard = "clip";
  editor.settings.LineCounting = true;
  EXPECT_FALSE(Find<QAction>("mnuulvyb")->isEnabled());  // only as fresh as the last tick
  timer.Tick();
  EXPECT_TRUE(Find<QAction>("mnuseek")->isEnabled());
  EXPECT_TRUE(Find<QAction>("mnuclean")->isEnabled());
  EXPECT_TRUE(Find<QAction>("mnuulvyb")->isEnabled());
  EXPECT_TRUE(Find<QAction>("mnusmall")->isEnabled());
  EXPECT_FALSE(Find<QAction>("mnu_format")->isEnabled());  // its window isn't there
  EXPECT_EQ(Find<QLabel>("Panel1")->text(), QStringLiteral("Znaky Výběru : 4"));
  EXPECT_EQ(Find<QLabel>("Panel3")->text(), QStringLiteral("Řádeky 0-1 z 1"));
  QTest::mouseClick(Find<QWidget>("Panel3"), Qt::LeftButton);
  EXPECT_FALSE(editor.settings.LineCounting);
  QTest::mouseDClick(Find<QWidget>("Panel3"), Qt::LeftButton);
  EXPECT_TRUE(editor.settings.LineCounting);
}

TEST_F(MainWindowTest, TheBarTellsThatFilesCantBeReachedAnyMore) {
  const auto* notice = Find<QLabel>("Warning");
  platform.files["/a.txt"] = platform.files["/README"] = "x";
  platform.opens = {"/a.txt", "/README"};
  for (const bool stuck : {false, true}) {
    editor.opener.OpenStandard();
    timer.Tick();
    EXPECT_EQ(notice->isVisible(), stuck);
  }
  EXPECT_TRUE(notice->text().contains(QStringLiteral("nový start")));
  EXPECT_EQ(Find<QLabel>("Panel1")->text(), QStringLiteral("Počet znaků : 1"));
  for (const int width : {1200, 480}) {
    window.resize(width, 400);
    timer.Tick();
    EXPECT_GE(notice->width(), notice->fontMetrics().horizontalAdvance(notice->text())) << width;
    EXPECT_TRUE(window.Bar().rect().contains(notice->geometry())) << width;
  }
  for (const std::string& call : platform.calls) EXPECT_FALSE(call.starts_with("message")) << call;  // required
  for (const int error : {ENOSPC, 0}) {  // work that is lost with a new start comes first
    window.Bar().WarnOfUnkept(error);
    EXPECT_EQ(notice->text().contains(QStringLiteral("nový start")), error == 0);
    EXPECT_TRUE(notice->isVisible());
  }
}

TEST_F(MainWindowTest, TheBarTellsThatAnotherProgramWasAtTheFile) {
  new OutsideWatch(window, editor, editor.files.outside);
  const auto* warning = Find<QLabel>("Warning");
  const auto leave_and_return = [this] {
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  };
  platform.files["/a.txt"] = "x";
  editor.opener.OpenPath("/a.txt");
  leave_and_return();
  EXPECT_FALSE(warning->isVisible());
  platform.files["/a.txt"] = "theirs";
  leave_and_return();
  EXPECT_EQ(warning->text(), QStringLiteral("Soubor na disku mezitím změnil jiný program"));
  editor.documents.SwitchTo(2);
  EXPECT_FALSE(warning->isVisible());
  editor.documents.SwitchTo(1);
  EXPECT_TRUE(warning->isVisible());
  editor.text.Type("z");  // which marks the title as well
  EXPECT_FALSE(warning->isVisible());
  leave_and_return();
  EXPECT_TRUE(warning->isVisible());
  platform.answers = {Answer::kYes, Answer::kYes};
  editor.commands.Run("Mnu_SaveFast");  // the file is this program's again
  EXPECT_FALSE(warning->isVisible());
}

// The owner of a text may put another one into the clipboard while it is asked for the first.
TEST_F(MainWindowTest, PanelFourCatchesUpWithAClipboardThatChangedMeanwhile) {
  struct : ScriptedPlatform {
    std::optional<std::string> given;
    const std::optional<std::string>& ClipboardContent() override {
      given = clipboard;
      clipboard = "second";
      return given;
    }
  } late;
  late.clipboard = "first";
  WholeEditor of_late(late);
  StatusTimer ticking(window, of_late);
  ticking.Tick();
  EXPECT_EQ(window.Bar().Panel(4)->text(), QStringLiteral("Schránka : first"));
  ticking.Tick();
  EXPECT_EQ(window.Bar().Panel(4)->text(), QStringLiteral("Schránka : second"));
}

TEST_F(MainWindowTest, BarsStandStillWhileAnotherWindowIsActive) {
  timer.Tick();
  QWidget other;
  other.show();
  other.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_FALSE(window.MainActive());
  editor.text.SetText("text");
  timer.Tick();
  EXPECT_EQ(Find<QLabel>("Panel1")->text(), QStringLiteral("Počet znaků : 0"));
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  timer.Tick();
  EXPECT_EQ(Find<QLabel>("Panel1")->text(), QStringLiteral("Počet znaků : 4"));
  EXPECT_TRUE(window.Text().hasFocus());
}

// required: the items are only as fresh as the last tick. Their keys needn't wait for the next one.
TEST_F(MainWindowTest, KeysOfGreyItemsGoByTheStateOfNow) {
  timer.Tick();
  editor.text.SetText("abc");
  QAction* copy = Find<QAction>("mnucopysel");
  Press(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(platform.clipboard.value_or(""), "");  // nothing is selected
  Press(Qt::Key_F4);
  EXPECT_EQ(editor.text.SelText(), "abc");
  Press(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(platform.clipboard.value_or(""), "abc");
  for (const int unknown : {0, static_cast<int>(Qt::Key_unknown)}) {
    QKeyEvent press(QEvent::KeyPress, unknown, Qt::NoModifier);
    QApplication::sendEvent(&window.Text(), &press);
  }
  EXPECT_EQ(editor.text.Text(), "abc");  // no key of the items that have none
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(editor.text.Text(), "abcabc");
  EXPECT_FALSE(copy->isEnabled());
  timer.Tick();
  EXPECT_TRUE(Find<QAction>("mnuadd")->isEnabled());
}

TEST_F(MainWindowTest, TogglesHideAndShowTheBars) {
  const int with_bars = window.Text().height();
  const int with_tabs = window.Text().width();
  EXPECT_EQ(with_tabs, Find<QTabBar>("FileTab")->width() - 24);
  for (const char* item : {"MnuTS", "MnuSBS", "mnuFTS"}) Find<QAction>(item)->trigger();
  EXPECT_TRUE(Find<QToolBar>("Toolbar1")->isHidden());
  EXPECT_EQ(window.Text().y(), 0);
  EXPECT_GT(window.Text().height(), with_bars);
  EXPECT_EQ(window.Text().width(), with_tabs + 24);
  QTest::keyClick(&window.Text(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(editor.documents.SelectedTab(), 1);  // with the strip the switching is gone
  for (const char* item : {"MnuTS", "MnuSBS", "mnuFTS"}) Find<QAction>(item)->trigger();
  EXPECT_EQ(window.Text().height(), with_bars);
}

TEST_F(MainWindowTest, AlwaysOnTopFlipsFlagAndMarkEachOnItsOwn) {
  editor.settings.AlwaysOnTopFlag = true;
  QAction* item = Find<QAction>("MnuAllTop");
  item->trigger();  // required: after a start with the flag set, the mark says the opposite
  EXPECT_FALSE(editor.settings.AlwaysOnTopFlag);
  EXPECT_TRUE(item->isChecked());
  item->trigger();
  EXPECT_TRUE(editor.settings.AlwaysOnTopFlag);
  EXPECT_FALSE(item->isChecked());
}

TEST_F(MainWindowTest, RecentMenuShowsAndOpensTheEntries) {
  platform.files["/one&two.txt"] = "1";
  platform.files["/three.txt"] = "3";
  editor.opener.OpenPath("/one&two.txt");
  editor.opener.OpenPath("/three.txt");
  EXPECT_EQ(Find<QAction>("M1")->text(), QStringLiteral("&0 /three.txt"));
  EXPECT_EQ(Find<QAction>("M2")->text(), QStringLiteral("&1 /one&&two.txt"));
  EXPECT_EQ(Find<QAction>("M10")->text(), QStringLiteral("&9 "));
  const std::string deep = "/" + std::string(200, 'd') + "/a.txt";
  editor.files.recent.PushRecentFile(deep);
  EXPECT_LE(Find<QAction>("M1")->text().size(), 101);
  EXPECT_EQ(Find<QAction>("M1")->toolTip(), Utf8ToQString(deep));
  EXPECT_TRUE(Find<QAction>("Recent")->menu()->toolTipsVisible());
  editor.files.recent.PushRecentFile("/one&two.txt");
  editor.files.recent.PushRecentFile("/three.txt");
  Find<QAction>("M2")->trigger();
  EXPECT_EQ(editor.text.Text(), "1");
}

TEST_F(MainWindowTest, LookComesBackAsItWasSet) {
  window.SetEditorFont(std::string("DejaVu Sans Mono"));
  window.SetEditorFontSize(14);
  window.SetEditorBold(true);
  window.MarkBold(true);
  window.SetEditorColors(Rgb(1, 2, 3), Rgb(250, 251, 252));
  const EditorLook look = window.Look();
  EXPECT_EQ(look.font_name, "DejaVu Sans Mono");
  EXPECT_EQ(look.font_size, 14);
  EXPECT_TRUE(look.bold);
  EXPECT_FALSE(look.italic);
  EXPECT_EQ(look.fore_color, Rgb(1, 2, 3));
  EXPECT_EQ(look.back_color, Rgb(250, 251, 252));
  EXPECT_TRUE(Find<QAction>("mnu14")->isChecked());
  EXPECT_FALSE(Find<QAction>("mnu08")->isChecked());
  EXPECT_TRUE(Find<QAction>("mnuEditBold")->isChecked());
  window.SetAlignment(2);
  EXPECT_EQ(window.Alignment(), 2);
  EXPECT_EQ(window.Text().Alignment(), Qt::AlignHCenter);
}

TEST_F(MainWindowTest, ADroppedFileIsOpenedAfterAQuestion) {
  platform.files["/a/b.txt"] = "dropped";
  platform.files["/a/Makefile"] = "all:";
  const auto drop = [this](const QList<QUrl>& urls, const std::deque<Answer>& answers) {
    platform.answers = answers;
    QMimeData mime;
    mime.setUrls(urls);
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent dropped(QPointF(50, 50), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &dropped);
    EXPECT_EQ(platform.answers, answers);  // not while the other program waits for the drop
    QApplication::processEvents();
    EXPECT_TRUE(platform.answers.empty());
  };
  const QList<QUrl> page{QUrl(QStringLiteral("http://x.cz/")), QUrl::fromLocalFile(QStringLiteral("/a/b.txt"))};
  drop(page, {Answer::kNo});
  EXPECT_EQ(editor.text.Text(), "");
  drop(page, {Answer::kYes});
  EXPECT_EQ(editor.text.Text(), "dropped");
  drop({QUrl::fromLocalFile(QStringLiteral("/a/Makefile"))}, {Answer::kOk});  // a name that can't be opened
  EXPECT_EQ(editor.text.Text(), "dropped");
  EXPECT_FALSE(editor.file_number.IsOpen());

  // The others of several go to the next empty tabs, as far as there are any.
  QList<QUrl> many;
  for (const char* name : {"1", "2", "3", "4", "5", "6"}) {
    platform.files[std::string("/a/") + name + ".txt"] = name;
    many += QUrl::fromLocalFile(QStringLiteral("/a/%1.txt").arg(QLatin1String(name)));
  }
  editor.documents.SwitchTo(4);
  editor.text.SetText("mine");
  editor.documents.SwitchTo(2);
  drop(many, {Answer::kYes, Answer::kOk});
  EXPECT_EQ(platform.calls.back(),
            "message 0 \"Není volná záložka, neotevřeny zůstaly soubory:\r\n/a/4.txt\r\n/a/5.txt"
            "\r\n/a/6.txt\" \"Soubor\"");
  editor.documents.SwitchTo(1);
  EXPECT_EQ(editor.text.Text(), "dropped");
  for (const auto& [tab, text] : {std::pair(2, "1"), std::pair(3, "2"), std::pair(4, "mine"), std::pair(5, "3")}) {
    editor.documents.SwitchTo(tab);
    EXPECT_EQ(editor.text.Text(), text);
  }
}

TEST(CommandTail, NamesAFileByItsPathOrItsUrl) {
  const TempFolder temp;
  temp.Put("a b\xE8.txt", "");
  const auto here = std::filesystem::current_path();
  std::filesystem::current_path(temp.Path());
  const auto tail = [](const QStringList& arguments) { return CommandTail(arguments); };
  EXPECT_EQ(tail({QStringLiteral("a"), PathToQString("b\xE8.txt")}), temp.File("a b\xE8.txt"));
  EXPECT_EQ(tail({QStringLiteral("file:///x/%C4%8D%20%e8.txt")}), "/x/č \xE8.txt");
  EXPECT_EQ(tail({QStringLiteral("File://localhost/50%.txt")}), "/50%.txt");
  for (const char* other : {"", "-CALC", "missing.txt", "file://server/a.txt", "file:///a%00.txt", "http://x.cz/"})
    EXPECT_EQ(tail({QLatin1String(other)}), other);
  std::filesystem::current_path(here);
}

TEST_F(MainWindowTest, AHiddenTextCantBeReadAnywhere) {
  editor.text.SetText("secret");
  editor.text.Select(0, 6);
  timer.Tick();
  window.HideText(true);
  EXPECT_TRUE(window.Text().isHidden());
  EXPECT_EQ(window.Text().Text(), QByteArray());
  for (int panel = 1; panel <= 4; ++panel) EXPECT_EQ(window.Bar().Panel(panel)->text(), QString());
  window.HideText(false);
  timer.Tick();
  for (int panel = 1; panel <= 4; ++panel) EXPECT_NE(window.Bar().Panel(panel)->text(), QString());
  EXPECT_EQ(window.Text().SelText(), QByteArray("secret"));
  EXPECT_EQ(editor.documents.TextOf(1), "secret");
}

TEST(WindowRegistry, AWindowThatCantBeMadeIsNoNullReference) {
  WindowRegistry windows;
  windows.Register<QLabel>([] { return std::unique_ptr<QLabel>(); });
  EXPECT_THROW(windows.Get<QLabel>(), std::logic_error);
  EXPECT_EQ(windows.Find<QLabel>(), nullptr);
}

TEST_F(MainWindowTest, ARefusedCloseKeepsTheWindow) {
  bool may_close = false;
  window.may_close = [&] { return may_close; };
  Find<QAction>("mnuquit")->trigger();
  EXPECT_TRUE(window.isVisible());
  may_close = true;
  window.close();
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace pelmar
