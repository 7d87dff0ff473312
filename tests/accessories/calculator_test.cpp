#include "accessories/calculator.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"

namespace pelmar {
namespace {

// Keys of a sequence, one character each: digits, comma and operators as they are, and
//   l log  < drop last  > drop first  c CE  = equals
//   r root  q square  a Abs  i Int  s Sinus  o Cosinus  t Tangens  g Cotangens  p PI  e e
void Press(Calculator& calculator, char key) {
  switch (key) {
    case ',':
      return calculator.Comma();
    case '<':
      return calculator.DropLast();
    case '>':
      return calculator.DropFirst();
    case 'c':
      return calculator.Clear();
    case '=':
      calculator.Evaluate();
      return;
    case 'l':
      return calculator.Operator('L');
    case 'r':
      return calculator.SquareRoot();
    case 'q':
      return calculator.Square();
    case 'a':
      return calculator.Absolute();
    case 'i':
      return calculator.HalfFloor();
    case 's':
      return calculator.Sine();
    case 'o':
      return calculator.Cosine();
    case 't':
      return calculator.Tangent();
    case 'g':
      return calculator.Cotangent();
    case 'p':
      return calculator.Pi();
    case 'e':
      return calculator.E();
    default:
      return key >= '0' && key <= '9' ? calculator.Digit(key) : calculator.Operator(key);
  }
}

struct SequenceCase {
  std::string_view keys;
  std::string_view cislo;
  std::string_view pending = "";
  std::string_view first = "";
};

constexpr SequenceCase kSequences[] = {
    {"", "0"},
    {"007", "7"},
    {"100", "100"},
    {",", "0,"},
    {",0", "0,0"},
    {",,5,", "0,5"},
    {",>", ","},
    {",>q", "0"},  // a comma alone is a number
    {"5+,>=", "5"},
    {"5-7=<,a", "0"},
    {"5+3=", "8"},
    {"5+3=2", "82"},  // nothing tells a result from typed digits
    {"12<", "1"},
    {"1<", "0"},
    {"12>", "2"},
    {"1>", "0"},
    {"5-7=", "-2"},
    {"5-7=<", "-"},
    {"5-7=>", "2"},
    {"5-7=a", "2"},
    {"7+", "0", "+", "7"},
    {"7+4c", "0", "+", "7"},
    {"7+9r", "3", "+", "7"},  // functions leave a waiting operator alone
    {"7+9r=", "10"},
    {"8l2=", "3"},
    {"2^10=", "1024"},
    {"8/3^", "0", "^", "3"},  // the first operand is lost
    {"8l3^2=", "9"},
    {"1/3=", "0,333333333333333"},
    {"2/3=", "0,666666666666667"},
    {",1+,2=", "0,3"},
    {"99999999*99999999=", "9,9999998E+15"},
    {"1/100000=", "1E-05"},
    {"0-5=*0=", "0"},
    {"3q", "9"},
    {"2,3i", "2"},
    {"2,7i", "2,5"},
    {"0-2,3=i", "-2,5"},
    {"90s", "1"},
    {"60o", "0,500000000000001"},
    {"45t", "0,999999999999998"},
    {"45g", "1"},
    {"p", "3,14159265358979"},
    {"5e", "2.718282"},
    {"p*2=", "6,28318530717958"},
    {"4r", "2"},
    {"5=", "5"},  // there is nothing to evaluate
};

TEST(CalculatorKeys, Sequences) {
  for (const SequenceCase& c : kSequences) {
    ScriptedPlatform platform;
    Calculator calculator(platform);
    for (const char key : c.keys) Press(calculator, key);
    EXPECT_EQ(calculator.Cislo, c.cislo) << c.keys;
    EXPECT_EQ(calculator.Label1, c.pending) << c.keys;
    EXPECT_EQ(calculator.Label2, c.first) << c.keys;
    EXPECT_EQ(platform.TakeCalls(), std::vector<std::string>{}) << c.keys;
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
      if (calculator.MakeWayFor(key)) Press(calculator, key);
    EXPECT_EQ(calculator.Cislo, c.cislo) << c.keys;
    EXPECT_EQ(calculator.Label2 + calculator.Label1, c.pending) << c.keys;
    EXPECT_TRUE(platform.answers.empty()) << c.keys;
  }
}

TEST(CalculatorKeys, TangentOfTheRightAngleIsLarge) {
  ScriptedPlatform platform;
  Calculator calculator(platform);
  for (const char key : std::string_view("90t")) Press(calculator, key);
  EXPECT_GE(calculator.Cislo.size(), 15u) << calculator.Cislo;
}

constexpr std::string_view kDivision = R"(message 0 "Není možno dělit nulou" "Dělení")";
constexpr std::string_view kRoot = R"(message 0 "Nelze odmocnit záporné číslo" "Odmocnina")";
constexpr std::string_view kOther = R"(message 0 "Výsledek nelze vypočítat" "Kalkulátor")";

struct FailureCase {
  std::string_view keys;
  std::string_view message;
  std::string_view cislo;
  std::string_view pending = "";
};

constexpr FailureCase kFailures[] = {
    {"7/0=", kDivision, "0"},
    {"7/,=", kDivision, "0,"},
    {"7/,>=", kDivision, ","},
    {"5-7=r", kRoot, "-2"},
    {"er", kRoot, "2.718282"},
    {"1+er", kRoot, "2.718282", "+"},
    {"0l2=", kOther, "2"},
    {"5-7=l2=", kOther, "2"},
    {"5l1=", kOther, "1"},
    {"5l0=", kOther, "0"},
    {"5-7=^,5=", kOther, "0,5"},
    {"e+1=", kOther, "1"},
    {"1+e=", kOther, "2.718282"},
    {"5-7=<+1=", kOther, "1"},
    {"5-7=<q", kOther, "-"},
    {"9+eq", kOther, "2.718282"},              // a failed function gives a waiting operator up
    {"99999999*99999999=<<+1=", kOther, "1"},  // "9,9999998E+"
    {"0g", kOther, "0"},
    {"10^308=q", kOther, "1E+308"},
    {"10^999=", kOther, "999"},
};

TEST(CalculatorKeys, Failures) {
  for (const FailureCase& c : kFailures) {
    ScriptedPlatform platform;
    platform.answers = {Answer::kOk};
    Calculator calculator(platform);
    for (const char key : c.keys) Press(calculator, key);
    EXPECT_EQ(platform.TakeCalls(), std::vector<std::string>{std::string(c.message)}) << c.keys;
    EXPECT_EQ(calculator.Cislo, c.cislo) << c.keys;
    EXPECT_EQ(calculator.Label1, c.pending) << c.keys;
  }
}

TEST(CalculatorKeys, WhatCanBePressed) {
  ScriptedPlatform platform;
  Calculator calculator(platform);
  const auto on = [&calculator] {
    return std::string(calculator.OperatorsOn() ? "o" : "-") + (calculator.PowerOn() ? "p" : "-") +
           (calculator.EqualsOn() ? "=" : "-");
  };
  EXPECT_EQ(on(), "op-");
  for (const char symbol : std::string_view("+-*^/L")) {
    calculator.Operator(symbol);
    EXPECT_EQ(on(), symbol == '/' || symbol == 'L' ? "-p=" : "--=") << symbol;
    platform.answers = {Answer::kOk};
    calculator.Digit('3');
    calculator.Evaluate();
    EXPECT_EQ(on(), "op-") << symbol;
  }
}

TEST(CalculatorKeys, RandomIsBelowOneAndHasSevenDigits) {
  ScriptedPlatform platform;
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
