// Morse, keyboard, character table and analysis: what comes out by menu, mouse and keys.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QScrollBar>

#include "accessories/windows/analytic.h"
#include "accessories/windows/color_dialog.h"
#include "accessories/windows/klavesnice.h"
#include "accessories/windows/kod.h"
#include "accessories/windows/morse.h"
#include "program/program.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(ToolWindows, EachItemShowsItsWindowUntilItsLastButton) {
  ScriptedPlatform platform;
  platform.files["/share/pelmar.txt"] = "help";
  Program program(platform);
  const QStringList words = Words(
      "mnucode! ZaKod Command2! mnu_encrypt_shift! ShiftKod Command3! Mnu_Encrypt_Confeld! Confeld Command3! "
      "mnu_rnd_encrypt! RND_Sifra Command7! Mnu_Hack_cry! CHT Command2! mnuASCII! kod Command2! "
      "mnuklavesnice! Klavesnice Command50! mnucalk! Kalkul Command20! mnu_analysis! Analytic Command2! "
      "mnupozn! Poznamka Close! mnumorse! Morse Text1:\x1b");
  for (int i = 0; i < words.size(); i += 3) {
    Work(program.Main(), words[i].toUtf8());
    QString shown;
    program.Windows().ForEach([&](QWidget& window) {
      if (!window.isVisible()) return;
      shown += window.objectName();
      Work(window, words[i + 2].toUtf8());
      EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(shown, words[i + 1]) << words[i].toStdString();
  }
}

TEST(MorseWindow, CollectsSigns) {
  ScriptedPlatform platform;
  const Morse morse(platform, nullptr);
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
  EXPECT_EQ(platform.calls, (std::vector<std::string>{"busy 1", "busy 0"}));
}

// As dead keys and input methods give it.
void Compose(QWidget* receiver, const QString& letters) {
  EXPECT_TRUE(receiver->testAttribute(Qt::WA_InputMethodEnabled));
  QInputMethodEvent event(QString(), {});
  event.setCommitString(letters);
  QCoreApplication::sendEvent(receiver, &event);
}

struct KeyboardTest : testing::Test {
  TextBuffer text;
  Klavesnice keyboard{text, nullptr};

  KeyboardTest() { keyboard.Present(); }
  [[nodiscard]] std::string Take() {
    std::string taken = text.Text();
    text.SetText({});
    return taken;
  }
  // What all keys together type, from Command1 on.
  std::string OfAllKeys() {
    for (int key = 1; key <= 68; ++key)
      if (key != 50) Click(keyboard, ("Command" + std::to_string(key)).c_str());
    return Take();
  }
};

TEST_F(KeyboardTest, EachKeyTypesItsCharacterInEitherCase) {
  const std::string plain(
      "\r\n\tqwertzuiopasdfghjklyxcvbnm ó;ěščřžýáíéťúů,.)(!?\r\n\\%741852963"
      "0-+*/="_w);
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

struct CharTableTest : testing::Test {
  ScriptedPlatform platform;
  Program program{platform};
  TextBuffer& text = program.Main().Text().Buffer();
  Kod& kod = program.Windows().Get<Kod>();
  QWidget* grid = Named(kod, "Picture1");

  CharTableTest() { kod.Present(); }
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
  Work(kod, "Picture1:'x \ryz\b'");
  EXPECT_EQ(text.Text(), "x \r\nyc");  // typed over the selection, a whole line end, one character taken back
  EXPECT_TRUE(text.Undo());
  EXPECT_EQ(text.Text(), "x \r\nyzc");
  // Enter on the cell that the arrow keys went to chooses it.
  text.SetText({});
  Work(kod, "Picture1:→↓\r");
  Compose(grid, QStringLiteral("ň"));
  Work(kod, "Text1:b\r");
  Compose(Named(kod, "Text1"), QStringLiteral("ď"));
  ExpectState(kod, "", "Text1=bď");  // a field that has the keyboard takes it too
  ExpectState(kod, "Option3:' ' Text1:c", "Option3=1 Text1=bďc");
  EXPECT_EQ(text.Text(), "\x10ňb\r\nď"_w);
  Work(kod, "Text1:\x1b");
  EXPECT_FALSE(kod.isVisible());
}

TEST(ColorDialogWindow, EachButtonHasItsCommand) {
  ScriptedPlatform platform;
  platform.draws = {0.25, 0.5, 0.75};
  const ColorDialog dialog(platform, nullptr);
  std::string colors;
  for (int button = 3; button <= 11; ++button) {
    Work(dialog, "VScroll10=10 VScroll11=60 VScroll12=200");
    Click(dialog, ("Command" + std::to_string(button)).c_str());
    colors += State(dialog, "Label11").substr(8) + State(dialog, "Picture3").substr(9) + ' ';
  }
  EXPECT_EQ(colors,
            "#F5C337#f5c337 #5A5A5A#5a5a5a #4080C0#4080c0 #0936B4#0936b4 #0B42DC#0b42dc #3CC80A#3cc80a "
            "#0032BE#0032be #4173FF#4173ff #3062EE#3062ee ");
}

struct Document : testing::Test {
  TextBuffer document;
  Document() { document.SetText("bba"); }
};

struct AnalyticTest : Document {
  Analytic dialog{document, nullptr};
  QListWidget* list = Find<QListWidget>(dialog, "List1");
  QWidget* graph = Find<QWidget>(dialog, "Pic");

  AnalyticTest() { dialog.Present(); }
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
  document.SetText("cccc");
  EXPECT_EQ(Seen(""), "2: 001 00002 066,67 098 \"b\"");
  EXPECT_EQ(Seen("Command1!"), "1: 001 00004 100,00 099 \"c\"");
  document.SetText("");
  EXPECT_EQ(Seen("Command1!"), "0: 001 00004 100,00 099 \"c\"");  // required: the list keeps its rows
  EXPECT_EQ(Seen("Text1=zz"), "1: 001 00002 100,00 122 \"z\"");
  document.SetText("  a");
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
  document.SetText("bbccca");
  ASSERT_TRUE(QTest::qWaitFor([&] { return list->item(0)->text().contains(QStringLiteral("099")); }, 3000));
  EXPECT_EQ(Selected(), "097");
  EXPECT_EQ(list->verticalScrollBar()->value(), 100);
  EXPECT_TRUE(Named(dialog, "Text1")->hasFocus());
}

TEST_F(AnalyticTest, FindsACharacterInTheListAndAPlaceInTheGraph) {
  ExpectState(dialog, "", "Command3=(&Hledej)");
  ExpectState(dialog, "Text2=ř Text2:\r", "Command3=&Hledej");
  EXPECT_EQ(Selected(), "248");
  Work(dialog, "Text2=b Command3!");
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
  ExpectState(dialog, "", "Label2='Poloha: 0 Znak: \"NUL\"'");
  QTest::mouseClick(Named(dialog, "Picture2"), Qt::LeftButton, {}, QPoint(3, 3));
  ExpectState(dialog, "", "Label2=");
}

}  // namespace
}  // namespace pelmar
