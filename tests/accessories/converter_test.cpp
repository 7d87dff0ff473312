#include "accessories/converter.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

TEST(Roman, IsAdditiveAndStopsWhenToldTo) {
  const std::pair<std::int32_t, std::string_view> cases[] = {
      {0, "0"}, {-5, "0"}, {255, "CCLV"}, {1999, "MDCCCCLXXXXVIIII"}, {3000, "MMM"}};
  for (const auto& [n, roman] : cases) EXPECT_EQ(ToRoman(n), roman) << n;
  EXPECT_EQ(ToRoman(999999999), std::string(999999, 'M') + "DCCCCLXXXXVIIII");
  int letters = 0;
  const auto at_most_ten = [&letters] { return ++letters < 10; };
  EXPECT_EQ(ToRoman(12, at_most_ten), "XII");
  EXPECT_EQ(letters, 3);  // after each letter
  EXPECT_EQ(ToRoman(999999999, at_most_ten), std::nullopt);
  EXPECT_EQ(letters, 10);
}

TEST(ReadNumber, PrefixesAreTwosComplement) {
  const std::pair<std::string_view, std::optional<double>> cases[] = {
      {"-12ab", -12},
      {"", 0},
      {"&H", 0},
      {"&H8000", -32768},
      {"&H7FFF", 32767},
      {"&H10000", 65536},
      {"&H0FFFF", 65535},
      {"&HFFFFFFFF", -1},
      {"&H100000000", {}},
      {"&O377", 255},
      {"&O177777", -1},
      {"&O200000", 65536},
      {"&O0177777", 65535},
      {"&O37777777777", -1},
      {"&O40000000000", {}},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(ReadNumber(text), value) << text;
}

TEST(Conversions, FillTheOtherFields) {
  struct Case {
    std::string Converter::*field;
    std::string_view typed, decimal, hex, oct;
    std::int32_t roman;
  };
  constexpr auto kDecimal = &Converter::Label1, kHex = &Converter::Label3, kOct = &Converter::Label6;
  const Case cases[] = {
      {kDecimal, "999999999", "999999999", "3B9AC9FF", "7346544777", 999999999},
      {kDecimal, "1234567890", "123456789", "75BCD15", "726746425", 123456789},  // the tenth digit doesn't stay
      {kDecimal, "0", "0", "0", "0", 0},
      {kHex, "FFFF", "-1", "FFFF", "37777777777", -1},
      {kHex, "10000", "65536", "10000", "200000", 65536},
      // Ten digits and more are cut in the decimal field, and Roman follows that field.
      {kHex, "7FFFFFFF", "214748364", "7FFFFFFF", "17777777777", 214748364},
      {kHex, "80000000", "-21474836", "80000000", "20000000000", -21474836},
      {kOct, "177777", "-1", "FFFFFFFF", "177777", -1},
      {kOct, "377", "255", "FF", "377", 255},
  };
  for (const Case& c : cases) {
    Converter converter;
    for (const char digit : c.typed) converter.Digit(c.field, digit);
    const auto roman = c.field == kDecimal ? converter.FromDecimal()
                       : c.field == kHex   ? converter.FromHex()
                                           : converter.FromOct();
    EXPECT_EQ(roman, c.roman) << c.typed;
    EXPECT_EQ((std::vector{converter.Label1, converter.Label3, converter.Label6}),
              (std::vector<std::string>{std::string(c.decimal), std::string(c.hex), std::string(c.oct)}));
  }
}

TEST(Conversions, RefuseMoreThan32BitsAndChangeNothing) {
  Converter converter;
  converter.Label1 = "5";
  for (int i = 0; i < 12; ++i) {
    converter.Digit(&Converter::Label3, 'F');
    converter.Digit(&Converter::Label6, '7');
  }
  EXPECT_EQ(converter.FromHex(), std::nullopt);
  EXPECT_EQ(converter.FromOct(), std::nullopt);
  EXPECT_EQ(converter.Label1, "5");
  EXPECT_EQ(converter.Label3, "FFFFFFFFF");
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
