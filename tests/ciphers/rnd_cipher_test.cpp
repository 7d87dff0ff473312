#include "ciphers/rnd_cipher.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "ciphers/table_file.h"
#include "platform/runtime_error.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr auto kNoProgress = [](std::size_t) {};

// A random table. The depth is also the seed. Codes of 24 digits and more are all different.
CipherTable Table(int depth, const std::string& note = "note") {
  RandomSource random(static_cast<unsigned>(depth));
  const Draw draw = [&random] { return random.Next(); };
  CipherTable table;
  GenerateCodes(table, depth, draw);
  GenerateLetterSplit(table, draw);
  table.note = note;
  return table;
}

TEST(RndCipher, PreparesATextInUpperCaseWithoutDiacritics) {
  EXPECT_EQ(PrepareText("Žluťoučký kůň,\r\n5× úpěl\tĎÁBELSKÉ."_w), "ZLUTOUCKY KUN\r\n UPELDABELSKE");
  EXPECT_EQ(PrepareText("ABCäöüĺľŕ XYZ"_w), "ABC XYZ");  // letters of other languages are dropped
}

TEST(RndCipher, GeneratesEachDigitAndEachLetterFromTwoDraws) {
  CipherTable table{{}, 0, "old", "old", {}};
  std::size_t draws = 0;
  const Draw draw = [&] { return std::array{0.5, 0.5, 0.5, 0.4, 0.0, 0.99, 0.99, 0.1}[draws++ % 8]; };
  GenerateLetterSplit(table, draw);
  EXPECT_EQ(table.zero_letters, "BCFGJKNORSVWZ");
  EXPECT_EQ(table.one_letters, "ADEHILMPQTUXY");
  table.symbol_codes.fill("old");
  GenerateCodes(table, 8, draw);
  for (const std::string& code : table.symbol_codes) EXPECT_EQ(code, "01100110");  // required: codes may be equal
  EXPECT_EQ(draws, 26u * 2 + 29 * 8 * 2);
}

TEST(RndCipher, ListsTheCodesAndTheLetters) {
  CipherTable table{{"1", "2"}, 8, "B", "XY", {}};
  table.symbol_codes[28] = "3";
  const std::vector<std::string> rows = CodeRows(table);
  ASSERT_EQ(rows.size(), 30u);
  const std::pair<std::size_t, const char*> cases[] = {{0, "Hloubka: 8"}, {1, "A       1"},   {2, "B       2"},
                                                       {26, "Z       "},  {27, "\" \"     "}, {28, "Chr(13) "},
                                                       {29, "Chr(10) 3"}};
  for (const auto& [row, text] : cases) EXPECT_EQ(rows[row], text);
  EXPECT_EQ(LetterRows(table), (std::vector<std::string>{"0 : X", "0 : Y", "-----", "1 : B"}));
}

TEST(RndCipher, CoefficientsCountTheFirstEightDigitsOrAll) {
  const struct {
    std::size_t zero_letters, one_letters;
    const char *code, *first_eight, *all;
  } cases[] = {
      {10, 16, "1111000010101111", "Koeficient A:1,60000 Koeficient B:1,00000 Celkem:1,600000000",
       "Koeficient A:1,60000 Koeficient B:1,66667 Celkem:2,666666667"},
      // A ratio below 1 counts as 2 minus the ratio.
      {16, 10, "0000111100000000", "Koeficient A:1,37500 Koeficient B:1,00000 Celkem:1,375000000",
       "Koeficient A:1,37500 Koeficient B:1,66667 Celkem:2,291666667"},
      // A division by zero gives an empty text.
      {10, 0, "111111110", "", "Koeficient A:2,00000 Koeficient B:8,00000 Celkem:16,000000000"},
      {0, 10, "01", "", ""},
  };
  for (const auto& c : cases) {
    CipherTable table{{}, 16, std::string(c.one_letters, 'B'), std::string(c.zero_letters, 'A'), {}};
    table.symbol_codes.fill(c.code);
    EXPECT_EQ(CoefficientsText(table, CountedDigits::kFirstEight).value_or(""), c.first_eight) << c.code;
    EXPECT_EQ(CoefficientsText(table, CountedDigits::kAll).value_or(""), c.all) << c.code;
  }
}

TEST(RndCipher, WritesEachDigitAsALetterOfItsSet) {
  CipherTable table{{"01010011"}, 8, "NOPQRSTUVWXYZ", "ABCDEFGHIJKLM", {}};
  const auto cipher = [&table](std::string_view text, double r) {
    const Draw draw = [r] { return r; };
    return RndEncipher(text, table, draw, kNoProgress);
  };
  EXPECT_EQ(cipher("A", 0.9999), "MZMZMMZZ");
  EXPECT_EQ(cipher("A.", 0), "ANANAANNANANAANN");  // required: "." gets the code of the symbol before it
  EXPECT_EQ(cipher(".A", 0), "NNNNNNNNANANAANN");
  table.zero_letters.clear();
  EXPECT_EQ(cipher("A", 0), "NNNN");  // draws from an empty set yield nothing
}

TEST(RndCipher, DecipheringUndoesEnciphering) {
  RandomSource source(42);
  for (int depth = 24; depth <= 64; ++depth) {
    const CipherTable table = Table(depth);
    const std::string text = source.Text(999, "ABCDEFGHIJKLMNOPQRSTUVWXYZ \r\n");
    const std::string cipher = RndEncipher(
        text, table, [&source] { return source.Next(); }, kNoProgress);
    ASSERT_EQ(PrepareText(cipher), cipher);
    ASSERT_EQ(RndDecipher(cipher, table, kNoProgress), text) << depth;
  }
}

// required: the last of two equal codes counts, unknown digits repeat the previous character, and too few digits at the
// end match any part of a code
TEST(RndCipher, DeciphersWithADamagedTable) {
  CipherTable table{{"01", "01", "110"}, 2, {}, "A", {}};
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"AX", "B"}, {"A\n", "B"}, {"XXXA", "CC"}, {"AAAX", "B"}, {"AXAA", "BB"}, {"AXA", "BC"}, {"", ""}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(RndDecipher(text, table, kNoProgress), expected) << text;
  table.depth = 0;
  EXPECT_EQ(RndDecipher("AX", table, kNoProgress), "");
}

// Cuts the file at each length: complete fields keep their values, the others are zero or empty.
TEST(TableFile, IsReadUpToTheLastCompleteField) {
  const CipherTable table = Table(16, "x\r\n" + std::string(300, 'y'));
  const std::string bytes = TableBytes(table);
  EXPECT_TRUE(bytes.starts_with(std::string("\x10\0", 2) + table.symbol_codes[0]));
  const std::size_t codes_end = 29 * (2 + 16), letters_end = codes_end + 1 + 2 + table.one_letters.size();
  for (std::size_t size = 0; size <= bytes.size(); ++size) {
    const CipherTable read = ReadTable(std::string_view(bytes).substr(0, size));
    EXPECT_EQ(read.symbol_codes[28], size >= codes_end ? table.symbol_codes[28] : "") << size;
    EXPECT_EQ(read.depth, size > codes_end ? 16 : 0) << size;
    EXPECT_EQ(read.one_letters, size >= letters_end ? table.one_letters : "") << size;
    EXPECT_EQ(read.note, size == bytes.size() ? table.note : "") << size;
  }
}

struct TableFilesTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  TableFiles files{platform, editor.file_number};
  CipherTable table = Table(8, "mine");

  // Loads from the file that the dialog gives, and returns the note of the table. A failure throws.
  std::string Load(const std::optional<std::string>& path) {
    platform.opens = {path};
    files.Load(table);
    EXPECT_FALSE(editor.file_number.IsOpen());
    return table.note;
  }
  // Saves to the file that the dialog gives, and returns the calls.
  std::string Save(const std::optional<std::string>& path) {
    platform.saves = {path};
    files.Save(table);
    EXPECT_FALSE(editor.file_number.IsOpen());
    return platform.TakeCallsInOneLine();
  }
};

const std::string kSaveDialog = "save \"Pelmar VEX Šifrovací tabulka (*.pvt)|*.pvt\" 0; ";
const std::string kOverwrite = "message 52 \"Opravdu uložit Tabulku ? - Soubor již existuje!\" \"RND Soubor\"; ";

TEST_F(TableFilesTest, SaveOverwritesOnlyAfterYesAndKeepsTheOldTail) {
  platform.files["/a.pvt"] = std::string(5000, 'x');
  platform.answers = {Answer::kNo, Answer::kYes};
  EXPECT_EQ(Save("/a.pvt"), kSaveDialog + kOverwrite);
  EXPECT_EQ(Save("/a.pvt"), kSaveDialog + kOverwrite + "write /a.pvt; ");
  const std::string bytes = TableBytes(table);
  EXPECT_EQ(platform.files["/a.pvt"], bytes + std::string(5000 - bytes.size(), 'x'));
}

TEST_F(TableFilesTest, ACancelledSaveWritesTheLastFileAgain) {  // required
  EXPECT_EQ(Save(std::nullopt), kSaveDialog);
  EXPECT_EQ(Save("/a.pvt"), kSaveDialog + "write /a.pvt; ");
  EXPECT_EQ(platform.files["/a.pvt"], TableBytes(table));
  platform.answers = {Answer::kNo};
  EXPECT_EQ(Save(std::nullopt), kSaveDialog + kOverwrite);
}

TEST_F(TableFilesTest, AFailedSaveIsNotReported) {  // required
  platform.write_errors["/full.pvt"] = ENOSPC;
  EXPECT_EQ(Save("/full.pvt"), kSaveDialog + "write /full.pvt; ");
}

TEST_F(TableFilesTest, LoadKeepsTheTableIfTheFileCannotBeRead) {
  platform.files["/folder/"] = "";
  platform.read_errors["/locked.pvt"] = EACCES;
  platform.write_errors["/gone/new.pvt"] = ENOENT;
  for (const auto& path : {std::optional<std::string>(), {"/locked.pvt"}, {"/gone/new.pvt"}, {"/folder"}}) {
    EXPECT_THROW(Load(path), RuntimeError) << path.value_or("cancelled");
    EXPECT_EQ(table.note, "mine") << path.value_or("cancelled");
  }
}

TEST_F(TableFilesTest, ACancelledLoadReadsTheLastFileAgain) {  // required
  platform.files["/a.pvt"] = TableBytes(Table(16, "file"));
  EXPECT_EQ(Load("/a.pvt"), "file");
  table = {};
  EXPECT_EQ(Load(std::nullopt), "file");
  EXPECT_EQ(TableBytes(table), platform.files["/a.pvt"]);
}

}  // namespace
}  // namespace pelmar
