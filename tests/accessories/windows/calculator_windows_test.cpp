// The calculator and its number converter, with the editor and alone.
#include "accessories/windows/kalkul.h"
#include "accessories/windows/prev.h"
#include "support/program_test.h"

namespace pelmar {
namespace {

struct KalkulTest : ProgramTest {
  Kalkul& kalkul = Open<Kalkul>();
};

TEST_F(KalkulTest, ItsKeysTypeAndEraseDigits) {
  ExpectState(kalkul,
              "Command1! Command2! Command3! Command4! Command5! Command6! Command7! Command8! Command9! Command10!",
              "Cislo=1234567890");
  ExpectState(kalkul, "Command21!", "Cislo=123456789");
  ExpectState(kalkul, "Command22!", "Cislo=23456789");
  ExpectState(kalkul, "Command11! Command11!", "Cislo=23456789,");
  ExpectState(kalkul, "Command23!", "Cislo=0");
  ExpectState(kalkul, "Command21!", "Cislo=0");
  ExpectState(kalkul, "Command22!", "Cislo=0");
}

TEST_F(KalkulTest, EachOperatorKeyWaitsForTheSecondNumber) {
  for (const auto& [key, waiting, result] :
       {std::tuple("Command12!", "Label2=8 Label1=+ Cislo=2", "Label2= Label1= Cislo=10"),
        {"Command13!", "Label2=8 Label1=- Cislo=2", "Label2= Label1= Cislo=6"},
        {"Command14!", "Label2=8 Label1=* Cislo=2", "Label2= Label1= Cislo=16"},
        {"Command15!", "Label2=8 Label1=/ Cislo=2", "Label2= Label1= Cislo=4"},
        {"Command32!", "Label2=8 Label1=L Cislo=2", "Label2= Label1= Cislo=3"},
        {"Command33!", "Label2=8 Label1=^ Cislo=2", "Label2= Label1= Cislo=64"}}) {
    Work(kalkul, "Command23! Command8!");
    Work(kalkul, key);
    ExpectState(kalkul, "Command2!", waiting);
    ExpectState(kalkul, "Command16!", result);
  }
}

TEST_F(KalkulTest, AWaitingOperatorDisablesTheOperatorKeys) {
  ExpectState(kalkul, "", "Command12=&+ Command32=&log Command33=&x^y Command16=(&=)");
  ExpectState(kalkul, "Command12: Command12!",
              "Command12=(&+) Command13=(&-) Command14=(&*) Command15=(&/) Command32=(&log) Command33=(&x^y) "
              "Command16=&=");
  EXPECT_EQ(kalkul.focusWidget(), Named(kalkul, "Cislo"));  // not the next key
  ExpectState(kalkul, "Command16!", "Command12=&+ Command32=&log Command33=&x^y Command16=(&=)");
}

// required: the power key then replaces the waiting operator and the first number
TEST_F(KalkulTest, DivisionAndLogarithmLeaveThePowerKeyEnabled) {
  ExpectState(kalkul, "Command8! Command15!", "Command12=(&+) Command33=&x^y");
  ExpectState(kalkul, "Command2! Command33!", "Label2=2 Label1=^ Cislo=0");
  ExpectState(kalkul, "Command2! Command16! Command32!", "Command12=(&+) Command33=&x^y");
}

TEST_F(KalkulTest, EachFunctionKeyComputes) {
  platform.draws = {0.5};
  for (const auto& [key, number, result] : {std::tuple("Command17!", "9", "Cislo=3"),
                                            {"Command18!", "-2,7", "Cislo=7,29"},
                                            {"Command24!", "-2,7", "Cislo=-0,0471064507096426"},
                                            {"Command25!", "-2,7", "Cislo=0,99888987496197"},
                                            {"Command26!", "-2,7", "Cislo=-0,0471588028774804"},
                                            {"Command27!", "-2,7", "Cislo=3,14159265358979"},
                                            {"Command28!", "-2,7", "Cislo=2,7"},
                                            {"Command29!", "-2,7", "Cislo=-21,2049487896888"},
                                            {"Command30!", "-2,7", "Cislo=0,5"},
                                            {"Command31!", "-2,7", "Cislo=-3"},
                                            {"Command34!", "-2,7", "Cislo=2.718282"}}) {
    kalkul.SetNumber(number);
    ExpectState(kalkul, key, result);
  }
}

TEST_F(KalkulTest, TypedCharactersPressTheirKeys) {
  ExpectState(kalkul, "Cislo:12.5*2\r", "Cislo=25");
  ExpectState(kalkul, "Cislo:\b", "Cislo=2");
  ExpectState(kalkul, "Cislo:^3,0=", "Cislo=8");
  ExpectState(kalkul, "Cislo:\x7f", "Cislo=0");
  ExpectState(kalkul, "Cislo:1+1\r3", "Cislo=23");  // required: a digit is appended to the result
}

TEST_F(KalkulTest, InsertsTheNumberBeforeTheSelection) {
  ExpectDocument("mnucalk", "Command4! Command19!", "x[y|", "x4|y");
}

struct PrevTest : KalkulTest {
  Prev& prev = Open<Prev>();
};

TEST_F(PrevTest, OpensFromTheCalculatorAndIsHiddenWithIt) {
  ExpectState(kalkul, "Command4! Command20!", "Cislo=4");
  EXPECT_FALSE(kalkul.isVisible() || prev.isVisible());
  kalkul.Present();
  Work(kalkul, "Command35!");
  EXPECT_TRUE(prev.isVisible());
}

TEST_F(PrevTest, GivesItsNumberToTheCalculator) {
  kalkul.hide();
  Work(prev, "Command1! Command41!");
  ExpectState(kalkul, "", "Cislo=1");
  EXPECT_TRUE(kalkul.isVisible());
}

TEST_F(PrevTest, KeepsItsFieldsWhenTheClosedCalculatorLosesItsNumber) {
  Work(kalkul, "Command4!");
  Work(prev, "Command1!");
  kalkul.close();
  EXPECT_FALSE(prev.isVisible());
  ExpectState(Open<Kalkul>(), "", "Cislo=0");
  ExpectState(prev, "", "Label1=1");
}

TEST_F(PrevTest, EachKeyOfTheKeypadsTypesItsDigit) {
  const auto press = [this](int key) { Work(prev, ("Command" + std::to_string(key) + '!').c_str()); };
  for (int key = 1; key <= 19; ++key) press(key);
  for (int key = 26; key <= 34; ++key) press(key);
  // A tenth digit is dropped.
  ExpectState(prev, "", "Label1=123456789 Label3=123456789 Label6=12345670 Label8=");
  for (int erased = 0; erased < 9; ++erased) press(36);
  for (int key = 20; key <= 26; ++key) press(key);
  ExpectState(prev, "Command35! Command36! Command37!", "Label1=12345678 Label3=ABCDEF Label6=1234567");
}

TEST_F(PrevTest, ConvertsFromEachFieldByKeysAndByItsButton) {
  ExpectState(prev, "Command38!", "Label8=0");
  ExpectState(prev, "Label1:1999 Command38!", "Label1=1999 Label3=7CF Label6=3717 Label8=MDCCCCLXXXXVIIII");
  ExpectState(prev, "Label3:\b\b\bffg Command39!", "Label1=255 Label3=FF Label6=377 Label8=CCLV");
  ExpectState(prev, "Label6:\b\b\b189 Command40!", "Label1=1 Label3=1 Label6=1 Label8=I");
  ExpectState(prev, "Label6:2\r", "Label1=10 Label3=A Label6=12 Label8=X");
}

TEST_F(PrevTest, AHiddenWindowStopsALongConversion) {
  Work(prev, "Label1:40000000");
  Inside([this] { prev.hide(); });
  ExpectState(prev, "Command38!", "Label3=2625A00 Label8=");
}

TEST_F(PrevTest, SendsEachFieldToTheDocument) {
  Work(prev, "Label3:1f\r Command42! Command43:\r Command44! Command46!");
  EXPECT_EQ(Marked(text), "311F37XXXI|");
}

TEST_F(PrevTest, ShowsAMessageForATooLargeNumber) {
  platform.answers = {Answer::kOk};
  ExpectState(prev, "Label3:fffffffff\r", "Label1=0 Label3=FFFFFFFFF Label6=0 Label8=");
  EXPECT_EQ(platform.calls.back(), R"(message 0 "Číslo je příliš velké, nevejde se do 32 bitů" "Převody")");
}

struct CalculatorAloneTest : ProgramTest {
  CalculatorAloneTest() {
    SettingsRecord settings;
    settings.UserName = settings.UserEmail = "jan";
    platform.files["/install/pelmar.ini"] = SettingsBytes(settings);
    program.Run("-CALC");
  }
  Kalkul& Calculator() { return parts.windows.Get<Kalkul>(); }
};

TEST_F(CalculatorAloneTest, CopiesTheNumberToTheClipboard) {
  ExpectState(Calculator(), "Command5! Command19:\r", "Command19=&Clip Command20=&Quit");
  EXPECT_EQ(platform.clipboard, "5");
}

TEST_F(CalculatorAloneTest, DisablesTheConvertersTextButtonsExceptTheRomanOne) {
  Work(Calculator(), "Command35!");
  ExpectState(parts.windows.Get<Prev>(), "",
              "Command42=('Do textu') Command43=('Do textu') Command44=('Do textu') Command46='Do textu'");
}

TEST_F(CalculatorAloneTest, StaysIfItsEndIsNotConfirmed) {
  platform.answers = {Answer::kNo, Answer::kNo};
  ExpectState(Calculator(), "Command5! Command20!", "Cislo=5");
  EXPECT_FALSE(Calculator().close());
  EXPECT_TRUE(Calculator().isVisible());
  EXPECT_EQ(platform.calls.back(), R"(message 276 "OPRAVDU UKONČIT Kalkulačku (Pelmar VEX) ?" "Konec")");
}

TEST_F(CalculatorAloneTest, EndsTheProgramAfterAYes) {
  platform.answers = {Answer::kYes};
  Work(Calculator(), "Command20!");
  EXPECT_EQ(QCoreApplication::exec(), 0);
}

}  // namespace
}  // namespace pelmar
