#include "ciphers/rnd_cipher.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/random_source.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// Codes 00000, 00001, 00010 ... of `depth` digits: all different.
CipherTable PlainTable(int depth) {
  CipherTable table;
  table.Depth = static_cast<std::uint8_t>(depth);
  for (std::size_t i = 0; i < kSymbols; ++i)
    for (int digit = depth - 1; digit >= 0; --digit) table.SymbolCodes[i] += digit < 16 && (i >> digit & 1) ? '1' : '0';
  table.ZeroLetters = "ABCDEFGHIJKLM";
  table.OneLetters = "NOPQRSTUVWXYZ";
  return table;
}

TEST(RndCipher, PreparesTheText) {
  EXPECT_EQ(PrepareText("Žluťoučký kůň,\r\n5× úpěl\tĎÁBELSKÉ."_w), "ZLUTOUCKY KUN\r\n UPELDABELSKE");
  EXPECT_EQ(PrepareText("ABCäöüĺľŕ XYZ"_w), "ABC XYZ");  // letters of other languages keep their marks and go
}

TEST(RndCipher, GeneratesFromPairsOfDraws) {
  CipherTable table;
  table.OneLetters = "keep";
  table.Note = "note";
  int draws = 0;
  const double values[] = {0.5, 0.5, 0.5, 0.4, 0.0, 0.99, 0.99, 0.1};
  GenerateCodes(table, 8, [&] { return values[draws++ % 8]; });
  EXPECT_EQ(draws, 29 * 8 * 2);
  // required: nothing compares a code with those before it
  for (const std::string& code : table.SymbolCodes) EXPECT_EQ(code, "10011001");
  EXPECT_EQ(table.Depth, 8);
  EXPECT_EQ(table.OneLetters, "keep");
  GenerateLetterSplit(table, [&] { return values[draws++ % 8]; });
  EXPECT_EQ(table.OneLetters, "ADEHILMPQTUXY");
  EXPECT_EQ(table.ZeroLetters, "BCFGJKNORSVWZ");
  EXPECT_EQ(table.Note, "note");
}

TEST(RndCipher, ListsTheTable) {
  CipherTable table = PlainTable(8);
  table.ZeroLetters = "XY";
  table.OneLetters = "B";
  const std::vector<std::string> rows = CodeRows(table);
  ASSERT_EQ(rows.size(), 30u);
  EXPECT_EQ(rows[0], "Hloubka: 8");
  EXPECT_EQ(rows[2], "B       00000001");
  EXPECT_EQ(rows[27], "\" \"     00011010");
  EXPECT_EQ(rows[28], "Chr(13) 00011011");
  EXPECT_EQ(rows[29], "Chr(10) 00011100");
  EXPECT_EQ(LetterRows(table), (std::vector<std::string>{"0 : X", "0 : Y", "-----", "1 : B"}));
}

TEST(RndCipher, CoefficientsCountInTwoWays) {
  CipherTable table;
  EXPECT_EQ(CoefficientsText(table, CountedDigits::kFirstEight), std::nullopt);
  table.Depth = 16;
  table.OneLetters = std::string(16, 'A');
  table.ZeroLetters = std::string(10, 'B');
  for (std::string& code : table.SymbolCodes) code = "1111000010101111";
  EXPECT_EQ(CoefficientsText(table, CountedDigits::kFirstEight),
            "Koeficient A:1,60000 Koeficient B:1,00000 Celkem:1,600000000");
  EXPECT_EQ(CoefficientsText(table, CountedDigits::kAll),
            "Koeficient A:1,60000 Koeficient B:1,66667 Celkem:2,666666667");
  std::swap(table.OneLetters, table.ZeroLetters);  // fewer ones than zeros counts as much as it is apart from 1
  EXPECT_EQ(CoefficientsText(table, CountedDigits::kFirstEight),
            "Koeficient A:1,37500 Koeficient B:1,00000 Celkem:1,375000000");
  table.OneLetters.clear();
  EXPECT_EQ(CoefficientsText(table, CountedDigits::kFirstEight),
            "Koeficient A:2,00000 Koeficient B:1,00000 Celkem:2,000000000");
  // Without zeros there is nothing to divide by.
  for (std::string& code : table.SymbolCodes) code = "11111111";
  EXPECT_EQ(CoefficientsText(table, CountedDigits::kAll), std::nullopt);
  table = PlainTable(8);
  table.ZeroLetters.clear();
  EXPECT_EQ(CoefficientsText(table, CountedDigits::kAll), std::nullopt);
}

TEST(RndCipher, WritesADigitAsALetterOfItsSet) {
  CipherTable table = PlainTable(8);
  table.SymbolCodes[0] = "01010011";
  const auto cipher = [&table](std::string_view text, double r) {
    return RndEncipher(text, table, [r] { return r; }, {});
  };
  EXPECT_EQ(cipher("A", 0.9999), "MZMZMMZZ");
  EXPECT_EQ(cipher("A.", 0), "ANANAANNANANAANN");  // required: the one before it again
  EXPECT_EQ(cipher(".A", 0), "NNNNNNNNANANAANN");
  table.ZeroLetters.clear();
  EXPECT_EQ(cipher("A", 0), "NNNN");  // draws from an empty set yield nothing
}

TEST(RndCipher, DecipheringUndoesEnciphering) {
  RandomSource source(42);
  for (int round = 0; round < 2000; ++round) {
    CipherTable table = PlainTable(8 + round % 57);
    GenerateLetterSplit(table, source.Draws());
    const std::string text = source.Text(59, "ABCDEFGHIJKLMNOPQRSTUVWXYZ \r\n");
    const std::string cipher = RndEncipher(text, table, source.Draws(), {});
    ASSERT_EQ(PrepareText(cipher), cipher);
    ASSERT_EQ(RndDecipher(cipher, table, {}), text);
  }
}

// Deciphering once more, as a walk through all codes for each block.
std::string SlowlyDeciphered(const std::string& text, const CipherTable& table) {
  std::string digits;
  for (const char ch : text) digits += table.ZeroLetters.find(ch) != std::string::npos ? '0' : '1';
  std::string out;
  std::size_t found = 0;
  for (std::size_t p = 0; p < digits.size(); p += table.Depth) {
    const std::string block = digits.substr(p, table.Depth);
    for (std::size_t j = 1; j <= kSymbols; ++j)
      if (table.SymbolCodes[j - 1].find(block) != std::string::npos) found = j;
    if (found >= 1 && found <= 26) out += CharOf(static_cast<int>(64 + found));
    if (found > 26) out += " \r\n"[found - 27];
  }
  return out;
}

// required: no match repeats the character before, of twins the last counts, a rest of a block matches anywhere
TEST(RndCipher, DecipheringEqualsTheWalkThroughAllCodes) {
  RandomSource source(42);
  for (int round = 0; round < 3000; ++round) {
    // Such tables come from foreign files: codes of any length, any depth, letters in both sets.
    CipherTable table;
    for (std::string& code : table.SymbolCodes) code = source.Text(12, "01");
    table.Depth = static_cast<std::uint8_t>(1 + source.Below(9));
    table.ZeroLetters = source.Text(4, "ABCDEFGH");
    const std::string text = source.Text(79, "ABCDEFGHa\n");
    ASSERT_EQ(RndDecipher(text, table, {}), SlowlyDeciphered(text, table));
  }
  EXPECT_EQ(RndDecipher("AAAAAAAA", {}, {}), "");  // no depth
}

TEST(RndCipher, TellsItsProgress) {
  const CipherTable table = PlainTable(8);
  std::vector<std::size_t> passed;
  const Progress progress = [&passed](std::size_t done) { passed.push_back(done); };
  const auto expect_passed = [&passed](std::size_t all) {
    EXPECT_TRUE(passed.size() > 10 && passed.size() < 40) << passed.size();
    EXPECT_TRUE(std::ranges::is_sorted(passed));
    EXPECT_EQ(passed.back(), all);
    passed.clear();
  };
  const std::string cipher = RndEncipher(
      std::string(1000, 'A'), table, [] { return 0.5; }, progress);
  expect_passed(1000);
  RndDecipher(cipher, table, progress);
  expect_passed(8000);
}

}  // namespace
}  // namespace pelmar
