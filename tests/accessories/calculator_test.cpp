#include "accessories/calculator.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>

#include "accessories/converter.h"
#include "support/scripted_platform.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

// The keys that are neither a digit nor an operator.
const std::map<char, std::function<void(Calculator&)>> kKeys = {
    {',', &Calculator::Comma},     {'<', &Calculator::DropLast}, {'>', &Calculator::DropFirst},
    {'c', &Calculator::Clear},     {'=', &Calculator::Evaluate}, {'r', &Calculator::SquareRoot},
    {'q', &Calculator::Square},    {'a', &Calculator::Absolute}, {'i', &Calculator::HalfFloor},
    {'s', &Calculator::Sine},      {'o', &Calculator::Cosine},   {'t', &Calculator::Tangent},
    {'g', &Calculator::Cotangent}, {'p', &Calculator::Pi},       {'e', &Calculator::E},
};

// What is seen behind each word of keys: the operand and the operator that wait, and the number. All are to tell the
// same.
std::string Seen(const char* words, const std::string& told = "") {
  std::string seen;
  std::istringstream each(words);
  for (std::string keys; each >> keys;) {
    ScriptedPlatform platform;
    platform.answers = {Answer::kOk};
    platform.calls = {""};
    Calculator calculator(platform);
    for (const char key : keys) {
      if (const auto found = kKeys.find(key); found != kKeys.end()) {
        found->second(calculator);
      } else {
        key >= '0' && key <= '9' ? calculator.Digit(key) : calculator.Operator(key);
      }
    }
    seen += (seen.empty() ? "" : " ") + calculator.operand + calculator.operation + calculator.shown;
    EXPECT_EQ(platform.calls.back(), told) << keys;
  }
  return seen;
}

TEST(Calculator, ComputesOrTellsWhy) {
  EXPECT_EQ(Seen("007 ,,0,5 ,> 12< 1< 12> 1> 7+4c"), "7 0,05 , 1 0 2 0 7+0");
  EXPECT_EQ(Seen("8L2= 2^10=*3= 2/3= ,1+,2= 0-5=*0="), "3 3072 0,666666666666667 0,3 0");
  EXPECT_EQ(Seen("3q 5-7=a 2,3i 2,5i 0-2,3=i 99999999*99999999="), "9 2 2 2,5 -2,5 9,9999998E+15");
  EXPECT_EQ(Seen("90s 60o 45t 45g 5e p"), "1 0,500000000000001 0,999999999999998 1 2.718282 3,14159265358979");
  EXPECT_EQ(Seen(",>q"), "0");     // a comma alone is a number
  EXPECT_EQ(Seen("5+3=2"), "82");  // nothing tells a result from typed digits
  EXPECT_EQ(Seen("7+9r"), "7+3");  // functions leave a waiting operator alone
  EXPECT_EQ(Seen("8/3^"), "3^0");  // the first operand is lost
  EXPECT_EQ(Seen("5="), "5");      // there is nothing to evaluate
  EXPECT_EQ(Seen("7/0= 7/,>=", R"(message 0 "Není možno dělit nulou" "Dělení")"), "0 ,");
  EXPECT_EQ(Seen("5-7=r 1+er", R"(message 0 "Nelze odmocnit záporné číslo" "Odmocnina")"), "-2 1+2.718282");
  const std::string other = R"(message 0 "Výsledek nelze vypočítat" "Kalkulátor")";
  EXPECT_EQ(Seen("0L2= 5L1= 5L0= 5-7=^,5= 10^999= 0g", other), "2 1 0 0,5 999 0");
  // What can't be read any more. A failed function gives a waiting operator up.
  EXPECT_EQ(Seen("1+e= e+1= 9+eq 5-7=<q 99999999*99999999=<<+1=", other), "2.718282 1 2.718282 - 1");
}

TEST(Calculator, RandomIsBelowOneAndHasSevenDigits) {
  ScriptedPlatform platform;
  platform.draws = {0, 0.25, 0.123456789, 0.99999999};
  Calculator calculator(platform);
  for (const std::string_view expected : {"0", "0,25", "0,1234568", "0,9999999"}) {
    calculator.Random();
    EXPECT_EQ(calculator.shown, expected);
  }
  EXPECT_EQ(platform.reseeds, 4);
}

TEST(Roman, IsAdditiveAndStopsWhenToldTo) {
  EXPECT_EQ(ToRoman(-5) + ' ' + ToRoman(0) + ' ' + ToRoman(1999) + ' ' + ToRoman(3000), "0 0 MDCCCCLXXXXVIIII MMM");
  int letters = 0;
  const auto at_most_ten = [&letters] { return ++letters < 10; };
  EXPECT_EQ(ToRoman(12, at_most_ten), "XII");
  EXPECT_EQ(letters, 3);  // after each letter
  EXPECT_EQ(ToRoman(999999999, at_most_ten), std::nullopt);
  EXPECT_EQ(letters, 10);
}

TEST(ReadNumber, PrefixesAreTwosComplement) {
  std::string values;
  for (const char* text : {"-12ab", "", "&H", "&H8000", "&H7FFF", "&H10000", "&H0FFFF", "&HFFFFFFFF", "&H100000000",
                           "&O377", "&O177777", "&O200000", "&O0177777", "&O37777777777", "&O40000000000"}) {
    const auto value = ReadNumber(text);
    values += value ? NumberText(*value) + ' ' : "none ";
  }
  EXPECT_EQ(values, "-12 0 0 -32768 32767 65536 65535 -1 none 255 -1 65536 65535 -1 none ");
}

// The three fields, and the number whose Roman form follows, behind digits typed into a field and its conversion.
std::string Converted(std::string Converter::*field, std::string_view digits,
                      std::optional<std::int32_t> (Converter::*convert)()) {
  Converter converter;
  for (const char digit : digits) converter.Digit(field, digit);
  const auto roman = (converter.*convert)();
  return converter.decimal + ' ' + converter.hexadecimal + ' ' + converter.octal +
         (roman ? ' ' + std::to_string(*roman) : "");
}

TEST(Conversions, FillTheOtherFieldsUnlessTheNumberIsTooLarge) {
  const auto decimal = [](std::string_view n) { return Converted(&Converter::decimal, n, &Converter::FromDecimal); };
  EXPECT_EQ(decimal("999999999"), "999999999 3B9AC9FF 7346544777 999999999");
  EXPECT_EQ(decimal("1234567890"), "123456789 75BCD15 726746425 123456789");  // the tenth digit doesn't stay
  EXPECT_EQ(decimal("007"), "7 7 7 7");
  const auto hex = [](std::string_view n) { return Converted(&Converter::hexadecimal, n, &Converter::FromHex); };
  EXPECT_EQ(hex("FFFF"), "-1 FFFF 37777777777 -1");
  EXPECT_EQ(hex("10000"), "65536 10000 200000 65536");
  // Ten digits and more are cut in the decimal field, and Roman follows that field.
  EXPECT_EQ(hex("7FFFFFFF"), "214748364 7FFFFFFF 17777777777 214748364");
  EXPECT_EQ(hex("80000000"), "-21474836 80000000 20000000000 -21474836");
  EXPECT_EQ(hex("FFFFFFFFFF"), "0 FFFFFFFFF 0");
  const auto oct = [](std::string_view n) { return Converted(&Converter::octal, n, &Converter::FromOct); };
  EXPECT_EQ(oct("177777"), "-1 FFFFFFFF 177777 -1");
  EXPECT_EQ(oct("17777777777"), "214748364 7FFFFFFF 17777777777 214748364");
  EXPECT_EQ(oct("777777777777"), "0 0 77777777777");
  for (const char* number : {"2147483648", "-2147483649", "1E+99", "&HFFFFFFFFF"}) {
    Converter converter;
    converter.decimal = number;
    EXPECT_EQ(converter.FromDecimal(), std::nullopt) << number;
    EXPECT_EQ(converter.hexadecimal, "0") << number;
  }
}

}  // namespace
}  // namespace pelmar
