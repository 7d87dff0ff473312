#include <gtest/gtest.h>

#include <QSignalSpy>

#include "accessories/windows/kalkul.h"
#include "accessories/windows/prev.h"
#include "program/program.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "support/steps.h"

namespace pelmar {
namespace {

void Press(const QWidget& window, std::initializer_list<int> keys) {
  for (const int key : keys) Click(window, ("Command" + std::to_string(key)).c_str());
}

struct CalculatorTest : testing::Test {
  ScriptedPlatform platform;
  Program program{platform};
  TextBuffer& text = program.Main().Text().Buffer();
  Kalkul& kalkul = program.Windows().Get<Kalkul>();
  Prev& prev = program.Windows().Get<Prev>();

  CalculatorTest() {
    prev.Present();
    kalkul.Present();
  }
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
  EXPECT_EQ(Seen("Cislo:="), "25 +-*/lx");  // off: nothing
  EXPECT_EQ(Seen("Cislo:/5+"), "5+0 =");    // off, but who types chains: 25 / 5 first
  EXPECT_EQ(Seen("Cislo:3^2"), "8^2 =");
  EXPECT_EQ(Seen("Cislo:=/0-"), "0 +-*/lx");  // what can't be computed is told, and nothing waits
  EXPECT_TRUE(platform.answers.empty());
  EXPECT_EQ(Seen("Cislo:5-7=^3,0\r"), "-8 +-*/lx");
  EXPECT_EQ(Seen("Cislo:\b"), "- +-*/lx");
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

TEST(CalculatorAlone, AsksBeforeItEnds) {
  ScriptedPlatform platform;
  SettingsRecord settings;
  settings.UserName = settings.UserEmail = "jan";
  platform.files["/install/pelmar.ini"] = SettingsBytes(settings);
  Program program(platform);
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

}  // namespace
}  // namespace pelmar
