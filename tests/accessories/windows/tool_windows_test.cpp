// Morse, character table and keyboard: what reaches the document by menu, mouse and keys.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include "accessories/windows/code_grid.h"
#include "accessories/windows/klavesnice.h"
#include "accessories/windows/kod.h"
#include "accessories/windows/morse.h"
#include "platform/qt/controls/key_cap.h"
#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(MorseWindow, CollectsSigns) {
  ScriptedPlatform platform;
  Morse morse(platform, nullptr);
  morse.Present();
  EXPECT_EQ(morse.property("Tag").toString(), QStringLiteral("_AUTOSNAP"));
  auto* box = Find<TextBox>(morse, "Text1");
  const auto pick = [&morse](const char* item) { Find<QAction>(morse, item)->trigger(); };
  for (const char* item : {"mnuCH", "mnu0", "mnumorcz7", "mnumoapo", "mnurorumím"}) pick(item);
  EXPECT_EQ(box->Text(), "----/-----/-.../.---./...-./");
  box->Buffer().Select(2, 4);
  pick("mnue");  // before the selection, which stays
  EXPECT_EQ(box->Text(), "--./--/-----/-.../.---./...-./");
  box->SetText({});
  QTest::keyClicks(box, QStringLiteral("Ab!"));
  QTest::keyClick(box, Qt::Key_Return);
  QTest::keyClick(box, Qt::Key_Space);
  QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(box->Text(), ".-/-.../-..-./");
  EXPECT_EQ(box->SelLength(), 14);
  platform.clipboard = "sos";
  pick("mnu_clipmorse");
  EXPECT_EQ(box->Text(), ".../---/.../");
  platform.TakeCalls();
  box->Buffer().Select(0, 1);
  pick("mnuMakeMorse");
  EXPECT_EQ(box->Text(), "//../---/.../");
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{"busy 1", "busy 0"}));
}

struct KeyboardTest : testing::Test {
  TextBuffer text;
  Klavesnice keyboard{text, nullptr};

  KeyboardTest() {
    keyboard.Present();
    keyboard.activateWindow();
  }
  [[nodiscard]] std::string Take() {
    std::string taken = text.Text();
    text.SetText({});
    return taken;
  }
};

TEST_F(KeyboardTest, EachKeyTypesItsCharacter) {
  // By the names Command3, Command4 ...; a full stop stands for a key that is none of these.
  const std::string letters = "qwertzuiopasdfghjklyxcvbnm";
  for (std::size_t i = 0; i < letters.size(); ++i) Click(keyboard, ("Command" + std::to_string(i + 3)).c_str());
  EXPECT_EQ(Take(), letters);
  Click(keyboard, "Command30");
  for (int i = 32; i <= 43; ++i) Click(keyboard, ("Command" + std::to_string(i)).c_str());
  EXPECT_EQ(Take(), "óěščřžýáíéťúů"_w);
  Click(keyboard, "Command31");
  for (int i = 44; i <= 68; ++i)
    if (i != 50 && i != 51) Click(keyboard, ("Command" + std::to_string(i)).c_str());
  EXPECT_EQ(Take(),
            ";,.)(!?\\%741852963"
            "0-+*/=");
  for (const char* name : {"Command1", "Command2", "Command29", "Command51"}) Click(keyboard, name);
  EXPECT_EQ(Take(), "\r\n\t \r\n");
}

TEST_F(KeyboardTest, ShiftIsOneStateAndStays) {
  Click(keyboard, "Check2");
  EXPECT_TRUE(Find<QCheckBox>(keyboard, "Check1")->isChecked());
  Click(keyboard, "Command34");
  Click(keyboard, "Command54");  // a digit
  Click(keyboard, "Command30");
  EXPECT_EQ(Take(), "Č7Ó"_w);
  Click(keyboard, "Check1");
  EXPECT_FALSE(Find<QCheckBox>(keyboard, "Check2")->isChecked());
  Click(keyboard, "Command34");
  EXPECT_EQ(Take(), "č"_w);
}

TEST_F(KeyboardTest, ASelectionIsPushedOn) {
  text.SetText("abcd");
  text.Select(1, 3);
  Click(keyboard, "Command18");
  EXPECT_EQ(text.Text(), "ahbcd");
  EXPECT_EQ(text.Caret(), 2u);
  EXPECT_FALSE(text.HasSelection());
}

// As dead keys and input methods give it.
void Compose(QWidget& receiver, const QString& letters) {
  EXPECT_TRUE(receiver.testAttribute(Qt::WA_InputMethodEnabled));
  QInputMethodEvent event(QString(), {});
  event.setCommitString(letters);
  QCoreApplication::sendEvent(&receiver, &event);
}

TEST_F(KeyboardTest, ComposedLettersLandInTheDocument) {
  Compose(keyboard, QString(QChar(u'\u0148')));
  Find<KeyCap>(keyboard, "Command3")->setFocus();
  Click(keyboard, "Check1");
  Compose(*Find<KeyCap>(keyboard, "Command3"), QStringLiteral("ďo\u0301😀"));
  EXPECT_EQ(Take(), "ňĎÓ?"_w);
}

TEST_F(KeyboardTest, PhysicalKeysLandInTheDocument) {
  EXPECT_EQ(keyboard.focusWidget(), &keyboard);
  Click(keyboard, "Check1");
  QTest::keyClicks(&keyboard, QStringLiteral("a 1"));
  QTest::keyClick(&keyboard, Qt::Key_Return);
  QTest::keyClick(&keyboard, Qt::Key_Backspace);
  EXPECT_EQ(Take(), "A 1\r\b");  // required: characters as they are
  // A click leaves the keyboard where it is; after the tabulator the space bar works the key.
  auto* q = Find<KeyCap>(keyboard, "Command3");
  QTest::mouseClick(q, Qt::LeftButton);
  EXPECT_EQ(keyboard.focusWidget(), &keyboard);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&keyboard));
  q->setFocus();
  QTest::keyClick(q, Qt::Key_Right);
  QWidget* w = keyboard.focusWidget();
  EXPECT_EQ(w->objectName(), QStringLiteral("Command4"));
  QTest::keyClick(w, Qt::Key_Space);
  QTest::keyClick(w, Qt::Key_Return);
  EXPECT_EQ(Take(), "QW\r");
  EXPECT_EQ(keyboard.focusWidget(), &keyboard);
  QTest::keyClick(&keyboard, Qt::Key_Escape);
  EXPECT_FALSE(keyboard.isVisible());
  EXPECT_EQ(Take(), "");
}

struct CharTableTest : testing::Test {
  TextBuffer text;
  std::string strokes;
  Kod kod{text, [this](const QKeyEvent& key) { strokes += TextFromQString(key.text()); }, nullptr};
  CodeGrid* grid = Find<CodeGrid>(kod, "Picture1");

  CharTableTest() { kod.Present(); }
  QPoint Cell(int code) const {
    return {(code % 16 * 2 + 1) * grid->width() / 32, (code / 16 * 2 + 1) * grid->height() / 32};
  }
  void ClickCell(int code) { QTest::mouseClick(grid, Qt::LeftButton, {}, Cell(code)); }
  QString Label(const char* name) const { return Find<QLabel>(kod, name)->text(); }
};

TEST_F(CharTableTest, ThreeWaysOfInserting) {
  text.SetText("abc");
  text.Select(1, 2);
  ClickCell(0xC8);
  ClickCell(0);
  ClickCell(13);
  EXPECT_EQ(text.Text(), "aČ\rbc"_w);
  Click(kod, "Option2");
  ClickCell(0xC8);
  ClickCell(7);
  EXPECT_EQ(text.Text(), "aČ\r&#200;&#7;bc"_w);
  Click(kod, "Option3");
  const std::string before = text.Text();
  // Each character of the page comes through the collecting box, control characters too.
  std::string all;
  for (int code = 1; code < 256; ++code) {
    ClickCell(code);
    all += CharOf(code);
  }
  EXPECT_EQ(text.Text(), before);
  auto* collected = Find<QLineEdit>(kod, "Text1");
  collected->setSelection(0, 1);
  Find<QScrollBar>(kod, "HScroll1")->setValue('&');
  EXPECT_EQ(Label("Label1"), QStringLiteral("38"));
  Click(kod, "Command3");
  text.SetText({});
  Click(kod, "Command4");
  EXPECT_EQ(text.Text(), "&" + all);
  EXPECT_TRUE(collected->text().isEmpty());
  text.Select(0, 3);
  Click(kod, "Command4");  // nothing collected: nothing changes
  EXPECT_EQ(text.SelLength(), 3u);
  Find<QScrollBar>(kod, "HScroll1")->setValue(0);
  Click(kod, "Command3");
  EXPECT_TRUE(collected->text().isEmpty());
}

TEST_F(CharTableTest, PointerShowsTheCode) {
  const struct {
    int code;
    const char *decimal, *hex, *reference;
  } cases[] = {
      {0, "0", "00", "&#0;"}, {15, "15", "0F", "&#15;"}, {16, "16", "10", "&#16;"}, {255, "255", "FF", "&#255;"}};
  for (const auto& c : cases) {
    QTest::mouseMove(grid, Cell(c.code));
    EXPECT_EQ(Label("Label6"), QLatin1String(c.decimal));
    EXPECT_EQ(Label("Label7"), QLatin1String(c.hex));
    EXPECT_EQ(Label("Label8"), QLatin1String(c.reference));
  }
  EXPECT_TRUE(text.Empty());
  Find<QComboBox>(kod, "Combo1")->setCurrentText(QStringLiteral("Courier New"));
  for (const char* name : {"Picture1", "Picture2", "Label2", "Text1"})
    EXPECT_EQ(Find<QWidget>(kod, name)->font().family(), QStringLiteral("Courier New")) << name;
}

TEST_F(CharTableTest, CodesWithoutAPictureShowByName) {
  QTest::qWait(1);
  const QSize size = kod.size();
  const struct {
    int code;
    const char *shown, *collected;
  } cases[] = {{9, "HT", "\t"}, {10, "LF", "\n"}, {13, "CR", "\r"}, {'A', "A", "A"}};
  auto* collected = Find<QLineEdit>(kod, "Text1");
  for (const auto& c : cases) {
    Find<QScrollBar>(kod, "HScroll1")->setValue(c.code);
    EXPECT_EQ(Label("Label2"), QLatin1String(c.shown));
    collected->clear();
    Click(kod, "Command3");
    EXPECT_EQ(collected->text(), QLatin1String(c.collected));
    QTest::qWait(1);
    EXPECT_EQ(kod.size(), size) << c.code;  // the window doesn't jump about
  }
  const QImage picture = grid->grab().toImage();
  const auto is_blank = [&](int code) {
    const QRect inner(Cell(code) - QPoint(8, 6), QSize(16, 12));
    const QImage cell = picture.copy(inner);
    for (int y = 0; y < cell.height(); ++y)
      for (int x = 0; x < cell.width(); ++x)
        if (cell.pixel(x, y) != cell.pixel(0, 0)) return false;
    return true;
  };
  EXPECT_FALSE(is_blank(9));
  EXPECT_FALSE(is_blank(10));
  EXPECT_TRUE(is_blank(0));
  EXPECT_TRUE(is_blank(' '));
}

TEST_F(CharTableTest, AFontsNameStaysAsItIsTyped) {
  Click(kod, "Option3");
  auto* font = Find<QComboBox>(kod, "Combo1");
  font->clearEditText();
  QTest::keyClicks(font, QStringLiteral("Courier"));
  EXPECT_EQ(font->currentText(), QStringLiteral("Courier"));
}

TEST_F(CharTableTest, TypedKeysGoToTheMainWindow) {
  grid->setFocus();
  QTest::keyClicks(grid, QStringLiteral("a "));
  QTest::keyClick(grid, Qt::Key_Return);
  EXPECT_EQ(strokes, "a \r");
  // Enter on the cell that the arrow keys went to chooses it.
  QTest::keyClick(grid, Qt::Key_Right);
  QTest::keyClick(grid, Qt::Key_Down);
  QTest::keyClick(grid, Qt::Key_Return);
  EXPECT_EQ(text.Text(), "\x10");
  auto* field = Find<QLineEdit>(kod, "Text1");
  field->setFocus();
  QTest::keyClicks(field, QStringLiteral("b"));
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(strokes, "a \rb\r");
  EXPECT_EQ(field->text(), QStringLiteral("b"));
  // Composed letters go the same ways.
  strokes.clear();
  Compose(*grid, QStringLiteral("ň"));
  Compose(*field, QStringLiteral("ď"));
  EXPECT_EQ(strokes, "ňď"_w);
  EXPECT_EQ(field->text(), QStringLiteral("bď"));
  field->setText(QStringLiteral("b"));
  strokes = "a \rb\r";
  auto* option = Find<QRadioButton>(kod, "Option3");
  option->setFocus();
  QTest::keyClick(option, Qt::Key_Space);
  EXPECT_TRUE(option->isChecked());
  QTest::keyClicks(field, QStringLiteral("c"));
  EXPECT_EQ(strokes, "a \rb\r");
  EXPECT_EQ(field->text(), QStringLiteral("bc"));
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_FALSE(kod.isVisible());
}

TEST(ToolWindows, AStrokeIsARealKeyOfTheMainWindow) {
  ScriptedPlatform platform;
  Program program(platform);
  program.Main().show();
  TextBuffer& text = program.Main().Text().Buffer();
  text.SetText("abc");
  text.Select(0, 2);
  program.Main().findChild<QAction*>(QStringLiteral("mnuASCII"))->trigger();
  auto& kod = program.Windows().Get<Kod>();
  EXPECT_TRUE(kod.isVisible());
  auto* grid = Find<CodeGrid>(kod, "Picture1");
  grid->setFocus();
  QTest::keyClicks(grid, QStringLiteral("x"));
  QTest::keyClick(grid, Qt::Key_Return);
  QTest::keyClicks(grid, QStringLiteral("yz"));
  QTest::keyClick(grid, Qt::Key_Backspace);
  EXPECT_EQ(text.Text(), "x\r\nyc");  // typed over the selection, a whole line end, one character taken back
  text.Undo();
  EXPECT_EQ(text.Text(), "x\r\nyzc");
}

}  // namespace
}  // namespace pelmar
