#include "ciphers/rnd_cipher.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

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
  EXPECT_EQ(PrepareText("äöüĺľŕ"_w), "");  // letters of other languages keep their marks and go
  EXPECT_EQ(PrepareText(""), "");
  EXPECT_EQ(PrepareText("ABC XYZ"), "ABC XYZ");
}

TEST(RndCipher, GeneratesCodesFromPairsOfDraws) {
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

TEST(RndCipher, GeneratedTablesAreOfTheToldKind) {
  RandomSource source(42);
  int with_twins = 0;
  for (int round = 0; round < 600; ++round) {
    CipherTable table;
    const int depth = 8 + round % 2 * 56;
    GenerateCodes(table, depth, source.Draws());
    GenerateLetterSplit(table, source.Draws());
    for (const std::string& code : table.SymbolCodes) {
      ASSERT_EQ(code.size(), static_cast<std::size_t>(depth));
      ASSERT_EQ(code.find_first_not_of("01"), std::string::npos);
    }
    ASSERT_TRUE(std::ranges::is_sorted(table.OneLetters) && std::ranges::is_sorted(table.ZeroLetters));
    std::string all = table.OneLetters + table.ZeroLetters;
    std::ranges::sort(all);
    ASSERT_EQ(all, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    const std::set<std::string> different(table.SymbolCodes.begin(), table.SymbolCodes.end());
    if (depth == 8 && different.size() < kSymbols) ++with_twins;
  }
  // 81 of 100 at depth 8.
  EXPECT_NEAR(with_twins / 300.0, 0.81, 0.08);
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
  EXPECT_EQ(LetterRows({}), std::vector<std::string>{"-----"});
}

TEST(RndCipher, CoefficientsCountInTwoWays) {
  CipherTable table;
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
}

TEST(RndCipher, CoefficientsNeedSomethingToDivideBy) {
  CipherTable table = PlainTable(8);
  table.ZeroLetters.clear();
  EXPECT_EQ(CoefficientsText(table, CountedDigits::kAll), std::nullopt);
  table = PlainTable(8);
  for (std::string& code : table.SymbolCodes) code = "11111111";
  EXPECT_EQ(CoefficientsText(table, CountedDigits::kAll), std::nullopt);
  EXPECT_EQ(CoefficientsText({}, CountedDigits::kFirstEight), std::nullopt);
}

TEST(RndCipher, WritesADigitAsALetterOfItsSet) {
  CipherTable table = PlainTable(8);
  table.SymbolCodes[0] = "01010011";
  const auto cipher = [&table](std::string_view text, double r) {
    return RndEncipher(text, table, [r] { return r; }, {});
  };
  EXPECT_EQ(cipher("A", 0), "ANANAANN");
  EXPECT_EQ(cipher("A", 0.9999), "MZMZMMZZ");
  EXPECT_EQ(cipher("", 0), "");
  EXPECT_EQ(cipher("A.A", 0), "ANANAANNANANAANNANANAANN");  // required: the one before it again
  EXPECT_EQ(cipher("." + std::string("A"), 0), "NNNNNNNNANANAANN");
  table.ZeroLetters.clear();
  EXPECT_EQ(cipher("A", 0), "NNNN");  // draws from an empty set yield nothing
}

TEST(RndCipher, DecipheringUndoesEnciphering) {
  RandomSource source(42);
  for (int round = 0; round < 2000; ++round) {
    const int depth = 8 + round % 57;
    CipherTable table = PlainTable(depth);
    for (std::string& code : table.SymbolCodes)
      for (char& digit : code) digit = digit == '0' ? '1' : '0';
    GenerateLetterSplit(table, source.Draws());
    if (table.ZeroLetters.empty() || table.OneLetters.empty()) continue;
    const std::string text = source.Text(59, "ABCDEFGHIJKLMNOPQRSTUVWXYZ \r\n");
    const std::string one = RndEncipher(text, table, source.Draws(), {});
    ASSERT_EQ(one.size(), text.size() * static_cast<std::size_t>(depth));
    ASSERT_EQ(PrepareText(one), one);
    ASSERT_EQ(RndDecipher(one, table, {}), text);
    ASSERT_TRUE(text.size() < 4 || RndEncipher(text, table, source.Draws(), {}) != one);
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
    if (found == 27) out += ' ';
    if (found == 28) out += '\r';
    if (found == 29) out += '\n';
  }
  return out;
}

TEST(RndCipher, DecipheringHasTheToldFaults) {
  CipherTable table = PlainTable(8);
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"AAAAAAAANNNNNNNN", "AA"},   // required: no match repeats the character before
      {"NNNNNNNNAAAAAAAA", "A"},    // none before: nothing
      {"AAAAAAA\nAAAAAAAA", "BA"},  // what is no letter counts as 1
      {"aAAAAAAA", ""},             // exact case
      {"AAAAAAAANNN", "A\n"}};      // required: the rest matches in the middle: 00011100
  for (const auto& [text, plain] : cases) EXPECT_EQ(RndDecipher(text, table, {}), plain) << text;
  table.SymbolCodes[3] = table.SymbolCodes[0];
  EXPECT_EQ(RndDecipher("AAAAAAAA", table, {}), "D");  // required: of twins the last
  table.Depth = 0;
  EXPECT_EQ(RndDecipher("AAAAAAAA", table, {}), "");
}

TEST(RndCipher, DecipheringEqualsTheWalkThroughAllCodes) {
  RandomSource source(42);
  for (int round = 0; round < 3000; ++round) {
    // Such tables come from foreign files: codes of any length, any depth, letters in both sets.
    CipherTable table;
    for (std::string& code : table.SymbolCodes) code = source.Text(12, "01");
    table.Depth = static_cast<std::uint8_t>(1 + source.Below(9));
    table.ZeroLetters = source.Text(4, "ABCDEFGH");
    const std::string text = source.Text(79, "ABCDEFGH");
    ASSERT_EQ(RndDecipher(text, table, {}), SlowlyDeciphered(text, table));
  }
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
