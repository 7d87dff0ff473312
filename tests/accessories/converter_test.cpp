#include "accessories/converter.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

TEST(Roman, IsAdditive) {
  const std::pair<std::int32_t, std::string_view> cases[] = {
      {0, "0"},      {-5, "0"},    {1, "I"},
      {4, "IIII"},   {9, "VIIII"}, {49, "XXXXVIIII"},
      {255, "CCLV"}, {500, "D"},   {1999, "MDCCCCLXXXXVIIII"},
      {3000, "MMM"},
  };
  for (const auto& [n, roman] : cases) EXPECT_EQ(ToRoman(n), roman) << n;
  const std::string longest = ToRoman(999999999);
  EXPECT_EQ(longest.size(), 999999u + 15u);
  EXPECT_TRUE(longest.ends_with("MDCCCCLXXXXVIIII"));
}

TEST(Roman, StopsWhenToldTo) {
  int letters = 0;
  EXPECT_EQ(ToRoman(999999999, [&letters] { return ++letters < 10; }), std::nullopt);
  EXPECT_EQ(letters, 10);
  letters = 0;
  EXPECT_EQ(ToRoman(12, [&letters] { return ++letters < 10; }), "XII");
  EXPECT_EQ(letters, 3);  // after each letter
}

TEST(ReadNumber, PrefixesAreTwosComplement) {
  const std::pair<std::string_view, std::optional<double>> cases[] = {
      {"12ab", 12},
      {"-3", -3},
      {"", 0},
      {"&H", 0},
      {"&HFF", 255},
      {"&HFFFF", -1},
      {"&H8000", -32768},
      {"&H7FFF", 32767},
      {"&H10000", 65536},
      {"&H0FFFF", 65535},
      {"&HFFFFFFFF", -1},
      {"&H100000000", {}},
      {"&O377", 255},
      {"&O177777", -1},
      {"&O100000", -32768},
      {"&O200000", 65536},
      {"&O0177777", 65535},
      {"&O37777777777", -1},
      {"&O40000000000", {}},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(ReadNumber(text), value) << text;
}

struct ConvertCase {
  char from;  // d, h or o
  std::string_view typed;
  std::string_view decimal, hex, oct;
  std::int32_t roman;
};

constexpr ConvertCase kConversions[] = {
    {'d', "255", "255", "FF", "377", 255},
    {'d', "999999999", "999999999", "3B9AC9FF", "7346544777", 999999999},
    {'d', "1234567890", "123456789", "75BCD15", "726746425", 123456789},  // the tenth digit doesn't stay
    {'d', "0", "0", "0", "0", 0},
    {'h', "FF", "255", "FF", "377", 255},
    {'h', "FFFF", "-1", "FFFF", "37777777777", -1},
    {'h', "10000", "65536", "10000", "200000", 65536},
    // Ten digits and more are cut in the decimal field, and Roman follows that field.
    {'h', "7FFFFFFF", "214748364", "7FFFFFFF", "17777777777", 214748364},
    {'h', "80000000", "-21474836", "80000000", "20000000000", -21474836},
    {'o', "177777", "-1", "FFFFFFFF", "177777", -1},
    {'o', "377", "255", "FF", "377", 255},
    {'o', "37777777777", "-1", "FFFFFFFF", "37777777777", -1},
};

TEST(Conversions, FillTheOtherFields) {
  for (const ConvertCase& c : kConversions) {
    Converter converter;
    auto field = c.from == 'd' ? &Converter::Label1 : c.from == 'h' ? &Converter::Label3 : &Converter::Label6;
    for (const char digit : c.typed) converter.Digit(field, digit);
    const auto roman = c.from == 'd'   ? converter.FromDecimal()
                       : c.from == 'h' ? converter.FromHex()
                                       : converter.FromOct();
    EXPECT_EQ(roman, c.roman) << c.typed;
    EXPECT_EQ(converter.Label1, c.decimal) << c.typed;
    EXPECT_EQ(converter.Label3, c.hex) << c.typed;
    EXPECT_EQ(converter.Label6, c.oct) << c.typed;
  }
}

TEST(Conversions, RefuseMoreThan32BitsAndChangeNothing) {
  Converter converter;
  converter.Label1 = "5";
  for (int i = 0; i < 12; ++i) {
    converter.Digit(&Converter::Label3, 'F');
    converter.Digit(&Converter::Label6, '7');
  }
  EXPECT_EQ(converter.Label3, "FFFFFFFFF");
  EXPECT_EQ(converter.Label6, "77777777777");
  EXPECT_EQ(converter.FromHex(), std::nullopt);
  EXPECT_EQ(converter.FromOct(), std::nullopt);
  EXPECT_EQ(converter.Label1, "5");
  EXPECT_EQ(converter.Label6, "77777777777");
  for (int i = 0; i < 9; ++i) converter.DropLast(&Converter::Label3);
  EXPECT_EQ(converter.Label3, "0");
  for (const char* decimal : {"2147483648", "-2147483649", "1E+99", "&HFFFFFFFFF"}) {
    converter.Label1 = decimal;
    EXPECT_EQ(converter.FromDecimal(), std::nullopt) << decimal;
    EXPECT_EQ(converter.Label3, "0") << decimal;
  }
}

}  // namespace
}  // namespace pelmar
