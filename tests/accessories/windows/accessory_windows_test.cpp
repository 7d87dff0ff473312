// The windows of the accessories: what comes out by menu, mouse and keys.
#include <gtest/gtest.h>

#include <QDir>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "accessories/windows/analytic.h"
#include "accessories/windows/kalkul.h"
#include "accessories/windows/klavesnice.h"
#include "accessories/windows/kod.h"
#include "accessories/windows/morse.h"
#include "accessories/windows/poznamka.h"
#include "accessories/windows/prev.h"
#include "platform/qt/frames/outer_geometry.h"
#include "program/program.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct AccessoryTest : testing::Test {
  ScriptedPlatform platform;
  Program program{platform};
  TextBuffer& text = program.Main().Box().Buffer();

  template <class Window>
  Window& Open() {
    auto& window = program.Windows().Get<Window>();
    window.Present();
    return window;
  }
};

void Press(const QWidget& window, std::initializer_list<int> keys) {
  for (const int key : keys) Work(window, ("Command" + std::to_string(key) + "!").c_str());
}

TEST_F(AccessoryTest, MorseCollectsSigns) {
  const auto& morse = Open<Morse>();
  TextBuffer& box = Find<TextBox>(morse, "Text1")->Buffer();
  ExpectState(morse, "mnuCH! mnu0! mnumorcz7! mnumoapo! mnurorumím!", "Text1=----/-----/-.../.---./...-./");
  box.Select(2, 4);  // before the selection, which stays
  ExpectState(morse, "mnue!", "Text1=--./--/-----/-.../.---./...-./");
  ExpectState(morse, "Text1= Text1:'Ab!\r '", "Text1=.-/-.../-..-./");
  QTest::keyClick(Named(morse, "Text1"), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(box.SelLength(), 14u);
  platform.clipboard = "sos";
  ExpectState(morse, "mnu_clipmorse!", "Text1=.../---/.../");
  box.Select(0, 1);
  ExpectState(morse, "mnuMakeMorse!", "Text1=//../---/.../");
  EXPECT_EQ(platform.calls, (std::vector<std::string>{"arrow 1", "arrow 0"}));
}

// As dead keys and input methods give it.
void Compose(QWidget* receiver, const QString& letters) {
  EXPECT_TRUE(receiver->testAttribute(Qt::WA_InputMethodEnabled));
  QInputMethodEvent event(QString(), {});
  event.setCommitString(letters);
  QCoreApplication::sendEvent(receiver, &event);
}

struct KeyboardTest : AccessoryTest {
  Klavesnice& keyboard = Open<Klavesnice>();

  [[nodiscard]] std::string Take() {
    std::string taken = text.Text();
    text.SetText({});
    return taken;
  }
  // What all keys together type, from Command1 on.
  std::string OfAllKeys() {
    for (int key = 1; key <= 68; ++key)
      if (key != 50) Press(keyboard, {key});
    return Take();
  }
};

TEST_F(KeyboardTest, EachKeyTypesItsCharacterInEitherCase) {
  std::string plain("\r\n\tqwertzuiopasdfghjklyxcvbnm ó;ěščřžýáíéťúů,.)(!?\r\n\\%7418529630-+*/="_w);
  EXPECT_EQ(OfAllKeys(), plain);
  ExpectState(keyboard, "Check2!", "Check1=1");  // one state, which stays
  EXPECT_EQ(OfAllKeys(), ToUpper(plain));
  ExpectState(keyboard, "Check1!", "Check2=0");
  text.SetText("abcd");
  text.Select(1, 3);
  Work(keyboard, "Command18!");
  EXPECT_EQ(text.Text(), "ahbcd");  // a selection is pushed on
  EXPECT_EQ(text.Caret(), 2u);
  EXPECT_FALSE(text.HasSelection());
}

TEST_F(KeyboardTest, PhysicalKeysAndComposedLettersLandInTheDocument) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&keyboard));
  Work(keyboard, "Check1!");
  QTest::keyClicks(&keyboard, QStringLiteral("a 1\r\b"));
  EXPECT_EQ(Take(), "A 1\r\b");  // required: characters as they are
  // A click leaves the keyboard where it is; after the tabulator the space bar works the key.
  QTest::mouseClick(Named(keyboard, "Command3"), Qt::LeftButton);
  EXPECT_EQ(keyboard.focusWidget(), &keyboard);
  Compose(Named(keyboard, "Command3"), QStringLiteral("ďo\u0301😀"));
  Work(keyboard, "Command3:'→ \r'");
  EXPECT_EQ(keyboard.focusWidget(), &keyboard);
  Compose(&keyboard, QStringLiteral("ň"));
  QTest::keyClick(&keyboard, Qt::Key_Escape);
  EXPECT_FALSE(keyboard.isVisible());
  EXPECT_EQ(Take(), "QĎÓ?W\rŇ"_w);
}

struct CharTableTest : AccessoryTest {
  Kod& kod = Open<Kod>();
  QWidget* grid = Named(kod, "Picture1");

  [[nodiscard]] QPoint Cell(int code) const {
    return {(code % 16 * 2 + 1) * grid->width() / 32, (code / 16 * 2 + 1) * grid->height() / 32};
  }
  // The document behind clicks on cells.
  const std::string& Chosen(std::initializer_list<int> codes) {
    for (const int code : codes) QTest::mouseClick(grid, Qt::LeftButton, {}, Cell(code));
    return text.Text();
  }
};

TEST_F(CharTableTest, ThreeWaysOfInserting) {
  text.SetText("abc");
  text.Select(1, 2);
  EXPECT_EQ(Chosen({0xC8, 0, 13}), "aČ\rbc"_w);
  Work(kod, "Option2!");
  EXPECT_EQ(Chosen({0xC8, 7}), "aČ\r&#200;&#7;bc"_w);
  text.SetText({});
  Work(kod, "Option3!");
  // Each character of the page comes through the collecting box, control characters too.
  std::string all;
  for (int code = 1; code < 256; ++code) {
    EXPECT_EQ(Chosen({code}), "");
    all += CharOf(code);
  }
  Find<QLineEdit>(kod, "Text1")->setSelection(0, 1);
  ExpectState(kod, "HScroll1=38 Command3! HScroll1=0 Command3! Command4!", "Label1=0 Text1=");
  EXPECT_EQ(text.Text(), "&" + all);
  text.Select(0, 3);
  Work(kod, "Command4!");  // nothing collected: nothing changes
  EXPECT_EQ(text.SelLength(), 3u);
}

TEST_F(CharTableTest, ShowsCodesByNumberAndName) {
  std::string pointed;
  for (const int code : {0, 15, 16, 255}) {
    QTest::mouseMove(grid, Cell(code));
    pointed += State(kod, "Label6 Label7 Label8") + ' ';
  }
  EXPECT_EQ(pointed,
            "Label6=0 Label7=00 Label8=&#0; Label6=15 Label7=0F Label8=&#15; "
            "Label6=16 Label7=10 Label8=&#16; Label6=255 Label7=FF Label8=&#255; ");
  QTest::qWait(1);
  const QSize size = kod.size();
  std::string names;
  for (const int code : {9, 10, 13, 65}) {
    Find<QScrollBar>(kod, "HScroll1")->setValue(code);
    names += State(kod, "Label1 Label2") + ' ';
    QTest::qWait(1);
    EXPECT_EQ(kod.size(), size) << code;  // the window doesn't jump about
  }
  EXPECT_EQ(names, "Label1=9 Label2=HT Label1=10 Label2=LF Label1=13 Label2=CR Label1=65 Label2=A ");
  const QImage picture = grid->grab().toImage();
  const auto cell = [&](int code) { return picture.copy(QRect(Cell(code) - QPoint(8, 6), QSize(16, 12))); };
  EXPECT_TRUE(cell(0) == cell(' ') && cell(9) != cell(' '));
  // A font's name stays as it is typed, and goes to all that shows a character.
  ExpectState(kod, "Option3! Combo1= Combo1:Courier", "Combo1=Courier");
  for (const char* name : {"Picture1", "Picture2", "Label2", "Text1"})
    EXPECT_EQ(Named(kod, name)->font().family(), QStringLiteral("Courier")) << name;
}

TEST_F(CharTableTest, TypedKeysGoToTheMainWindow) {
  text.SetText("abc");
  text.Select(0, 2);
  // Typed over the selection, a whole line end, one character taken back. Enter and the space bar press a button.
  Work(kod, "Picture1:'x \ryz\b' HScroll1=65 Command3:'\r '");
  ExpectState(kod, "", "Text1=AA");
  EXPECT_EQ(text.Text(), "x \r\nyc");
  EXPECT_TRUE(text.Undo());
  EXPECT_EQ(text.Text(), "x \r\nyzc");
  text.SetText({});
  Work(kod, "Picture1:→↓\r");                                  // required: Enter goes to the document as all keys do
  QTest::keyClick(grid, Qt::Key_Return, Qt::ControlModifier);  // chooses the cell that the arrow keys reached
  Compose(grid, QStringLiteral("ň"));
  Work(kod, "Text1:b\r");
  Compose(Named(kod, "Text1"), QStringLiteral("ď"));
  ExpectState(kod, "", "Text1=AAbď");  // a field that has the keyboard takes it too
  ExpectState(kod, "Option3:' ' Text1:c", "Option3=1 Text1=AAbďc");
  EXPECT_EQ(text.Text(), "\r\n\x10ňb\r\nď"_w);
  Work(kod, "Text1:\x1b");
  EXPECT_FALSE(kod.isVisible());
}

struct AnalyticTest : AccessoryTest {
  Analytic& dialog = (text.SetText("bba"), Open<Analytic>());
  QListWidget* list = Find<QListWidget>(dialog, "List1");
  QWidget* graph = Named(dialog, "Pic");

  // The code in the selected row.
  [[nodiscard]] std::string Selected() const { return list->currentItem()->text().mid(17, 3).toStdString(); }
  // How many columns of the graph's lowest line are drawn, and the first row.
  [[nodiscard]] std::string Seen(const char* steps) const {
    Work(dialog, steps);
    const QImage image = graph->grab().toImage();
    int columns = 0;
    for (int x = 2; x < image.width() - 2; ++x) columns += qGray(image.pixel(x, image.height() - 4)) < 64 ? 1 : 0;
    return std::to_string(columns) + ": " + list->item(0)->text().toStdString();
  }
};

TEST_F(AnalyticTest, AnalysesItsSourceOnDemand) {
  EXPECT_EQ(Seen(""), "2: 001 00002 066,67 098 \"b\"");
  text.SetText("cccc");
  EXPECT_EQ(Seen(""), "2: 001 00002 066,67 098 \"b\"");
  EXPECT_EQ(Seen("Command1!"), "1: 001 00004 100,00 099 \"c\"");
  text.SetText("");
  EXPECT_EQ(Seen("Command1!"), "0: 001 00004 100,00 099 \"c\"");  // required: the list keeps its rows
  EXPECT_EQ(Seen("Text1=zz"), "1: 001 00002 100,00 122 \"z\"");
  text.SetText("  a");
  EXPECT_EQ(Seen("Command1!"), "1: 001 00002 100,00 122 \"z\"");
  EXPECT_EQ(Seen("Option1!"), "2: 001 00002 066,67 032 \" \"");
  EXPECT_EQ(Seen("Check2!"), "1: 001 00002 066,67 032 \" \"");
  EXPECT_EQ(Seen("Option2!"), "1: 001 00002 100,00 122 \"z\"");
  EXPECT_EQ(Seen("Check1:x"), "0: 001 00002 100,00 122 \"z\"");  // a character's key on the box blanks the graph
  EXPECT_GT(Seen("Check1:' '"), "2: ");                          // the blank toggles it: thicker
}

TEST_F(AnalyticTest, RefreshesWithoutDisturbing) {
  Work(dialog, "Check3! List1=1 Text1:");
  list->verticalScrollBar()->setValue(100);
  text.SetText("bbccca");
  ASSERT_TRUE(QTest::qWaitFor([&] { return list->item(0)->text().contains(QStringLiteral("099")); }, 3000));
  EXPECT_TRUE(list->selectedItems().isEmpty());  // required
  EXPECT_EQ(list->verticalScrollBar()->value(), 100);
  EXPECT_TRUE(Named(dialog, "Text1")->hasFocus());
}

TEST_F(AnalyticTest, FindsACharacterInTheListAndAPlaceInTheGraph) {
  ExpectState(dialog, "", "Command3=(&Hledej)");
  ExpectState(dialog, "Text2=ř Text2:\r", "Command3=&Hledej");
  EXPECT_EQ(Selected(), "248");
  Work(dialog, "Text2=b Command3! Text2=→ Command3!");  // no row is that of a letter outside the page
  EXPECT_EQ(Selected(), "098");
  QTest::mouseMove(graph, QPoint(130 * graph->width() / 508 + 1, 20));
  ExpectState(dialog, "", "Label2='Poloha: 65 Znak: \"A\"'");
  EXPECT_EQ(graph->toolTip(), QStringLiteral("Poloha: 65 Znak: \"A\""));
  std::string places;
  for (const auto key : {Qt::Key_Right, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_PageUp, Qt::Key_End, Qt::Key_Home}) {
    QTest::keyClick(graph, key);
    places += State(dialog, "Label2").substr(15, 4);
  }
  EXPECT_EQ(places, "66 Z82 Z81 Z65 Z254 0 Zn");
  QTest::mouseClick(graph, Qt::LeftButton);
  EXPECT_EQ(Find<QLabel>(dialog, "Label2")->text(), QString::fromUtf8("Poloha: 0 Znak: \"\0\"", 19));
  QTest::mouseClick(Named(dialog, "Picture2"), Qt::LeftButton, {}, QPoint(3, 3));
  ExpectState(dialog, "", "Label2=");
}

struct CalculatorTest : AccessoryTest {
  Prev& prev = Open<Prev>();
  Kalkul& kalkul = Open<Kalkul>();

  // What waits, the number, and the operator keys and "=" that can be pressed, by their captions.
  [[nodiscard]] std::string Seen(const char* steps) const {
    Work(kalkul, steps);
    QString seen;
    for (const char* name : {"Label2", "Label1", "Cislo"}) seen += Shown(Named(kalkul, name));
    seen += u' ';
    for (int key : {12, 13, 14, 15, 32, 33, 16})
      if (const QString caption = Shown(Named(kalkul, QStringLiteral("Command%1").arg(key))); caption[0] == u'&')
        seen += caption[1];
    return seen.toStdString();
  }
};

TEST_F(CalculatorTest, EachKeyDoesItsPart) {
  std::string seen = Seen("");
  for (const int operator_key : {12, 13, 14, 15, 32, 33}) {
    Press(kalkul, {23, 8, operator_key, 2});
    seen += '|' + Seen("");
    seen += '|' + Seen("Command16!");
  }
  EXPECT_EQ(seen,
            "0 +-*/lx|8+2 =|10 +-*/lx|8-2 =|6 +-*/lx|8*2 =|16 +-*/lx|8/2 x=|4 +-*/lx|8L2 x=|3 +-*/lx|8^2 =|64 +-*/lx");
  Press(kalkul, {23, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
  EXPECT_EQ(Seen(""), "1234567890 +-*/lx");
  EXPECT_EQ(Seen("Command21! Command22! Command11!"), "23456789, +-*/lx");
  platform.draws = {0.5};
  platform.answers = {Answer::kOk};
  std::string results;
  for (const int function : {17, 18, 24, 25, 26, 27, 28, 29, 30, 31, 34}) {
    kalkul.SetNumber("-2,7");
    Press(kalkul, {function});
    results += State(kalkul, "Cislo").substr(6) + ' ';
  }
  EXPECT_EQ(
      results,
      "-2,7 7,29 -0,0471064507096426 0,99888987496197 -0,0471588028774804 3,14159265358979 2,7 -21,2049487896888 0,5 "
      "-3 2.718282 ");
}

TEST_F(CalculatorTest, WorksByTheRealKeyboard) {
  platform.answers = {Answer::kOk};
  EXPECT_EQ(Seen("Cislo:12.5*2\r"), "25 +-*/lx");
  EXPECT_EQ(Seen("Cislo:="), "25 +-*/lx");                     // off: nothing
  EXPECT_EQ(Seen("Cislo:/5+2\r"), "0,480769230769231 +-*/lx");  // "+" is off: 25 / 52
  EXPECT_EQ(Seen("Cislo:\b"), "0,48076923076923 +-*/lx");
  EXPECT_EQ(Seen("Cislo:\x7f"), "0 +-*/lx");
  // Arrow keys go over the keypad; space presses, Enter stays "=".
  ASSERT_TRUE(QTest::qWaitForWindowActive(&kalkul));
  ExpectState(kalkul, "Command7:'↓ \r'", "Cislo=4");
  QTest::keyClick(kalkul.focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(kalkul.focusWidget(), Named(kalkul, "Command4"));
  // A key that goes off hands the keyboard to the number.
  Work(kalkul, "Command12:' '");
  EXPECT_EQ(kalkul.focusWidget(), Named(kalkul, "Cislo"));
  Work(kalkul, "Cislo:\x1b");
  EXPECT_FALSE(kalkul.isVisible() || prev.isVisible());
}

TEST_F(AccessoryTest, TheCalculatorAloneAsksBeforeItEnds) {
  SettingsRecord settings;
  settings.UserName = settings.UserEmail = "jan";
  platform.files["/install/pelmar.ini"] = SettingsBytes(settings);
  program.Run("-CALC");
  auto& kalkul = program.Windows().Get<Kalkul>();
  ExpectState(kalkul, "Command5! Command19! Command35!", "Command19=&Clip Command20=&Quit");
  EXPECT_EQ(platform.clipboard, "5");
  auto& prev = program.Windows().Get<Prev>();
  ExpectState(prev, "", "Command42=('Do textu') Command43=('Do textu') Command44=('Do textu') Command46='Do textu'");
  platform.answers = {Answer::kNo, Answer::kNo, Answer::kYes};
  ExpectState(kalkul, "Command20!", "Cislo=5");
  EXPECT_FALSE(prev.isVisible() || kalkul.close());
  EXPECT_TRUE(kalkul.isVisible());
  EXPECT_EQ(platform.calls.back(), R"(message 276 "OPRAVDU UKONČIT Kalkulačku (Pelmar VEX) ?" "Konec")");
  Work(kalkul, "Command20!");
  EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(CalculatorTest, TheTwoWindowsLiveAndGoTogether) {
  Work(kalkul, "Command4! Command35!");
  Work(prev, "Command1! Command38! Command41!");
  text.SetText("xy");
  text.Select(1, 2);
  ExpectState(kalkul, "Command19!", "Cislo=1");
  Work(prev, "Command46!");
  EXPECT_EQ(text.Text(), "x1Iy");
  Work(kalkul, "Command20!");
  EXPECT_FALSE(kalkul.isVisible() || prev.isVisible());
  ExpectState(kalkul, "Command35!", "Cislo=1");
  EXPECT_TRUE(prev.isVisible());
  kalkul.Present();
  kalkul.close();
  EXPECT_FALSE(prev.isVisible());
  EXPECT_EQ(program.Windows().Find<Kalkul>(), nullptr);
  ExpectState(program.Windows().Get<Kalkul>(), "", "Cislo=0");
  ExpectState(prev, "", "Label1=1");
}

TEST_F(CalculatorTest, EachKeypadAndTheKeyboardWriteAField) {
  for (int key = 1; key <= 34; ++key) Press(prev, {key});
  ExpectState(prev, "", "Label1=123456789 Label3=123456789 Label6=12345670 Label8=");
  Press(prev, {36, 36, 36, 36, 36, 36, 36, 36, 36, 20, 21, 22, 23, 24, 25, 26, 35, 36, 37});
  ExpectState(prev, "", "Label1=12345678 Label3=ABCDEF Label6=1234567");
  ExpectState(prev, "Command39! Command42! Command43! Command44!", "Label1=11259375 Label6=52746757");
  EXPECT_EQ(text.Text(), "11259375ABCDEF52746757");
  ExpectState(prev, "Label3:\b\b\b\b\b\b1ffg\b\r", "Label1=31 Label3=1F Label6=37 Label8=XXXI");
  ExpectState(prev, "Label6:189\r", "Label1=249 Label3=F9 Label6=371 Label8=CCXXXXVIIII");
}

TEST_F(CalculatorTest, ANewConversionGivesUpTheOneAtWork) {
  platform.answers = {Answer::kOk};
  ExpectState(prev, "Label3:fffffffff\r", "Label1=0 Label3=FFFFFFFFF Label6=0 Label8=");  // too large
  EXPECT_TRUE(platform.answers.empty());
  const QSignalSpy roman(Named(prev, "Label8"), SIGNAL(textChanged(QString)));
  // What is inside happens while the letters of 999,999,999 are counted out.
  Inside([this] { Work(prev, "Label1:\b\b\b\b\b\b\b\b\r"); });
  ExpectState(prev, "Label1:999999999\r", "Label1=9 Label3=9 Label6=11 Label8=VIIII");
  EXPECT_EQ(roman.count(), 1);
  Inside([this] { prev.hide(); });
  ExpectState(prev, "Label1:99999999\r", "Label1=999999999 Label8=VIIII");
  prev.Present();
  Work(prev, "Command38! Command46!");
  EXPECT_EQ(Find<QLineEdit>(prev, "Label8")->text().size(), 32767);  // what can be shown; the document gets it all
  EXPECT_EQ(text.Size(), 999999u + 15);
}

// The lock files are real, all others lie in the scripted platform.
struct PoznamkaTest : testing::Test {
  QTemporaryDir folder;
  ScriptedPlatform platform;
  FileNumber file_number;
  SettingsRecord settings;
  PlainView view;
  std::unique_ptr<Poznamka> notes;
  int ends = 0;

  PoznamkaTest() {
    platform.install_folder = Utf8FromQString(folder.path()) + "/";
    settings.AutosnapDistance = 240;
    view.place = {1500, 1500, 3000, 4500};
    view.look = {"Courier New", 0, 0, 14, true, false};
  }
  [[nodiscard]] std::string& File(const std::string& name = "notes.dat") {
    return platform.files[platform.install_folder + name];
  }
  [[nodiscard]] QStringList Locks() const {
    return QDir(folder.path()).entryList({QStringLiteral("notes-rescue-*")}, QDir::Files);
  }
  // A file of a copy that died: a real one tells that it is there, its bytes are the platform's.
  void LeaveBehind(const char* name, const RescueRecord& record) {
    QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly);
    File(name) = RescueBytes(kNotesRescue, record);
  }
  // Opens the notes over what is stored.
  void Open(const NotesRecord& record, StartMode mode = StartMode::kEditor) {
    File() = NotesBytes(record);
    notes = std::make_unique<Poznamka>(
        Poznamka::Surroundings{platform, file_number, settings, view, nullptr, mode, [this] { ++ends; }});
    notes->Present();
  }
};

TEST_F(PoznamkaTest, KeepsFivePagesAndStoresThemAtTheEnd) {
  Open({{"first", "second"}});
  EXPECT_TRUE(notes->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  const QFont font = Named(*notes, "Text1")->font();
  EXPECT_TRUE(font.pointSize() == 14 && font.bold());
  notes->Buffer().Type("my ");
  ExpectState(*notes, "TabStrip1=1", "Text1=second");
  ASSERT_TRUE(QTest::qWaitForWindowActive(notes.get()));
  QTest::keyClick(notes.get(), Qt::Key_5, Qt::AltModifier);
  ExpectState(*notes, "", "TabStrip1=4");
  // A Czech keyboard has other characters on the keys of the numbers.
  for (const auto& [code, tab] : {std::pair(11u, "TabStrip1=1"), {14u, "TabStrip1=4"}, {15u, "TabStrip1=4"}}) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Plus, Qt::AltModifier, code, 0, 0, QStringLiteral("+"));
    QCoreApplication::sendEvent(Named(*notes, "Text1"), &press);
    ExpectState(*notes, "", tab);
  }
  Work(*notes, "Text1='one two'");
  notes->Buffer().Select(0, 3);
  Work(*notes, "Copy!");
  const QString tip = notes->findChild<QAction*>(QStringLiteral("Copy"))->toolTip();
  EXPECT_EQ(tip, QStringLiteral("Kopírovat výbět"));  // required: misspelled
  notes->Buffer().Select(4, 7);
  ExpectState(*notes, "Paste!", "Text1='one one'");
  EXPECT_EQ(File(), NotesBytes({{"first", "second"}}));  // only the close writes
  platform.TakeCalls();
  Work(*notes, "Close!");
  EXPECT_EQ(File(), NotesBytes({{"my first", "second", "", "", "one one"}}));
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(platform.calls.size(), 1u);  // the write, and no question
}

TEST_F(PoznamkaTest, AnOverlongPageIsRefusedAndTheWholeProgramAsksBehindTheWrite) {
  Open({{"first", "second"}}, StartMode::kNotes);
  notes->Buffer().SetText(std::string(kLongestNote + 1, 'x'));
  platform.answers = {Answer::kOk, Answer::kOk};
  ExpectState(*notes, "TabStrip1=1", "TabStrip1=0");
  notes->close();
  EXPECT_TRUE(notes->isVisible() && platform.answers.empty());
  EXPECT_EQ(File(), NotesBytes({{"first", "second"}}));
  notes->Buffer().EraseAfter(1);
  platform.answers = {Answer::kNo, Answer::kYes};
  platform.on_message = [this] { EXPECT_EQ(File(), NotesBytes({{std::string(kLongestNote, 'x'), "second"}})); };
  notes->close();
  EXPECT_TRUE(notes->isVisible() && ends == 0);
  EXPECT_EQ(platform.calls.back(), "message 276 \"OPRAVDU UKONČIT Poznámky (Pelmar VEX) ?\" \"Konec\"");
  notes->close();
  EXPECT_EQ(ends, 1);
}

TEST_F(PoznamkaTest, WhatAnotherCopyStoredMeanwhileStays) {
  Open({{"first", "second"}}, StartMode::kNotes);
  notes->Buffer().Type("my ");
  File() = NotesBytes({{"their first", "their second", "", "x", "y"}});
  platform.answers = {Answer::kOk, Answer::kNo, Answer::kYes};
  notes->close();
  const std::string both = NotesBytes({{"their first", "their second", "my first", "x", "y"}});
  EXPECT_EQ(File(), both);
  ExpectState(*notes, "", "Text1='their first'");
  notes->close();  // says it once, and keeps nothing a third time
  EXPECT_EQ(File(), both);
  EXPECT_TRUE(platform.answers.empty());
}

TEST_F(PoznamkaTest, WhatIsNotStoredIsKeptUntilTheClose) {
  Open({});
  Work(*notes, "Text1=typed");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Locks().isEmpty(); }, 2000));
  notes.reset();  // an end of the program without a close
  const auto kept = platform.files.upper_bound(platform.install_folder + "notes-rescue-");
  ASSERT_NE(kept, platform.files.end());
  EXPECT_EQ(ReadRescue(kNotesRescue, kept->second), (RescueRecord{1, {{1, "", "typed"}}}));
}

TEST_F(PoznamkaTest, ADeadCopysPagesComeBackButStayUnstored) {
  LeaveBehind("notes-rescue-1-1.pelmar", {2, {{1, "first", "FIRST"}, {2, "", "SECOND"}}});
  LeaveBehind("notes-rescue-2-1.pelmar", {1, {{1, "first", "another first"}, {3, "", ""}}});  // the last is known
  Open({{"first"}});
  platform.answers = {Answer::kYes};
  platform.TakeCalls();
  notes->OfferRescued();
  EXPECT_EQ(
      platform.calls[0],
      "message 52 \"Poznámky minule nebyly uloženy.\r\nPočet zachovaných stránek: 3.\r\nVrátit je do poznámek ?\" "
      "\"Záchrana\"");
  EXPECT_EQ(Locks().size(), 1);  // the lock of what this copy keeps
  ExpectState(*notes, "", "TabStrip1=1 Text1=SECOND");
  EXPECT_EQ(File(), NotesBytes({{"first"}}));
  notes->OfferRescued();  // asked once
  notes->close();
  EXPECT_EQ(File(), NotesBytes({{"FIRST", "SECOND", "another first"}}));
  EXPECT_EQ(Locks(), QStringList());
}

TEST_F(AccessoryTest, TheNotesHoldACheckpoint) {
  text.SetText("kept");
  Work(program.Main(), "mnu_chp_s!");
  text.SetText("spoilt");
  platform.answers = {Answer::kYes};
  Work(program.Main(), "mnu_chp_r! mnu_chp_v!");
  EXPECT_EQ(text.Text(), "kept");
  EXPECT_TRUE(program.Windows().Get<Poznamka>().isVisible());
}

TEST_F(PoznamkaTest, TheTickDocksAndSnapsAndRestsWhileNothingMoves) {
  Open({});
  const auto* tabs = notes->findChild<QTabBar*>();
  for (const auto& [width, caption] : {std::pair(900, "Poznámka 1 Poznámka 5"), {200, "1 5"}, {450, "1 5"}}) {
    notes->resize(width, 300);
    EXPECT_EQ((tabs->tabText(0) + u' ' + tabs->tabText(4)).toStdString(), caption) << width;
  }
  const int toolbar = Named(*notes, "Toolbar1")->height();
  EXPECT_EQ(Named(*notes, "TabStrip1")->geometry(), QRect(0, toolbar, 450, 300 - toolbar));
  EXPECT_EQ(Named(*notes, "Text1")->geometry(), QRect(0, toolbar + 22, 450, 300 - toolbar - 22));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(notes.get()));
  const auto place = [&] { return OuterGeometry(*notes); };
  const TwipsRect screen = ScreenTwips(*notes);
  const auto* timer = notes->findChild<QTimer*>(QStringLiteral("Timer1"));
  SetOuterPlace(*notes, {150, 225, 4500, 4500});
  EXPECT_EQ(timer->interval(), 10);
  EXPECT_TRUE(QTest::qWaitFor([&] { return place() == TwipsRect{0, 0, 4500, 4500}; }, 1000));
  ASSERT_TRUE(QTest::qWaitFor([&] { return timer->interval() > 10; }, 5000));
  Work(*notes, "Dock!");
  EXPECT_EQ(timer->interval(), 10);
  const TwipsRect beside{4500, 1500, screen.width - 4500, 4500};
  EXPECT_TRUE(QTest::qWaitFor([&] { return place() == beside; }, 1000));
  view.state = WindowMode::kMaximised;
  EXPECT_TRUE(QTest::qWaitFor([&] { return place().top == 0 && place().height == screen.height; }, 1000));
  EXPECT_EQ(place().left + place().width, screen.width);
  EXPECT_EQ(notes->width(), notes->minimumWidth());
  notes->showMaximized();
  EXPECT_TRUE(QTest::qWaitFor([&] { return place().width == screen.width; }, 1000));
  QTest::qWait(50);
  EXPECT_EQ(place().width, screen.width);  // it stays where it is then
  notes->hide();
  EXPECT_FALSE(timer->isActive());
}

}  // namespace
}  // namespace pelmar
