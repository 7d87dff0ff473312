#include "accessories/calculator.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "support/scripted_platform.h"

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

void Press(Calculator& calculator, std::string_view keys) {
  for (const char key : keys) {
    if (const auto found = kKeys.find(key); found != kKeys.end()) {
      found->second(calculator);
    } else if (key >= '0' && key <= '9') {
      calculator.Digit(key);
    } else {
      calculator.Operator(key);
    }
  }
}

// Typed on the real keyboard, where an operator behind another one ends the first operation; with what is told.
TEST(CalculatorKeys, TypedOperatorsChain) {
  const struct {
    std::string_view keys, cislo, pending;
    std::size_t told = 0;
  } cases[] = {
      {"25/5+", "0", "5+"}, {"25/5+3=", "8", ""}, {"8/2^", "0", "4^"},  {"8/2^3=", "64", ""},
      {"7+", "0", "7+"},    {"7+2", "2", "7+"},   {"5/0-", "0", "", 1}, {"e+1-", "1", "", 1},
  };
  for (const auto& c : cases) {
    ScriptedPlatform platform;
    platform.answers = std::deque<Answer>(c.told, Answer::kOk);
    Calculator calculator(platform);
    for (const char key : c.keys)
      if (calculator.MakeWayFor(key)) Press(calculator, {&key, 1});
    EXPECT_EQ(calculator.Cislo, c.cislo) << c.keys;
    EXPECT_EQ(calculator.Label2 + calculator.Label1, c.pending) << c.keys;
    EXPECT_TRUE(platform.answers.empty()) << c.keys;
  }
}

struct CalculatorTest : testing::Test {
  ScriptedPlatform platform;

  // The operand and the operator that wait, and the number, after keys that call for the message, if any.
  std::string After(std::string_view keys, std::string_view message = "") {
    Calculator calculator(platform);
    platform.answers = {Answer::kOk};
    Press(calculator, keys);
    const std::vector<std::string> told = platform.TakeCalls();
    EXPECT_EQ(told, message.empty() ? std::vector<std::string>{} : std::vector{std::string(message)}) << keys;
    return calculator.Label2 + calculator.Label1 + calculator.Cislo;
  }
};

TEST_F(CalculatorTest, TypesAndComputes) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"007", "7"},
      {",,0,5", "0,05"},
      {",>", ","},
      {",>q", "0"},  // a comma alone is a number
      {"5-7=<,a", "0"},
      {"5+3=2", "82"},  // nothing tells a result from typed digits
      {"12<", "1"},
      {"1<", "0"},
      {"12>", "2"},
      {"1>", "0"},
      {"5-7=", "-2"},
      {"7+4c", "7+0"},
      {"7+9r", "7+3"},  // functions leave a waiting operator alone
      {"8L2=", "3"},
      {"8/3^", "3^0"},  // the first operand is lost
      {"2^10=*3=", "3072"},
      {"2/3=", "0,666666666666667"},
      {",1+,2=", "0,3"},
      {"99999999*99999999=", "9,9999998E+15"},
      {"1/100000=", "1E-05"},
      {"0-5=*0=", "0"},
      {"5=", "5"},  // there is nothing to evaluate
  };
  for (const auto& [keys, shown] : cases) EXPECT_EQ(After(keys), shown) << keys;
}

TEST_F(CalculatorTest, Functions) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"3q", "9"},        {"4r", "2"},
      {"5-7=a", "2"},     {"2,3i", "2"},
      {"2,5i", "2,5"},    {"0-2,3=i", "-2,5"},
      {"90s", "1"},       {"60o", "0,500000000000001"},
      {"45g", "1"},       {"45t", "0,999999999999998"},
      {"5e", "2.718282"}, {"p", "3,14159265358979"},
  };
  for (const auto& [keys, shown] : cases) EXPECT_EQ(After(keys), shown) << keys;
  EXPECT_GE(After("90t").size(), 15u);
}

TEST_F(CalculatorTest, TellsWhatItCantCompute) {
  constexpr std::string_view kDivision = R"(message 0 "Není možno dělit nulou" "Dělení")";
  constexpr std::string_view kRoot = R"(message 0 "Nelze odmocnit záporné číslo" "Odmocnina")";
  constexpr std::string_view kOther = R"(message 0 "Výsledek nelze vypočítat" "Kalkulátor")";
  const std::tuple<std::string_view, std::string_view, std::string_view> cases[] = {
      {"7/0=", kDivision, "0"},
      {"7/,>=", kDivision, ","},
      {"5-7=r", kRoot, "-2"},
      {"1+er", kRoot, "1+2.718282"},
      {"0L2=", kOther, "2"},
      {"5L1=", kOther, "1"},
      {"5L0=", kOther, "0"},
      {"5-7=^,5=", kOther, "0,5"},
      {"e+1=", kOther, "1"},
      {"1+e=", kOther, "2.718282"},
      {"5-7=<q", kOther, "-"},
      {"9+eq", kOther, "2.718282"},              // a failed function gives a waiting operator up
      {"99999999*99999999=<<+1=", kOther, "1"},  // "9,9999998E+"
      {"0g", kOther, "0"},
      {"10^999=", kOther, "999"},
  };
  for (const auto& [keys, message, shown] : cases) EXPECT_EQ(After(keys, message), shown) << keys;
}

TEST_F(CalculatorTest, WhatCanBePressed) {
  Calculator calculator(platform);
  const auto on = [&calculator] {
    return std::string(calculator.OperatorsOn() ? "o" : "-") + (calculator.PowerOn() ? "p" : "-") +
           (calculator.EqualsOn() ? "=" : "-");
  };
  EXPECT_EQ(on(), "op-");
  for (const char symbol : std::string_view("+-*^/L")) {
    Press(calculator, {&symbol, 1});
    EXPECT_EQ(on(), symbol == '/' || symbol == 'L' ? "-p=" : "--=") << symbol;
    platform.answers = {Answer::kOk};
    Press(calculator, "3=");
    EXPECT_EQ(on(), "op-") << symbol;
  }
}

TEST_F(CalculatorTest, RandomIsBelowOneAndHasSevenDigits) {
  platform.draws = {0, 0.25, 0.123456789, 0.99999999};
  Calculator calculator(platform);
  for (const std::string_view expected : {"0", "0,25", "0,1234568", "0,9999999"}) {
    calculator.Random();
    EXPECT_EQ(calculator.Cislo, expected);
  }
  EXPECT_EQ(platform.reseeds, 4);
}

}  // namespace
}  // namespace pelmar
