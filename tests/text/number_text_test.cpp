#include "text/number_text.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>

namespace pelmar {
namespace {

TEST(NumberText, WritesFifteenDigitsWithAComma) {
  const struct {
    double number;
    const char* text;
  } cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {8, "8"},
      {-2.5, "-2,5"},
      {0.1 + 0.2, "0,3"},
      {1.0 / 3, "0,333333333333333"},
      {2.0 / 3, "0,666666666666667"},
      {3.14159265358979, "3,14159265358979"},
      {123456789012345, "123456789012345"},
      {999999999999999, "999999999999999"},
      {1e15, "1E+15"},
      {1234567890123456, "1,23456789012346E+15"},
      {-1e100, "-1E+100"},
      {0.0001, "0,0001"},
      {0.00001, "1E-05"},
      {1.5e-300, "1,5E-300"},
      {1.5e308, "1,5E+308"},
  };
  for (const auto& c : cases) EXPECT_EQ(NumberText(c.number), c.text);
  EXPECT_EQ(NumberText(1.0f / 3), "0,3333333");
  EXPECT_EQ(NumberText(0.7055475f), "0,7055475");
  EXPECT_EQ(NumberText(0.00001f), "1E-05");
}

TEST(NumberText, FixedTextRoundsHalvesUp) {
  const struct {
    double number;
    int decimals;
    const char* text;
  } cases[] = {
      {1, 5, "1,00000"},         {1.015625, 5, "1,01563"}, {1.640625, 5, "1,64063"},  {1.0390625, 5, "1,03906"},
      {0.000005, 5, "0,00001"},  {1.000005, 5, "1,00001"}, {9.999999, 5, "10,00000"}, {0.5, 9, "0,500000000"},
      {-0.000001, 5, "0,00000"}, {-1.25, 1, "-1,3"},       {25, 5, "25,00000"},       {123.456, 9, "123,456000000"},
  };
  for (const auto& c : cases) EXPECT_EQ(FixedText(c.number, c.decimals), c.text) << c.number;
}

TEST(NumberText, LeadingNumberTakesWhatReads) {
  const struct {
    const char* text;
    double number;
  } cases[] = {
      {"", 0},
      {"abc", 0},
      {"12ab", 12},
      {"1.5", 1.5},
      {"1,5", 1},
      {"  7", 7},
      {"-", 0},
      {"-.", 0},
      {"-3x", -3},
      {"+4", 4},
      {".5", 0.5},
      {"5.", 5},
      {"1.2.3", 1.2},
      {"1E5", 100000},
      {"1e+2z", 100},
      {"1E", 1},
      {"1E-", 1},
      {"E5", 0},
      {"1 2", 1},
      {"1E999", 1e99},
      {"1E+3000", 1e300},
      {"1E-999", 0},
      {"inf", 0},
      {"nan", 0},
      {"0x10", 0},
      {"--1", 0},
      {"-1E-2", -0.01},
      {"123456789012345", 123456789012345},
  };
  for (const auto& c : cases) EXPECT_EQ(LeadingNumber(c.text), c.number) << c.text;
  // Too many digits for any double: as many as there is room for.
  EXPECT_GT(LeadingNumber(std::string(400, '1')), 1e307);
  EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + "1"), 0);
}

TEST(NumberText, ParseNumberTakesAllOrNothing) {
  const struct {
    const char* text;
    std::optional<double> number;
  } cases[] = {
      {"0", 0},        {"0,", 0},         {",5", 0.5},         {"-2,5", -2.5}, {" 7 ", 7},
      {"1E+15", 1e15}, {"1E+152", 1e152}, {"1,5E-05", 1.5e-5}, {"1E-999", 0},  {"2.718282", {}},
      {"-", {}},       {"1E+", {}},       {"1E", {}},          {"", {}},       {" ", {}},
      {"5,5,5", {}},   {"1E+999", {}},    {"abc", {}},         {"12a", {}},    {"inf", {}},
      {"1 2", {}},
  };
  for (const auto& c : cases) EXPECT_EQ(ParseNumber(c.text), c.number) << c.text;
  EXPECT_EQ(ParseNumber(std::string(400, '1')), std::nullopt);
}

TEST(NumberText, WhatIsWrittenReadsBackToFifteenDigits) {
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  for (int round = 0; round < 5000; ++round) {
    const int power = static_cast<int>(random() % 600) - 300;
    char text[40];
    std::snprintf(text, sizeof text, "%.14fe%d", mantissa(random), power);
    const double number = LeadingNumber(text);
    const auto back = ParseNumber(NumberText(number));
    ASSERT_TRUE(back) << text;
    ASSERT_EQ(NumberText(*back), NumberText(number));
    ASSERT_NEAR(*back / number, 1, 1e-14);
  }
}

}  // namespace
}  // namespace pelmar
