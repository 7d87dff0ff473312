#include "ciphers/table_file.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <utility>

#include "ciphers/rnd_cipher.h"
#include "platform/runtime_error.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

CipherTable Table(int depth, const std::string& note) {
  RandomSource random(static_cast<unsigned>(depth));
  CipherTable table;
  GenerateCodes(table, depth, random.Draws());
  GenerateLetterSplit(table, random.Draws());
  table.Note = note;
  return table;
}

void ExpectSame(const CipherTable& table, const CipherTable& other) {
  EXPECT_EQ(table.SymbolCodes, other.SymbolCodes);
  EXPECT_EQ(table.Depth, other.Depth);
  EXPECT_EQ(table.OneLetters, other.OneLetters);
  EXPECT_EQ(table.ZeroLetters, other.ZeroLetters);
  EXPECT_EQ(table.Note, other.Note);
}

TEST(TableFile, IsWrittenToTheByte) {
  CipherTable table;
  for (std::string& code : table.SymbolCodes) code = "01100110";
  table.Depth = 8;
  table.OneLetters = "ABC";
  table.ZeroLetters = "D";
  table.Note = "x\r\ny";
  std::string expected;
  for (int i = 0; i < 29; ++i) expected += std::string("\x08\x00", 2) + "01100110";
  expected += "\x08" + std::string("\x03\x00", 2) + "ABC" + std::string("\x01\x00", 2) + "D";
  expected += std::string("\x04\x00", 2) + "x\r\ny";
  EXPECT_EQ(TableBytes(table), expected);
  ExpectSame(ReadTable(expected), table);
}

TEST(TableFile, CutsAFieldThatIsTooLong) {
  const CipherTable deep = Table(64, "note");
  ExpectSame(ReadTable(TableBytes(deep)), deep);
  const CipherTable long_note = Table(8, std::string(70000, 'n'));
  EXPECT_EQ(ReadTable(TableBytes(long_note)).Note.size(), kLongestField);
}

TEST(TableFile, WhatIsMissingReadsAsEmpty) {
  const CipherTable whole = Table(16, "note");
  const std::string bytes = TableBytes(whole);
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    const CipherTable table = ReadTable(std::string_view(bytes).substr(0, size));
    EXPECT_EQ(table.Note, "");
    EXPECT_EQ(table.Depth, size > 29 * 18 ? 16 : 0) << size;
    for (std::size_t i = 0; i < kSymbols; ++i)
      ASSERT_EQ(table.SymbolCodes[i], size >= (i + 1) * 18 ? whole.SymbolCodes[i] : "");
  }
}

TEST(TableFile, AnyBytesMakeATableThatCanBeWorkedWith) {
  RandomSource random(9);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes = round % 2 ? TableBytes(Table(8 + round % 57, "note")) : std::string(random.Below(400), '\0');
    for (auto n = random.Below(30); n > 0 && !bytes.empty(); --n)
      bytes[random.Below(bytes.size())] = static_cast<char>(random.Below(256));
    const CipherTable table = ReadTable(bytes);
    ASSERT_LE(TableBytes(table).size(), bytes.size() + 65);
    CodeRows(table);
    LetterRows(table);
    CoefficientsText(table, CountedDigits::kFirstEight);
    const std::string cipher = RndEncipher("AHOJ\r\n.", table, [] { return 0.5; }, {});
    RndDecipher(cipher, table, {});
  }
}

struct TableFilesTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};
  TableFiles files{platform, editor.file_number};
  CipherTable table = Table(8, "mine");

  // Whether the load went as far as to replace the table.
  bool Loads() {
    try {
      files.Load(table);
      return true;
    } catch (const RuntimeError&) {
      EXPECT_FALSE(editor.file_number.IsOpen());
      return false;
    }
  }
};

const std::string kOpen = "open \"Pelmar VEX Šifrovací tabulka (*.pvt)|*.pvt\" 0";
const std::string kSave = "save \"Pelmar VEX Šifrovací tabulka (*.pvt)|*.pvt\" 0";
const std::string kQuestion = "message 52 \"Opravdu uložit Tabulku ? - Soubor již existuje!\" \"RND Soubor\"";

TEST_F(TableFilesTest, SavesAndLoads) {
  platform.saves = {"/a.pvt"};
  files.Save(table);
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{kSave, "write /a.pvt"}));
  EXPECT_EQ(platform.files["/a.pvt"], TableBytes(table));
  const CipherTable saved = std::exchange(table, {});
  platform.opens = {"/a.pvt"};
  EXPECT_TRUE(Loads());
  EXPECT_EQ(platform.TakeCalls(), std::vector<std::string>{kOpen});
  ExpectSame(table, saved);
  EXPECT_FALSE(editor.file_number.IsOpen());
}

TEST_F(TableFilesTest, AsksBeforeItOverwritesAndKeepsTheOldTail) {
  const std::string old = TableBytes(Table(64, "a longer file"));
  platform.files["/a.pvt"] = old;
  platform.saves = {"/a.pvt", "/a.pvt"};
  platform.answers = {Answer::kNo, Answer::kYes};
  files.Save(table);
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{kSave, kQuestion}));
  EXPECT_EQ(platform.files["/a.pvt"], old);
  files.Save(table);
  const std::string record = TableBytes(table);
  EXPECT_EQ(platform.files["/a.pvt"], record + old.substr(record.size()));
  ExpectSame(ReadTable(platform.files["/a.pvt"]), table);
}

TEST_F(TableFilesTest, ACancelledDialogMeansTheFileFromBefore) {
  platform.opens = {std::nullopt, "/a.pvt", std::nullopt};
  platform.saves = {std::nullopt, std::nullopt};
  platform.files["/a.pvt"] = TableBytes(Table(16, "file"));
  EXPECT_FALSE(Loads());
  EXPECT_EQ(table.Note, "mine");
  files.Save(table);
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{kOpen, kSave}));
  EXPECT_TRUE(Loads());
  table.Note = "changed";
  EXPECT_TRUE(Loads());
  EXPECT_EQ(table.Note, "file");
  platform.answers = {Answer::kYes};
  table.Note = "again";
  files.Save(table);
  EXPECT_EQ(platform.calls.back(), "write /a.pvt");
  EXPECT_EQ(ReadTable(platform.files["/a.pvt"]).Note, "again");
}

TEST_F(TableFilesTest, AFileThatIsNotThereIsMadeAndReadsAsEmpty) {
  platform.opens = {"/new.pvt"};
  EXPECT_TRUE(Loads());
  EXPECT_EQ(platform.files.at("/new.pvt"), "");
  ExpectSame(table, {});
}

TEST_F(TableFilesTest, WhatCantBeReadLeavesTheTable) {
  platform.read_errors["/locked.pvt"] = EACCES;
  platform.write_errors["/gone/new.pvt"] = ENOENT;
  platform.files["/folder/"] = "";
  platform.opens = {"/locked.pvt", "/gone/new.pvt", "/folder"};
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(Loads());
  EXPECT_EQ(table.Note, "mine");
  editor.file_number.Open();
  platform.files["/a.pvt"] = "";
  platform.opens = {"/a.pvt"};
  EXPECT_THROW(files.Load(table), RuntimeError);
  EXPECT_EQ(table.Note, "mine");
}

TEST_F(TableFilesTest, ASaveThatFailsSaysNothing) {
  platform.saves = {"/full.pvt", "/folder"};
  platform.write_errors["/full.pvt"] = ENOSPC;
  platform.files["/folder/"] = "";
  files.Save(table);
  files.Save(table);
  EXPECT_EQ(platform.calls, (std::vector<std::string>{kSave, "write /full.pvt", kSave}));
  EXPECT_FALSE(editor.file_number.IsOpen());
}

TEST_F(TableFilesTest, ReadsNoMoreThanATableCanHold) {
  platform.files["/huge"] = std::string(5'000'000, '\xFF');
  platform.opens = {"/huge"};
  EXPECT_TRUE(Loads());
  EXPECT_EQ(table.Depth, 255);
  EXPECT_EQ(table.Note.size(), kLongestField);
}

}  // namespace
}  // namespace pelmar
