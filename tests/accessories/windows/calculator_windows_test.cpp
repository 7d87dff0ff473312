#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "accessories/windows/kalkul.h"
#include "accessories/windows/prev.h"
#include "platform/qt/controls/text_box.h"
#include "program/program.h"
#include "support/controls.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

QString Field(const QWidget& window, const char* name) { return Find<QLineEdit>(window, name)->text(); }

struct KalkulTest : testing::Test {
  ScriptedPlatform platform;
  std::vector<std::string> doors;
  bool alone = testing::UnitTest::GetInstance()->current_test_info()->name() == std::string_view("RunsAlone");
  Kalkul kalkul{platform,
                alone,
                {[this](const std::string& number) { doors.push_back("hand over " + number); },
                 [this] { doors.emplace_back("show"); }, [this] { doors.emplace_back("hide"); },
                 [this] { doors.emplace_back("unload"); }, [this] { doors.emplace_back("end"); }},
                nullptr};

  KalkulTest() { kalkul.Present(); }
  [[nodiscard]] std::string Cislo() const { return Field(kalkul, "Cislo").toStdString(); }
  [[nodiscard]] std::string Pending() const {
    return Find<QLabel>(kalkul, "Label2")->text().toStdString() + Find<QLabel>(kalkul, "Label1")->text().toStdString();
  }
  // The operator keys and "=" that can be pressed, by their captions.
  [[nodiscard]] std::string On() const {
    std::string on;
    for (int key : {12, 13, 14, 15, 32, 33, 16})
      if (const auto* button = Find<QPushButton>(kalkul, ("Command" + std::to_string(key)).c_str());
          button->isEnabled())
        on += button->text().toStdString().substr(1, 1);
    return on;
  }
};

TEST_F(KalkulTest, ComputesByMouse) {
  EXPECT_EQ(On(), "+-*/lx");
  for (int digit : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}) Click(kalkul, ("Command" + std::to_string(digit)).c_str());
  EXPECT_EQ(Cislo(), "1234567890");
  Click(kalkul, "Command21");
  Click(kalkul, "Command22");
  Click(kalkul, "Command11");
  EXPECT_EQ(Cislo(), "23456789,");
  Click(kalkul, "Command23");
  Click(kalkul, "Command8");
  Click(kalkul, "Command32");
  EXPECT_EQ(On(), "x=");
  EXPECT_EQ(Pending(), "8L");
  Click(kalkul, "Command2");
  Click(kalkul, "Command16");
  EXPECT_EQ(Cislo(), "3");
  EXPECT_EQ(Pending(), "");
  EXPECT_EQ(On(), "+-*/lx");
  Click(kalkul, "Command13");
  EXPECT_EQ(On(), "=");
}

TEST_F(KalkulTest, EachFunctionKeyHasItsFunction) {
  const struct {
    const char *key, *from, *to;
  } cases[] = {
      {"Command17", "16", "4"},       {"Command18", "5", "25"}, {"Command28", "-3", "3"},
      {"Command31", "2,7", "2,5"},    {"Command24", "90", "1"}, {"Command25", "0", "1"},
      {"Command26", "0", "0"},        {"Command29", "45", "1"}, {"Command27", "7", "3,14159265358979"},
      {"Command34", "7", "2.718282"},
  };
  for (const auto& c : cases) {
    kalkul.SetNumber(c.from);
    Click(kalkul, c.key);
    EXPECT_EQ(Cislo(), c.to) << c.key;
  }
  platform.draws = {0.5};
  Click(kalkul, "Command30");
  EXPECT_EQ(Cislo(), "0,5");
}

TEST_F(KalkulTest, WorksByTheRealKeyboard) {
  auto* number = Find<QLineEdit>(kalkul, "Cislo");
  const auto type = [&](const char* keys) { QTest::keyClicks(number, QLatin1String(keys)); };
  type("12.5*2");
  QTest::keyClick(number, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(Cislo(), "25");
  type("=");    // off: nothing
  type("/5+");  // off, but who types chains: 25 / 5 first
  EXPECT_EQ(Pending(), "5+");
  platform.answers = {Answer::kOk};
  type("3^/0-");  // what can't be computed is told, and nothing waits
  EXPECT_TRUE(platform.answers.empty());
  EXPECT_EQ(Pending(), "");
  kalkul.SetNumber("5");
  type("^3,0");
  QTest::keyClick(number, Qt::Key_Return);
  EXPECT_EQ(Cislo(), "125");
  QTest::keyClick(number, Qt::Key_Backspace);
  EXPECT_EQ(Cislo(), "12");
  QTest::keyClick(number, Qt::Key_Delete);
  EXPECT_EQ(Cislo(), "0");
  // Arrow keys go over the keypad; space presses, Enter stays "=".
  ASSERT_TRUE(QTest::qWaitForWindowActive(&kalkul));
  auto* seven = Find<QPushButton>(kalkul, "Command7");
  seven->setFocus();
  QTest::keyClick(seven, Qt::Key_Down);
  EXPECT_EQ(kalkul.focusWidget()->objectName(), QStringLiteral("Command4"));
  QTest::keyClick(kalkul.focusWidget(), Qt::Key_Space);
  QTest::keyClick(kalkul.focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Cislo(), "4");
  QTest::keyClick(number, Qt::Key_Escape);
  EXPECT_FALSE(kalkul.isVisible());
  EXPECT_EQ(doors, std::vector<std::string>{"hide"});
}

TEST_F(KalkulTest, TheKeyboardStaysOnAKeyThatIsOn) {
  auto* plus = Find<QPushButton>(kalkul, "Command12");
  plus->setFocus();
  QTest::keyClick(plus, Qt::Key_Space);
  EXPECT_EQ(kalkul.focusWidget()->objectName(), QStringLiteral("Cislo"));
}

TEST_F(KalkulTest, RunsAlone) {
  EXPECT_EQ(Find<QPushButton>(kalkul, "Command19")->text(), QStringLiteral("&Clip"));
  EXPECT_EQ(Find<QPushButton>(kalkul, "Command20")->text(), QStringLiteral("&Quit"));
  Click(kalkul, "Command5");
  Click(kalkul, "Command19");
  platform.answers = {Answer::kNo, Answer::kNo};
  Click(kalkul, "Command20");
  EXPECT_TRUE(kalkul.isVisible());
  EXPECT_FALSE(kalkul.close());
  EXPECT_TRUE(kalkul.isVisible());
  EXPECT_EQ(Cislo(), "5");
  const std::string question = R"(message 276 "OPRAVDU UKONČIT Kalkulačku (Pelmar VEX) ?" "Konec")";
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{question, question}));
  EXPECT_EQ(doors, (std::vector<std::string>{"hand over 5", "hide", "hide", "hide"}));
  doors.clear();
  platform.answers = {Answer::kYes};
  Click(kalkul, "Command20");
  EXPECT_EQ(doors, (std::vector<std::string>{"hide", "hide", "end"}));
}

TEST(CalculatorWindows, LiveAndGoTogether) {
  ScriptedPlatform platform;
  Program program(platform);
  WindowRegistry& windows = program.Windows();
  TextBuffer& text = program.Main().Text().Buffer();
  program.Main().findChild<QAction*>(QStringLiteral("mnucalk"))->trigger();
  auto& kalkul = windows.Get<Kalkul>();
  Click(kalkul, "Command4");
  Click(kalkul, "Command35");
  auto& prev = windows.Get<Prev>();
  EXPECT_TRUE(prev.isVisible());
  Click(prev, "Command1");
  Click(prev, "Command38");
  Click(prev, "Command41");
  EXPECT_EQ(Field(kalkul, "Cislo"), QStringLiteral("1"));
  text.SetText("xy");
  text.Select(1, 2);
  Click(kalkul, "Command19");
  Click(prev, "Command46");
  EXPECT_EQ(text.Text(), "x1Iy");
  EXPECT_TRUE(platform.TakeCalls().empty());
  Click(kalkul, "Command20");
  EXPECT_FALSE(kalkul.isVisible() || prev.isVisible());
  EXPECT_EQ(Field(kalkul, "Cislo"), QStringLiteral("1"));
  Click(kalkul, "Command35");
  kalkul.Present();
  kalkul.close();
  EXPECT_FALSE(prev.isVisible());
  EXPECT_EQ(windows.Find<Kalkul>(), nullptr);
  EXPECT_EQ(Field(windows.Get<Kalkul>(), "Cislo"), QStringLiteral("0"));
  EXPECT_EQ(Field(prev, "Label1"), QStringLiteral("1"));
}

struct PrevTest : testing::Test {
  ScriptedPlatform platform;
  std::string sent;
  Prev prev{platform, false, {[this](const std::string& number) { sent += number + "."; }, {}}, nullptr};

  PrevTest() { prev.Present(); }
  [[nodiscard]] std::string Fields() const {
    std::string fields;
    for (const char* name : {"Label1", "Label3", "Label6", "Label8"}) fields += Field(prev, name).toStdString() + " ";
    return fields.substr(0, 80);
  }
  void Press(int from, int to) {
    for (int key = from; key <= to; ++key) Click(prev, ("Command" + std::to_string(key)).c_str());
  }
};

TEST_F(PrevTest, EachKeypadWritesItsField) {
  Press(1, 10);
  Press(11, 19);
  Press(27, 34);
  EXPECT_EQ(Fields(), "123456789 123456789 12345670  ");
  for (int i = 0; i < 9; ++i) Press(36, 36);
  Press(20, 26);
  Press(35, 37);
  EXPECT_EQ(Fields(), "12345678 ABCDEF 1234567  ");
  Press(39, 39);
  EXPECT_EQ(Field(prev, "Label1"), QStringLiteral("11259375"));
  EXPECT_EQ(Field(prev, "Label6"), QStringLiteral("52746757"));
  EXPECT_EQ(Field(prev, "Label8").size(), 11259 + 7);
  Press(42, 44);
  EXPECT_EQ(sent, "11259375.ABCDEF.52746757.");
}

TEST_F(PrevTest, WorksByTheRealKeyboard) {
  auto* hex = Find<QLineEdit>(prev, "Label3");
  QTest::keyClicks(hex, QStringLiteral("1ffg"));
  hex->setFocus();
  QTest::keyClicks(hex, QStringLiteral("1ffg"));
  QTest::keyClick(hex, Qt::Key_Backspace);
  QTest::keyClick(hex, Qt::Key_Return);
  EXPECT_EQ(Fields(), "31 1F 37 XXXI ");
  auto* oct = Find<QLineEdit>(prev, "Label6");
  oct->setFocus();
  QTest::keyClicks(oct, QStringLiteral("189"));
  QTest::keyClick(oct, Qt::Key_Return);
  EXPECT_EQ(Fields(), "249 F9 371 CCXXXXVIIII ");
}

TEST_F(PrevTest, TooLargeIsToldAndNothingChanges) {
  for (int i = 0; i < 9; ++i) Press(25, 25);
  platform.answers = {Answer::kOk};
  Press(39, 39);
  EXPECT_EQ(platform.TakeCalls().size(), 1u);
  EXPECT_EQ(Fields(), "0 FFFFFFFFF 0  ");
}

TEST_F(PrevTest, ANewConversionGivesUpTheOneAtWork) {
  for (int i = 0; i < 9; ++i) Press(9, 9);
  QSignalSpy roman(Find<QLineEdit>(prev, "Label8"), &QLineEdit::textChanged);
  QTimer::singleShot(0, &prev, [this] {
    for (int i = 0; i < 8; ++i) Press(35, 35);
    Press(38, 38);
  });
  Press(38, 38);  // 999,999,999: the timer fires while its letters are counted out
  ASSERT_EQ(roman.count(), 1);
  EXPECT_EQ(Fields(), "9 9 11 VIIII ");
  // So does closing the window.
  for (int i = 0; i < 9; ++i) Press(9, 9);
  QTimer::singleShot(0, &prev, [this] { prev.hide(); });
  Press(38, 38);
  EXPECT_EQ(Field(prev, "Label8").size(), 5);
  prev.Present();
  Press(38, 38);
  EXPECT_EQ(Field(prev, "Label8").size(), 32767);  // what can be shown; the document gets it all
  sent.clear();
  Press(46, 46);
  EXPECT_EQ(sent.size(), 999999u + 15 + 1);
}

}  // namespace
}  // namespace pelmar
