// The ciphers and the check sums, then the RND cipher with its table and the files of tables.
#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <cstring>

#include "ciphers/cht.h"
#include "ciphers/cronfeld.h"
#include "ciphers/rnd_cipher.h"
#include "ciphers/shift.h"
#include "ciphers/table_file.h"
#include "ciphers/xor_cipher.h"
#include "platform/runtime_error.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(Shiftp, MovesLettersAlone) {
  const struct {
    std::string_view text;
    std::int16_t shift;
    std::string_view shifted;
  } cases[] = {
      {"Ahoj, Čecho!"_w, 1, "Bipk, Čfdip!"_w},
      {"aZ\r\n09@[`{", 26, "aZ\r\n09@[`{"},
      {"AzBb", 25, "ZyAa"},
      {"A", 60, "C"},  // required: one turn is taken back, no more, and the case forced on what comes out
      {"A", -1, "@"},
  };
  for (const auto& c : cases) EXPECT_EQ(Shiftp(c.text, c.shift), c.shifted) << c.text << ' ' << c.shift;
}

// Every character uses up a digit, also a line end; what is no digit counts as 0.
TEST(Cronfeld, IsAShiftOfEachCharacterByItsDigitAndBack) {
  EXPECT_EQ(CronfeldEncipher("Čaa aa"_w, "12"), "Čcb bc"_w);
  RandomSource random(4);
  for (int round = 0; round < 3000; ++round) {
    const std::string password = random.Text(15, "0123456789-E"), text = random.Bytes(100);
    std::string expected;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char digit = password.empty() ? '0' : password[i % password.size()];
      expected += Shiftp(text.substr(i, 1), static_cast<std::int16_t>(digit >= '0' && digit <= '9' ? digit - '0' : 0));
    }
    ASSERT_EQ(CronfeldEncipher(text, password), expected) << password;
    ASSERT_EQ(CronfeldDecipher(expected, password), text) << password;
  }
}

TEST(KeyFields, AKeyIsANumberAndAPasswordAWholeOne) {
  const struct {
    const char *typed, *key, *password;
  } cases[] = {
      {"", "0", "0"},      {"007", "7", "7"},    {"12ab", "12", "12"}, {"1,9", "1", "1"},          {"-1.5", "-1", "-2"},
      {"-0.5", "0", "-1"}, {"1.5E20", "1", "1"}, {"1.5E-7", "1", "0"}, {"2E20", "2E+20", "2E+20"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(KeyText(c.typed), c.key) << c.typed;
    EXPECT_EQ(PasswordText(c.typed), c.password) << c.typed;
  }
}

TEST(RandomPassword, HasFifteenDigitsOfWhichTheFirstIsNotZero) {
  EXPECT_EQ(RandomPassword([] { return 0.0; }), "100000000000000");
  EXPECT_EQ(RandomPassword([] { return 0.999; }), "999999999999999");
}

TEST(HackerTranscription, DrawsEachLookAlikeAsOftenAsTheOthersAndLeavesAllElse) {
  const std::pair<double, const char*> cases[] = {{0.1, "AABCDEFGHIJKLMNOPQRSTUVWXYZZ Í\r\n1"},
                                                  {0.3, "aaBCdEFGHiJKlmNOPQRsTUVwXYZZ Í\r\n1"},
                                                  {0.5, "@@bc)efgh1jk7~nopqr5tuv~xyzz Í\r\n1"},
                                                  {0.7, "@@8()3[6#!?<7w%09qr5+u^m*/22 Í\r\n1"},
                                                  {0.9, "&&8(>3[6#|?<4W%09qr$+u^M*/22 Í\r\n1"}};
  for (const auto& [draw, transcribed] : cases)
    EXPECT_EQ(ToUtf8(HackerTranscription("AaBCDEFGHIJKLMNOPQRSTUVWXYZz Í\r\n1"_w, [drawn = draw] { return drawn; })),
              transcribed)
        << draw;
}

std::string Enciphered(const std::string& text, double key) {
  std::string output;
  StreamCipher(key).Append(text, output);
  return output;
}

TEST(StreamCipher, HasTheRequiredKeyBytes) {
  const std::string zeros(6, '\0');
  EXPECT_EQ(Enciphered(zeros, 0), "\x55\x52\x17\x89\x22\xF6");
  EXPECT_EQ(Enciphered(zeros, 1), "\x55\x12\x97\xC3\x31\x89");
  EXPECT_EQ(Enciphered(zeros, 123), "\xCB\x06\xB4\x86\x9F\x13");
}

// A second implementation of the generator, by divisions of longer numbers.
struct SecondGenerator {
  unsigned long long state = 0x395886;

  explicit SecondGenerator(double key) {
    unsigned long long bits = 0;
    std::memcpy(&bits, &key, sizeof key);
    state = state % 256 + ((bits / (1ull << 32) % 65536) ^ (bits / (1ull << 48))) * 256;
  }
  double Next() {
    state = (state * 1140671485 + 12820163) % 16777216;
    return static_cast<double>(state) / 16777216;
  }
};

// required: the character that equals its key byte is lost
TEST(StreamCipher, EqualsASecondGeneratorWithoutTheZeros) {
  std::vector<double> keys = {0, 1, -1, 0.5, 0.1, 1e15, 1e-300, 1.5e308, -12345678901234, 65535, 65536};
  RandomSource random(3);
  for (int i = 0; i < 1000; ++i) keys.push_back(std::ldexp(random.Next(), static_cast<int>(random.Below(1000)) - 500));
  for (const double key : keys) {
    SecondGenerator second(key);
    ReproducibleGenerator generator;
    generator.Reseed(key);
    const std::string text = random.Bytes(300);
    std::string expected;
    for (const char ch : text) {
      const double drawn = second.Next();
      ASSERT_EQ(generator.Draw(), drawn) << key;
      if (const int code = CodeOf(ch) ^ static_cast<int>(drawn * 254 + 1)) expected += CharOf(code);
    }
    ASSERT_EQ(Enciphered(text, key), expected) << key;
  }
}

struct StreamTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer document;
  std::string output;
  std::vector<std::size_t> progress;

  void Rewrite(const std::string& text, const std::function<void()>& on_progress = {}) {
    document.SetText(text);
    RewriteStream(document, 3, output, platform, [&](std::size_t done) {
      progress.push_back(done);
      if (on_progress) on_progress();
      return true;
    });
  }
};

TEST_F(StreamTest, GoesOnBehindCode8AfterNoAndKeepsTheDocumentAfterYes) {
  platform.answers = {Answer::kOk, Answer::kNo, Answer::kOk, Answer::kYes};
  Rewrite("a\bb");
  EXPECT_EQ(document.Text(), Enciphered("a\bb", 3));
  EXPECT_EQ(platform.TakeCallsInOneLine(),
            "message 0 \"Porusena intengrita textu!\" \"Kódování\"; "
            "message 52 \"Ukončit proces? (doporučuji ne)\" \"Kódování\"; ");
  EXPECT_EQ(progress, (std::vector<std::size_t>{1, 2, 2, 3}));  // the warning stands at its character
  Rewrite("a\bb");
  EXPECT_EQ(document.Text(), "a\bb");
  EXPECT_EQ(output, Enciphered("a", 3));
}

TEST_F(StreamTest, ReadsEachCharacterAtItsTurnAndTheLengthOnce) {
  const std::string text(20000, 'a');
  Rewrite(text, [&] {
    if (progress.size() == 1) document.SetText(std::string(30000, 'b'));
  });
  const std::size_t done = progress.front();
  EXPECT_EQ(document.Text(), Enciphered(std::string(done, 'a') + std::string(text.size() - done, 'b'), 3));
}

TEST_F(StreamTest, EndsWithADocumentThatBecomesShorter) {
  Rewrite(std::string(20000, 'a'), [&] { document.SetText("short"); });
  EXPECT_EQ(document.Text(), Enciphered(std::string(progress.front(), 'a'), 3));
}

TEST(CheckSums, StandInFourLines) {
  const struct {
    std::string text;
    const char *crc, *contra_crc, *and_crc, *short_crc;
  } cases[] = {
      {"ABCDE", "14F (335)", "A (10)", "80 (128)", "0 (0)"},  // the last character has no partner and no four
      {"ACBD", "10A (266)", "8 (8)", "81 (129)", "1 (1)"},
      {"\xFF\xFF\x0F\x0F", "21C (540)", "0 (0)", "10E (270)", "F0 (240)"},
  };
  for (const auto& c : cases) {
    ScriptedPlatform platform;
    WholeEditor editor(platform);
    editor.text.SetText(c.text);
    platform.answers = {Answer::kOk};
    editor.commands.Run("mnu_crc");
    EXPECT_EQ(platform.calls.back(), std::string("message 64 \"CRC součet je #") + c.crc + "\r\nContraCRC součet je #" +
                                         c.contra_crc + "\r\n&CRC součet je #" + c.and_crc +
                                         "\r\nShortCRC součet je #" + c.short_crc + "\" \"CRC\"")
        << ToUtf8(c.text);
  }
}

TEST(PrimitiveRewrite, TakesEachCodeFrom256) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  editor.text.SetText("\x01\r\n\x80\xFF");
  platform.answers = {Answer::kOk};
  editor.commands.Run("mnuZaKodPrim");
  EXPECT_EQ(editor.text.Text(), "\xFF\xF3\xF6\x80\x01");
  EXPECT_FALSE(editor.text.CanUndo());  // required for a replaced text
  EXPECT_EQ(platform.calls, std::vector<std::string>{"message 0 \"Ukončeno kódování.\" \"kód\""});
}

// The depth is also the seed. Codes of 24 digits and more are all different.
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

TEST(RndCipher, GeneratesFromPairsOfDraws) {
  CipherTable table;
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
      // A ratio below 1 counts as much as it is apart from 1.
      {16, 10, "0000111100000000", "Koeficient A:1,37500 Koeficient B:1,00000 Celkem:1,375000000",
       "Koeficient A:1,37500 Koeficient B:1,66667 Celkem:2,291666667"},
      // Without zeros there is nothing to divide by.
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

TEST(RndCipher, DecipheringUndoesEnciphering) {
  RandomSource source(42);
  for (int depth = 24; depth <= 64; ++depth) {
    const CipherTable table = Table(depth);
    const std::string text = source.Text(999, "ABCDEFGHIJKLMNOPQRSTUVWXYZ \r\n");
    const std::string cipher = RndEncipher(text, table, source.Draws(), {});
    ASSERT_EQ(PrepareText(cipher), cipher);
    ASSERT_EQ(RndDecipher(cipher, table, {}), text) << depth;
  }
}

// required: the last of two equal codes counts, unknown digits repeat the character before, and the digits that are
// left over may lie anywhere in a code
TEST(RndCipher, DeciphersByADamagedTable) {
  CipherTable table{{"01", "01", "110"}, 2, {}, "A", {}};
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"AX", "B"}, {"A\n", "B"}, {"XXXA", "CC"}, {"AAAX", "B"}, {"AXAA", "BB"}, {"AXA", "BC"}, {"", ""}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(RndDecipher(text, table, {}), expected) << text;
  table.depth = 0;
  EXPECT_EQ(RndDecipher("AX", table, {}), "");
}

TEST(TableFile, ADamagedFileIsReadUpToItsEnd) {
  const CipherTable table = Table(16, "x\r\n" + std::string(300, 'y'));
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
  // Returns what was asked and written.
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

// required
TEST_F(TableFilesTest, ACancelledSaveWritesTheLastFileAgainAndAFailedOneIsNotReported) {
  EXPECT_EQ(Save(std::nullopt), kSaveDialog);
  EXPECT_EQ(Save("/a.pvt"), kSaveDialog + "write /a.pvt; ");
  EXPECT_EQ(platform.files["/a.pvt"], TableBytes(table));
  platform.answers = {Answer::kNo};
  EXPECT_EQ(Save(std::nullopt), kSaveDialog + kOverwrite);
  platform.write_errors["/full.pvt"] = ENOSPC;
  EXPECT_EQ(Save("/full.pvt"), kSaveDialog + "write /full.pvt; ");
}

TEST_F(TableFilesTest, LoadKeepsTheTableIfItCannotRead) {
  platform.files["/folder/"] = "";
  platform.read_errors["/locked.pvt"] = EACCES;
  platform.write_errors["/gone/new.pvt"] = ENOENT;
  for (const auto& path : {std::optional<std::string>(), {"/locked.pvt"}, {"/gone/new.pvt"}, {"/folder"}}) {
    EXPECT_THROW(Load(path), RuntimeError) << path.value_or("cancelled");
    EXPECT_EQ(table.note, "mine") << path.value_or("cancelled");
  }
}

// required
TEST_F(TableFilesTest, ACancelledLoadReadsTheLastFileAgainAndAMissingFileReadsAsEmpty) {
  platform.files["/a.pvt"] = TableBytes(Table(16, "file"));
  EXPECT_EQ(Load("/a.pvt"), "file");
  table = {};
  EXPECT_EQ(Load(std::nullopt), "file");
  EXPECT_EQ(TableBytes(table), platform.files["/a.pvt"]);
  EXPECT_EQ(Load("/new.pvt"), "");  // a missing file is created
  EXPECT_EQ(platform.files.at("/new.pvt"), "");
  EXPECT_EQ(TableBytes(table), TableBytes({}));
}

}  // namespace
}  // namespace pelmar
