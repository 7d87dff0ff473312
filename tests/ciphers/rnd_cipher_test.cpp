#include "ciphers/rnd_cipher.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

#include "ciphers/table_file.h"
#include "platform/runtime_error.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// The depth is the seed too. Codes of 24 digits and more are all different.
CipherTable Table(int depth, const std::string& note = "note") {
  RandomSource random(static_cast<unsigned>(depth));
  CipherTable table;
  GenerateCodes(table, depth, random.Draws());
  GenerateLetterSplit(table, random.Draws());
  table.note = note;
  return table;
}

TEST(RndCipher, PreparesTheText) {
  EXPECT_EQ(PrepareText("Žluťoučký kůň,\r\n5× úpěl\tĎÁBELSKÉ."_w), "ZLUTOUCKY KUN\r\n UPELDABELSKE");
  EXPECT_EQ(PrepareText("ABCäöüĺľŕ XYZ"_w), "ABC XYZ");  // letters of other languages keep their marks and go
}

TEST(RndCipher, GeneratesFromPairsOfDrawsAndListsTheTable) {
  CipherTable table;
  std::size_t draws = 0;
  const Draw draw = [&] { return std::array{0.5, 0.5, 0.5, 0.4, 0.0, 0.99, 0.99, 0.1}[draws++ % 8]; };
  GenerateLetterSplit(table, draw);
  EXPECT_EQ(table.zero_letters + table.one_letters, "BCFGJKNORSVWZADEHILMPQTUXY");
  GenerateCodes(table, 8, draw);
  EXPECT_EQ(draws, 52u + 29 * 8 * 2);
  // required: nothing compares a code with those before it
  for (const std::string& code : table.symbol_codes) EXPECT_EQ(code, "01100110");
  table.symbol_codes = {"1", "2"};
  table.symbol_codes[28] = "3";
  const std::vector<std::string> rows = CodeRows(table);
  EXPECT_EQ(rows.size(), 30u);
  const std::pair<std::size_t, const char*> shown[] = {{0, "Hloubka: 8"}, {1, "A       1"},   {2, "B       2"},
                                                       {26, "Z       "},  {27, "\" \"     "}, {28, "Chr(13) "},
                                                       {29, "Chr(10) 3"}};
  for (const auto& [row, text] : shown) EXPECT_EQ(rows[row], text);
  table.zero_letters = "XY";
  table.one_letters = "B";
  EXPECT_EQ(LetterRows(table), (std::vector<std::string>{"0 : X", "0 : Y", "-----", "1 : B"}));
}

TEST(RndCipher, CoefficientsCountInTwoWays) {
  const auto text = [](std::size_t zero_letters, std::size_t one_letters, const char* code) {
    CipherTable table{{}, 16, std::string(one_letters, 'B'), std::string(zero_letters, 'A'), {}};
    table.symbol_codes.fill(code);
    return CoefficientsText(table, CountedDigits::kFirstEight).value_or("") + '|' +
           CoefficientsText(table, CountedDigits::kAll).value_or("");
  };
  EXPECT_EQ(text(10, 16, "1111000010101111"),
            "Koeficient A:1,60000 Koeficient B:1,00000 Celkem:1,600000000|"
            "Koeficient A:1,60000 Koeficient B:1,66667 Celkem:2,666666667");
  // Fewer ones than zeros count as much as they are apart from 1.
  EXPECT_EQ(text(16, 10, "0000111100000000"),
            "Koeficient A:1,37500 Koeficient B:1,00000 Celkem:1,375000000|"
            "Koeficient A:1,37500 Koeficient B:1,66667 Celkem:2,291666667");
  // Without zeros there is nothing to divide by.
  EXPECT_EQ(text(10, 0, "111111110"), "|Koeficient A:2,00000 Koeficient B:8,00000 Celkem:16,000000000");
  EXPECT_EQ(text(0, 10, "01"), "|");
}

TEST(RndCipher, WritesADigitAsALetterOfItsSet) {
  CipherTable table{{"01010011"}, 8, "NOPQRSTUVWXYZ", "ABCDEFGHIJKLM", {}};
  const auto cipher = [&table](std::string_view text, double r) {
    return RndEncipher(text, table, [r] { return r; }, {});
  };
  EXPECT_EQ(cipher("A", 0.9999), "MZMZMMZZ");
  EXPECT_EQ(cipher("A.", 0), "ANANAANNANANAANN");  // required: the one before it again
  EXPECT_EQ(cipher(".A", 0), "NNNNNNNNANANAANN");
  table.zero_letters.clear();
  EXPECT_EQ(cipher("A", 0), "NNNN");  // draws from an empty set yield nothing
}

TEST(RndCipher, DecipheringUndoesEncipheringAndBothTellTheirProgress) {
  RandomSource source(42);
  std::vector<std::size_t> passed;
  const Progress progress = [&passed](std::size_t done) { passed.push_back(done); };
  for (int depth = 24; depth <= 64; ++depth) {
    const CipherTable table = Table(depth);
    std::string text;
    while (text.size() < 500) text += source.Text(99, "ABCDEFGHIJKLMNOPQRSTUVWXYZ \r\n");
    passed.clear();
    const std::string cipher = RndEncipher(text, table, source.Draws(), progress);
    ASSERT_EQ(PrepareText(cipher), cipher);
    ASSERT_EQ(RndDecipher(cipher, table, progress), text);
    ASSERT_TRUE(passed.size() > 50 && passed.size() < 80 && passed.back() == cipher.size()) << passed.size();
    ASSERT_EQ(std::count(passed.begin(), passed.end(), text.size()), 1);
  }
}

// required: the last of twins counts, unknown digits repeat the character before, a rest may lie anywhere in a code
TEST(RndCipher, DeciphersByADamagedTable) {
  CipherTable table{{"01", "01", "110"}, 2, {}, "A", {}};
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"AX", "B"}, {"A\n", "B"}, {"XXXA", "CC"}, {"AAAX", "B"}, {"AXAA", "BB"}, {"AXA", "BC"}, {"", ""}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(RndDecipher(text, table, {}), expected) << text;
  table.depth = 0;
  EXPECT_EQ(RndDecipher("AX", table, {}), "");
}

TEST(TableFile, IsItsFieldsToTheByteAndEmptyFromADamageOn) {
  CipherTable table = Table(16, "x\r\n" + std::string(300, 'y'));
  const auto counted = [](const std::string& text) {
    return std::string{static_cast<char>(text.size() % 256), static_cast<char>(text.size() / 256)} + text;
  };
  std::vector<std::string> fields;
  for (const std::string& code : table.symbol_codes) fields.push_back(counted(code));
  fields.insert(fields.end(), {"\x10", counted(table.one_letters), counted(table.zero_letters), counted(table.note)});
  const std::string bytes = TableBytes(table);
  for (std::size_t size = 0; size <= bytes.size(); ++size) {
    std::size_t end = 0;
    std::string expected;
    for (const std::string& field : fields) {
      end += field.size();
      expected += end <= size ? field : std::string(field.size() == 1 ? 1 : 2, '\0');
    }
    ASSERT_EQ(TableBytes(ReadTable(bytes.substr(0, size))), expected) << size;
  }
  table.note.resize(70000);  // what is too long is cut
  EXPECT_EQ(TableBytes(table).size(), bytes.size() - 303 + kLongestField);
}

struct TableFilesTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  TableFiles files{platform, editor.file_number};
  CipherTable table = Table(8, "mine");

  // The note behind a load, in parentheses where the load went wrong.
  std::string Loaded() {
    try {
      files.Load(table);
      return table.note;
    } catch (const RuntimeError&) {
      return '(' + table.note + ')';
    }
  }
  // What is asked and written.
  std::vector<std::string> Saved() {
    files.Save(table);
    EXPECT_FALSE(editor.file_number.IsOpen());
    return platform.TakeCalls();
  }
};

const std::string kSave = "save \"Pelmar VEX Šifrovací tabulka (*.pvt)|*.pvt\" 0";
using Calls = std::vector<std::string>;

TEST_F(TableFilesTest, SaveAsksBeforeItOverwritesAndKeepsTheOldTail) {
  const std::string question = "message 52 \"Opravdu uložit Tabulku ? - Soubor již existuje!\" \"RND Soubor\"";
  platform.saves = {std::nullopt, "/a.pvt", std::nullopt, "/a.pvt", "/full.pvt", "/folder"};
  platform.answers = {Answer::kNo, Answer::kYes};
  platform.write_errors["/full.pvt"] = ENOSPC;
  platform.files["/folder/"] = "";
  EXPECT_EQ(Saved(), (Calls{kSave}));
  table = Table(64);
  const std::string old = TableBytes(table);
  EXPECT_EQ(Saved(), (Calls{kSave, "write /a.pvt"}));
  table = Table(8);
  EXPECT_EQ(Saved(), (Calls{kSave, question}));  // a cancelled dialog means the file from before
  EXPECT_EQ(platform.files["/a.pvt"], old);
  EXPECT_EQ(Saved(), (Calls{kSave, question, "write /a.pvt"}));
  EXPECT_EQ(platform.files["/a.pvt"], TableBytes(table) + old.substr(TableBytes(table).size()));
  EXPECT_EQ(Saved(), (Calls{kSave, "write /full.pvt"}));  // required: fails in silence
  EXPECT_EQ(Saved(), (Calls{kSave}));
}

TEST_F(TableFilesTest, LoadLeavesTheTableWhereItCantRead) {
  platform.files = {
      {"/a.pvt", TableBytes(Table(16, "file"))}, {"/huge", std::string(5'000'000, '\xFF')}, {"/folder/", ""}};
  platform.read_errors["/locked.pvt"] = EACCES;
  platform.write_errors["/gone/new.pvt"] = ENOENT;
  platform.opens = {std::nullopt, "/locked.pvt", "/gone/new.pvt", "/folder", "/a.pvt"};
  for (const char* note : {"(mine)", "(mine)", "(mine)", "(mine)", "file"}) EXPECT_EQ(Loaded(), note);
  EXPECT_EQ(platform.calls.front(), "open" + kSave.substr(4));
  table = {};
  platform.opens = {std::nullopt, "/huge", "/new.pvt", "/a.pvt"};
  EXPECT_EQ(Loaded(), "file");  // the file from before
  EXPECT_EQ(TableBytes(table), platform.files["/a.pvt"]);
  EXPECT_EQ(Loaded(), std::string(kLongestField, '\xFF'));  // not read to its end
  EXPECT_EQ(Loaded(), "");
  EXPECT_EQ(platform.files.at("/new.pvt"), "");
  EXPECT_EQ(TableBytes(table), TableBytes({}));
  EXPECT_FALSE(editor.file_number.IsOpen());
  editor.file_number.Open();  // another command's
  EXPECT_EQ(Loaded(), "()");
}

}  // namespace
}  // namespace pelmar
