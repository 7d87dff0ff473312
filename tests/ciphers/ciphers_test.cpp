#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "ciphers/cht.h"
#include "ciphers/cronfeld.h"
#include "ciphers/shift.h"
#include "ciphers/xor_cipher.h"
#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(Shiftp, MovesOnlyLetters) {
  const struct {
    std::string_view text;
    std::int16_t shift;
    std::string_view shifted;
  } cases[] = {
      {"Ahoj, Čecho!"_w, 1, "Bipk, Čfdip!"_w},
      {"aZ\r\n09@[`{", 26, "aZ\r\n09@[`{"},
      {"AzBb", 25, "ZyAa"},
      {"A", 60, "C"},  // required: the alphabet repeats once, then the result gets the case of the letter
  };
  for (const auto& c : cases) EXPECT_EQ(Shiftp(c.text, c.shift), c.shifted) << c.text << ' ' << c.shift;
}

// Each character uses the next digit, even in a line end. Other characters of the password count as 0.
TEST(Cronfeld, MovesEachCharacterByItsDigitAndBack) {
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

TEST(KeyFields, ReduceATypedTextToTheNumberAtItsStart) {
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
}

TEST(HackerTranscription, GivesEachLookAlikeAnEqualShareAndKeepsOtherCharacters) {
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
}

// A second implementation of the generator, with divisions of larger numbers.
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
TEST(StreamCipher, EqualsASecondImplementationAndDropsZeros) {
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
      const int code = CodeOf(ch) ^ static_cast<int>(drawn * 254 + 1);
      if (code != 0) expected += CharOf(code);
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

TEST_F(StreamTest, AtCode8ANoContinuesAndAYesKeepsTheDocument) {
  platform.answers = {Answer::kOk, Answer::kNo, Answer::kOk, Answer::kYes};
  Rewrite("a\bb");
  EXPECT_EQ(document.Text(), Enciphered("a\bb", 3));
  EXPECT_EQ(platform.TakeCallsInOneLine(),
            "message 0 \"Porusena intengrita textu!\" \"Kódování\"; "
            "message 52 \"Ukončit proces? (doporučuji ne)\" \"Kódování\"; ");
  EXPECT_EQ(progress, (std::vector<std::size_t>{1, 2, 2, 3}));  // 2 is shown during the question
  Rewrite("a\bb");
  EXPECT_EQ(document.Text(), "a\bb");
  EXPECT_EQ(output, Enciphered("a", 3));
}

TEST_F(StreamTest, ContinuesInAChangedDocumentUpToTheOldLength) {
  const std::string text(20000, 'a');
  Rewrite(text, [&] {
    if (progress.size() == 1) document.SetText(std::string(30000, 'b'));
  });
  const std::size_t done = progress.front();
  EXPECT_EQ(document.Text(), Enciphered(std::string(done, 'a') + std::string(text.size() - done, 'b'), 3));
}

TEST_F(StreamTest, EndsAtTheEndOfAShortenedDocument) {
  Rewrite(std::string(20000, 'a'), [&] { document.SetText("short"); });
  EXPECT_EQ(document.Text(), Enciphered(std::string(progress.front(), 'a'), 3));
}

TEST(CheckSums, AreShownInFourLines) {
  const struct {
    std::string text;
    const char *crc, *contra_crc, *and_crc, *short_crc;
  } cases[] = {
      // The last character is in no pair, the last three are in no group of four.
      {"ABCDEFG", "1DC (476)", "D (13)", "C4 (196)", "0 (0)"},
      {"\xFF\xFF\x0F\x0F\x01\x01\x02\x02", "222 (546)", "0 (0)", "111 (273)", "F3 (243)"},
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

TEST(PrimitiveRewrite, SubtractsEachCodeFrom256) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  editor.text.SetText("\x01\r\n\x80\xFF");
  platform.answers = {Answer::kOk};
  editor.commands.Run("mnuZaKodPrim");
  EXPECT_EQ(editor.text.Text(), "\xFF\xF3\xF6\x80\x01");
  EXPECT_FALSE(editor.text.CanUndo());  // required for a replaced text
  EXPECT_EQ(platform.calls, std::vector<std::string>{"message 0 \"Ukončeno kódování.\" \"kód\""});
}

}  // namespace
}  // namespace pelmar
