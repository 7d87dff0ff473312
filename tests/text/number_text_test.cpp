#include "text/number_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <regex>

#include "support/random_source.h"

namespace pelmar {
namespace {

TEST(NumberText, WritesFifteenDigitsWithAComma) {
  const std::pair<double, const char*> cases[] = {{-0.0, "0"},
                                                  {-2.5, "-2,5"},
                                                  {0.1 + 0.2, "0,3"},
                                                  {2.0 / 3, "0,666666666666667"},
                                                  {3.14159265358979, "3,14159265358979"},
                                                  {999999999999999, "999999999999999"},
                                                  {1e15, "1E+15"},
                                                  {1234567890123456, "1,23456789012346E+15"},
                                                  {0.0001, "0,0001"},
                                                  {0.00001, "1E-05"},
                                                  {1.5e-300, "1,5E-300"},
                                                  {-1.5e308, "-1,5E+308"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(NumberText(number), text);
  EXPECT_EQ(NumberText(1.0f / 3), "0,3333333");
  EXPECT_EQ(NumberText(0.00001f), "1E-05");
}

TEST(NumberText, FixedTextRoundsHalvesUp) {
  const struct {
    double number;
    int decimals;
    const char* text;
  } cases[] = {{1, 5, "1,00000"},         {1.015625, 5, "1,01563"}, {1.0390625, 5, "1,03906"},
               {0.000005, 5, "0,00001"},  {1.000005, 5, "1,00001"}, {9.999999, 5, "10,00000"},
               {-0.000001, 5, "0,00000"}, {-1.25, 1, "-1,3"},       {123.456, 9, "123,456000000"}};
  for (const auto& c : cases) EXPECT_EQ(FixedText(c.number, c.decimals), c.text) << c.number;
}

// The form of a number once more, as an expression.
std::regex FormOfNumber(const std::string& mark) {
  return std::regex("[+-]?([0-9]+" + mark + "?[0-9]*|" + mark + "[0-9]+)([eE][+-]?[0-9]+)?");
}

TEST(NumberText, ReadsWhatHasTheFormOfANumber) {
  const std::regex with_point = FormOfNumber("[.]"), with_comma = FormOfNumber(",");
  RandomSource random(8);
  for (int round = 0; round < 30000; ++round) {
    std::string text = random.Text(2, " \t\r\n") + random.Text(8, "0159.,+-Ee x");
    const std::size_t start = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    std::smatch found;
    const std::string tail = text.substr(start);
    const bool leads = std::regex_search(tail, found, with_point, std::regex_constants::match_continuous);
    const double leading = leads ? std::strtod(found.str().c_str(), nullptr) : 0;
    if (!std::isfinite(leading)) continue;
    ASSERT_EQ(LeadingNumber(text), leading) << text;
    std::string whole = tail.substr(0, tail.find_last_not_of(" \t\r\n") + 1);
    const bool is_number = std::regex_match(whole, with_comma);
    std::replace(whole.begin(), whole.end(), ',', '.');
    const double value = is_number ? std::strtod(whole.c_str(), nullptr) : 0;
    ASSERT_EQ(ParseNumber(text), is_number && std::isfinite(value) ? std::optional(value) : std::nullopt) << text;
  }
}

TEST(NumberText, NumbersOutOfRange) {
  const std::pair<std::string, double> cases[] = {
      {"1E999", 1e99},  // a shorter part is small enough
      {"1E+3000", 1e300}, {"1E-999", 0}, {"0." + std::string(400, '0') + "1", 0}, {"inf", 0}, {"nan", 0}, {"0x10", 0}};
  for (const auto& [text, number] : cases) EXPECT_EQ(LeadingNumber(text), number) << text;
  EXPECT_GT(LeadingNumber(std::string(400, '1')), 1e307);
  EXPECT_EQ(ParseNumber("1E-999"), 0);
  EXPECT_EQ(ParseNumber("0," + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(ParseNumber("inf"), std::nullopt);
}

TEST(NumberText, WhatIsWrittenReadsBackToFifteenDigits) {
  RandomSource random(5);
  for (int round = 0; round < 5000; ++round) {
    char text[40];
    std::snprintf(text, sizeof text, "%.14fe%d", random.Next() * 20 - 10, static_cast<int>(random.Below(600)) - 300);
    const double number = LeadingNumber(text);
    const auto back = ParseNumber(NumberText(number));
    ASSERT_TRUE(back) << text;
    ASSERT_EQ(NumberText(*back), NumberText(number));
    ASSERT_NEAR(*back / number, 1, 1e-14);
  }
}

}  // namespace
}  // namespace pelmar
