#include "accessories/calculator.h"

#include <gtest/gtest.h>

#include "accessories/converter.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

const std::string kNoResult = "message 0 \"Výsledek nelze vypočítat\" \"Kalkulátor\"; ";
const std::string kNoRoot = "message 0 \"Nelze odmocnit záporné číslo\" \"Odmocnina\"; ";
const std::string kNoDivision = "message 0 \"Není možno dělit nulou\" \"Dělení\"; ";

struct CalculatorTest : testing::Test {
  ScriptedPlatform platform;
  Calculator calculator{platform};
};

TEST_F(CalculatorTest, OperatorsComputeOrShowAMessage) {
  const struct {
    const char* left;
    char operation;
    const char *right, *shown;
    std::string message = {};
  } cases[] = {
      {"8", 'L', "0,5", "-3"},
      {"2", '/', "3", "0,666666666666667"},
      {"0,1", '+', ",2", "0,3"},
      {"99999999", '*', "99999999", "9,9999998E+15"},
      {"7", '/', ",", ",", kNoDivision},  // a comma alone is 0
      {"5", 'L', "0", "0", kNoResult},
      {"-2", '^', "0,5", "0,5", kNoResult},
      {"10", '^', "999", "999", kNoResult},
      {"1", '+', "2.718282", "2.718282", kNoResult},  // no number, because it has a decimal point
      {"2.718282", '+', "1", "1", kNoResult},
  };
  for (const auto& c : cases) {
    platform.answers = {Answer::kOk};
    calculator.shown = c.left;
    calculator.Operator(c.operation);
    calculator.shown = c.right;
    calculator.Evaluate();
    EXPECT_EQ(calculator.shown, c.shown) << c.left << c.operation << c.right;
    EXPECT_EQ(calculator.operation, "") << c.left << c.operation << c.right;
    EXPECT_EQ(platform.TakeCallsInOneLine(), c.message) << c.left << c.operation << c.right;
  }
}

// Only the message kNoResult also removes a waiting operator.
TEST_F(CalculatorTest, FunctionsComputeOrShowAMessage) {
  const struct {
    const char *name, *number;
    void (Calculator::*function)();
    const char* shown;
    std::string message = {};
    const char* operation = "+";
  } cases[] = {
      {"square", "2.718282", &Calculator::Square, "2.718282", kNoResult, ""},
      {"half floor", "2,5", &Calculator::HalfFloor, "2,5"},
      {"cotangent", "0", &Calculator::Cotangent, "0", kNoResult, ""},
      {"root", "-2", &Calculator::SquareRoot, "-2", kNoRoot},
      {"root", "2.718282", &Calculator::SquareRoot, "2.718282", kNoRoot},
  };
  for (const auto& c : cases) {
    platform.answers = {Answer::kOk};
    calculator.Operator('+');
    calculator.shown = c.number;
    (calculator.*c.function)();
    EXPECT_EQ(calculator.shown, c.shown) << c.name << ' ' << c.number;
    EXPECT_EQ(calculator.operation, c.operation) << c.name << ' ' << c.number;
    EXPECT_EQ(platform.TakeCallsInOneLine(), c.message) << c.name << ' ' << c.number;
  }
}

TEST_F(CalculatorTest, RandomIsBelowOneAndHasSevenDigits) {
  platform.draws = {0, 0.25, 0.123456789, 0.99999999};
  for (const std::string_view expected : {"0", "0,25", "0,1234568", "0,9999999"}) {
    calculator.Random();
    EXPECT_EQ(calculator.shown, expected);
  }
  EXPECT_EQ(platform.reseeds, 4);
}

TEST(ReadNumber, ReadsPrefixedNumbersAsTwosComplement) {
  const std::pair<const char*, std::optional<double>> cases[] = {
      {"-12ab", -12}, {"&H", 0}, {"&H8000", -32768}, {"&H0FFFF", 65535}, {"&O377", 255}, {"&O200000", 65536},
  };
  for (const auto& [text, number] : cases) EXPECT_EQ(ReadNumber(text), number) << text;
}

// A field of the converter and the conversion from it.
struct Base {
  std::string Converter::*field;
  std::optional<std::int32_t> (Converter::*convert)();
};
constexpr Base kDecimal{&Converter::decimal, &Converter::FromDecimal};
constexpr Base kHexadecimal{&Converter::hexadecimal, &Converter::FromHex};
constexpr Base kOctal{&Converter::octal, &Converter::FromOct};

TEST(Converter, FillsTheOtherFields) {
  const struct {
    Base from;
    const char *digits, *decimal, *hexadecimal, *octal;
    std::optional<int> roman;  // the number whose Roman form is shown
  } cases[] = {
      // The field and the typed digits; then the decimal, hexadecimal and octal field and the Roman number.
      {kDecimal, "007", "7", "7", "7", 7},
      {kDecimal, "1234567890", "123456789", "75BCD15", "726746425", 123456789},  // a tenth digit is dropped
      {kHexadecimal, "FFFF", "-1", "FFFF", "37777777777", -1},
      // The decimal field keeps nine characters of a longer number. The Roman number is the number of this field.
      {kHexadecimal, "7FFFFFFF", "214748364", "7FFFFFFF", "17777777777", 214748364},
      {kHexadecimal, "80000000", "-21474836", "80000000", "20000000000", -21474836},
      {kHexadecimal, "FFFFFFFFFF", "0", "FFFFFFFFF", "0", std::nullopt},  // too large
      {kOctal, "177777", "-1", "FFFFFFFF", "177777", -1},
      {kOctal, "17777777777", "214748364", "7FFFFFFF", "17777777777", 214748364},
      {kOctal, "777777777777", "0", "0", "77777777777", std::nullopt},  // too large
  };
  for (const auto& c : cases) {
    Converter converter;
    for (const char digit : std::string(c.digits)) converter.Digit(c.from.field, digit);
    EXPECT_EQ((converter.*c.from.convert)(), c.roman) << c.digits;
    EXPECT_EQ(converter.decimal, c.decimal) << c.digits;
    EXPECT_EQ(converter.hexadecimal, c.hexadecimal) << c.digits;
    EXPECT_EQ(converter.octal, c.octal) << c.digits;
  }
}

}  // namespace
}  // namespace pelmar
