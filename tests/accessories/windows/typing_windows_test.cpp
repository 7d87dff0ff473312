// The windows that type into the document: Morse, the on-screen keyboard, the character table.
#include <QLineEdit>

#include "accessories/windows/klavesnice.h"
#include "accessories/windows/kod.h"
#include "accessories/windows/morse.h"
#include "support/program_test.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST_F(ProgramTest, MorseCollectsSigns) {
  const auto& morse = Open<Morse>();
  TextBuffer& box = Find<TextBox>(morse, "Text1")->Buffer();
  platform.clipboard = "sos";
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"mnumorcz1! mnumorcz2! mnumorcz3! mnumorcz7! mnumorcz8! mnumorcz9! mnumorcz0!", "|",
       ".-/..-/...-/-.../-../-./-/|"},
      {"mnumotec! mnumocar! mnumoapo! mnumodvo! mnumopom! mnumoota! mnumozlom! mnumokri! mnumorzavor!", "|",
       "....../.-.-.-/.---./---.../-....-/..--../-..-./.-.-./-.--.-/|"},
      {"mnusos! mnuend! mnupozor! mnurorumím! mnunerorum! mnumorsemiscPoma! mnumorsemiscOpak! mnumorsemiscCekej! "
       "mnumorsemiscOddel! mnumorsemiscPoZpra!",
       "|", "...---.../...-.-/-.-.-./...-./...../-.-.-../..--../.-.../-...-/-.-/|"},
      {"mnue!", "-/[../|", "-/./|../"},
      {"Text1:'Ab!\r '", "|", ".-/-.../-..-./|"},  // Enter and "!" have no sign
      {"mnu_clipmorse!", "-/[./|", "-/.../---/.../|"},
      {"mnuMakeMorse!", "[.|../", "//|../"},
  };
  for (const auto& [steps, before, after] : cases) {
    PutMarked(box, before);
    Work(morse, steps);
    EXPECT_EQ(Marked(box), after) << steps;
  }
}

struct KeyboardTest : ProgramTest {
  Klavesnice& keyboard = Open<Klavesnice>();

  // Clicks Command1 to Command68, except the one that closes the window. Each has to type its character.
  void ExpectKeysType(std::string_view characters) {
    ASSERT_EQ(characters.size(), 68u);
    for (std::size_t key = 1; key <= characters.size(); ++key) {
      if (key == 50) continue;
      const std::string name = "Command" + std::to_string(key);
      text.SetText({});
      Work(keyboard, (name + '!').c_str());
      EXPECT_EQ(ShownText(text.Text()), ToUtf8(characters.substr(key - 1, 1))) << name;
    }
  }
};

constexpr std::string_view kKeys = "¶\tqwertzuiopasdfghjklyxcvbnm ó;ěščřžýáíéťúů,.)(!?_¶\\%7418529630-+*/="_w;

TEST_F(KeyboardTest, EachKeyTypesItsCharacter) { ExpectKeysType(kKeys); }

TEST_F(KeyboardTest, WithShiftLettersAreCapitalAndOtherKeysAreTheSame) {
  Work(keyboard, "Check1!");
  ExpectKeysType(ToUpper(kKeys));
  ExpectState(keyboard, "", "Check1=1");
}

TEST_F(KeyboardTest, BothShiftKeysAreOneState) {
  ExpectState(keyboard, "Check2!", "Check1=1 Check2=1");
  ExpectState(keyboard, "Check1!", "Check1=0 Check2=0");
}

TEST_F(KeyboardTest, AKeyTypesBeforeTheSelection) { ExpectDocument("mnuklavesnice", "Command18!", "a[bc|d", "ah|bcd"); }

TEST_F(KeyboardTest, PhysicalKeysTypeTheirCharacters) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&keyboard));
  Work(keyboard, "Check1!");
  QTest::keyClicks(&keyboard, QStringLiteral(" 1\r\b\t"));  // Tab moves the focus
  Work(keyboard, "Command3:'a '");                          // the key loses the focus
  Work(keyboard, "Command3:'↓ '");                          // the space bar clicks the key below
  EXPECT_EQ(text.Text(), " 1\r\bA A");  // required: Enter and Backspace type the characters 13 and 8
}

struct CharTableTest : ProgramTest {
  Kod& kod = Open<Kod>();
  QWidget* grid = Named(kod, "Picture1");

  [[nodiscard]] QPoint Cell(int code) const {
    return {(code % 16 * 2 + 1) * grid->width() / 32, (code / 16 * 2 + 1) * grid->height() / 32};
  }
  void Click(int code) const { QTest::mouseClick(grid, Qt::LeftButton, {}, Cell(code)); }
};

TEST_F(CharTableTest, AClickInsertsBeforeTheSelection) {
  const std::tuple<const char*, int, const char*> cases[] = {
      {"Option1!", 0xC8, "aČ|bc"},
      {"Option1!", 0, "a[b|c"},  // required: code 0 is never inserted
      {"Option2!", 0xC8, "a&#200;|bc"},
  };
  for (const auto& [option, code, after] : cases) {
    PutMarked(text, "a[b|c");
    Work(kod, option);
    Click(code);
    EXPECT_EQ(Marked(text), after) << option << " and a click on " << code;
  }
}

TEST_F(CharTableTest, EachCharacterIsCollectedAndSentUnchanged) {
  Work(kod, "Option3!");
  for (int code = 1; code < 256; ++code) {
    text.SetText({});
    Click(code);
    EXPECT_EQ(text.Text(), "") << code;
    ExpectState(kod, "Command4!", "Text1=");
    EXPECT_EQ(text.Text(), std::string(1, CharOf(code))) << code;
  }
}

TEST_F(CharTableTest, TheCharacterOfTheBarIsCollectedBeforeTheSelection) {
  Work(kod, "Text1=ab");
  Find<QLineEdit>(kod, "Text1")->setSelection(1, 1);
  ExpectState(kod, "HScroll1=38 Command3!", "Label1=38 Label2=& Text1=a&b");
  ExpectState(kod, "HScroll1=0 Command3!", "Label1=0 Label2= Text1=a&b");
}

TEST_F(CharTableTest, CollectedCharactersAreSentBeforeTheSelection) {
  ExpectDocument("mnuASCII", "Text1=x Command4!", "a[b|c", "ax|bc");
  ExpectDocument("mnuASCII", "Command4!", "a[b|c", "a[b|c");  // nothing is collected
}

TEST_F(CharTableTest, ThePointerShowsTheCode) {
  // Only an enlarged character reaches the lower part.
  const auto lower_part = [this] { return Named(kod, "Picture2")->grab().toImage().copy(0, 30, 84, 54); };
  QImage before = lower_part();
  for (const auto& [code, state] : {std::pair(0, "Label6=0 Label7=00 Label8=&#0;"),
                                    {15, "Label6=15 Label7=0F Label8=&#15;"},
                                    {16, "Label6=16 Label7=10 Label8=&#16;"},
                                    {255, "Label6=255 Label7=FF Label8=&#255;"}}) {
    QTest::mouseMove(grid, Cell(code));
    ExpectState(kod, "", state);
    const QImage preview = lower_part();
    EXPECT_FALSE(preview == std::exchange(before, preview)) << code;
  }
  EXPECT_EQ(Named(kod, "Picture2")->accessibleDescription(), QStringLiteral("˙, kód 255"));
}

TEST_F(CharTableTest, TheCellOfCodeZeroIsEmpty) {
  const QImage picture = grid->grab().toImage();
  const auto cell = [&](int code) { return picture.copy(QRect(Cell(code) - QPoint(8, 6), QSize(16, 12))); };
  EXPECT_TRUE(cell(0) == cell(' '));
  EXPECT_FALSE(cell(9) == cell(' '));
}

TEST_F(CharTableTest, AFontIsSetWhereCharactersAreShownAndItsNameStaysAsTyped) {
  ExpectState(kod, "Option3! Combo1= Combo1:Courier", "Combo1=Courier");
  for (const char* name : {"Picture1", "Picture2", "Label2", "Text1"})
    EXPECT_EQ(Named(kod, name)->font().family(), QStringLiteral("Courier")) << name;
}

TEST_F(CharTableTest, TypedKeysEditTheDocument) {
  ExpectDocument("mnuASCII", "Picture1:'x \ryz\b'", "[ab|c", "x ¶y|c");
  ExpectDocument("mnuASCII", "Picture1:→↓\r", "[ab|c", "¶|c");  // required: Enter on a selected cell too
  ExpectDocument("mnuASCII", "Option1:' x'", "[ab|c", " x|c");
  ExpectDocument("mnuASCII", "HScroll1=65 Command3:'\r '", "[ab|c", "[ab|c");  // the keys click the button
  ExpectState(kod, "", "Text1=AA");
}

TEST_F(CharTableTest, KeysTypedInTheFieldGoIntoTheDocumentTooIfClicksDo) {
  ExpectState(kod, "Text1:bň", "Text1=bň");
  EXPECT_EQ(text.Text(), "bň"_w);
  ExpectState(kod, "Option3:' ' Text1:c", "Option3=1 Text1=bňc");
  EXPECT_EQ(text.Text(), "bň"_w);
}

}  // namespace
}  // namespace pelmar
