#include <gtest/gtest.h>

#include <random>

#include "ciphers/cht.h"
#include "ciphers/cronfeld.h"
#include "ciphers/shift.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

std::string RandomText(std::mt19937& random, std::size_t longest) {
  std::string text;
  for (std::size_t n = random() % (longest + 1); n > 0; --n) text += CharOf(static_cast<int>(random() % 256));
  return text;
}

TEST(Shiftp, MovesLettersAlone) {
  const struct {
    std::string_view text;
    std::int16_t shift;
    std::string_view shifted;
  } cases[] = {
      {"Ahoj, Čecho!"_w, 1, "Bipk, Čfdip!"_w},
      {"Zz", 1, "Aa"},
      {"aZ\r\n09@[`{", 26, "aZ\r\n09@[`{"},
      {"aZ", 0, "aZ"},
      {"MNmn", 13, "ZAza"},
      {"A", 60, "C"},  // required: one turn is taken back, no more, and the case forced on what comes out
      {"A", -1, "@"},
      {"", 5, ""},
  };
  for (const auto& c : cases) EXPECT_EQ(Shiftp(c.text, c.shift), c.shifted) << c.text << ' ' << c.shift;
}

TEST(Shiftp, IsUndoneByTheRestOfTheAlphabet) {
  std::mt19937 random(2);
  for (int round = 0; round < 2000; ++round) {
    const auto shift = static_cast<std::int16_t>(random() % 27);
    const std::string text = RandomText(random, 100);
    const std::string there = Shiftp(text, shift);
    ASSERT_EQ(Shiftp(there, static_cast<std::int16_t>(26 - shift)), text);
    for (std::size_t i = 0; i < text.size(); ++i) {
      ASSERT_EQ(IsUpperChar(there.substr(i, 1)), IsUpperChar(text.substr(i, 1)));
      ASSERT_TRUE(LetterNumber(text[i]) != 0 || there[i] == text[i]);
    }
  }
}

TEST(Shiftp, UpperCharIsItsOwnUpperCase) {
  for (const std::string_view upper : {"A"_w, "Ž"_w, "5"_w, "."_w, "ß"_w, "Ab"_w}) EXPECT_TRUE(IsUpperChar(upper));
  for (const std::string_view lower : {"a"_w, "ž"_w, "aB"_w}) EXPECT_FALSE(IsUpperChar(lower));
}

TEST(Rotated, MovesTheFrontBehindTheRest) {
  EXPECT_EQ(Rotated("abcd", 1), "bcda");
  EXPECT_EQ(Rotated("abcd", 3), "dabc");
  for (const std::size_t all : {4, 5, 1000}) EXPECT_EQ(Rotated("abcd", all), "abcd");
  EXPECT_EQ(Rotated("\r\na", 1), "\na\r");
}

TEST(Cronfeld, ToldExamples) {
  const struct {
    std::string_view text;
    const char* password;
    std::string_view enciphered;
  } cases[] = {
      {"aa aa", "12", "bc cb"},    {"Z", "9", "I"},     {"aB", "1", "bC"},
      {"Čaa"_w, "123", "Čcd"_w},                                                   // "Č" uses up a digit
      {"a\r\na", "123", "b\r\nb"},                                                 // line ends too
      {"abc", "", "abc"},          {"abc", "0", "abc"}, {"aaaa", "-1E5", "abaf"},  // what is no digit counts as 0
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CronfeldEncipher(c.text, c.password), c.enciphered) << c.password;
    EXPECT_EQ(CronfeldDecipher(c.enciphered, c.password), c.text) << c.password;
  }
}

TEST(Cronfeld, DecipheringUndoesEnciphering) {
  std::mt19937 random(4);
  for (int round = 0; round < 3000; ++round) {
    std::string password;
    for (auto n = random() % 16; n > 0; --n) password += "0123456789-E"[random() % 12];
    const std::string text = RandomText(random, 100);
    ASSERT_EQ(CronfeldDecipher(CronfeldEncipher(text, password), password), text) << password;
    ASSERT_EQ(CronfeldEncipher(CronfeldDecipher(text, password), password), text) << password;
  }
}

TEST(Cronfeld, ThePasswordIsAWholeNumber) {
  const struct {
    const char *typed, *shown;
  } cases[] = {
      {"", "0"},
      {"007", "7"},
      {"abc", "0"},
      {" 42 ", "42"},
      {"12ab", "12"},
      {"1.9", "1"},
      {"-1.5", "-2"},
      {"-0.5", "-1"},
      {"1,9", "1"},
      {"1E3", "1000"},
      {"1.5E20", "1"},
      {"2E20", "2E+20"},
      {"999999999999999", "999999999999999"},
  };
  for (const auto& c : cases) EXPECT_EQ(PasswordText(c.typed), c.shown) << c.typed;
}

TEST(Cronfeld, RandomPasswordStaysInTheField) {
  EXPECT_EQ(RandomPassword([] { return 0.0; }), "100000000000000");
  EXPECT_EQ(RandomPassword([] { return 0.999999; }), "999999999999999");
  std::mt19937 random(6);
  for (int round = 0; round < 500; ++round) {
    const std::string password = RandomPassword([&] { return static_cast<double>(random()) / 4294967296.0; });
    ASSERT_EQ(PasswordText(password), password);
    ASSERT_EQ(password.size(), 15u);
  }
}

TEST(HackerTranscription, TakesEachLookAlike) {
  const struct {
    std::string_view text, first, last;
  } cases[] = {
      {"Qq Íí\r\n1@"_w, "QQ Íí\r\n1@"_w, "qq Íí\r\n1@"_w},
      {"ABCDEFGHIJKLMNOPQRSTUVWXYZ", "ABCDEFGHIJKLMNOPQRSTUVWXYZ", "&8(>3[6#|?<4W%09qr$+u^M*/2"},
      {"abcdefghijklmnopqrstuvwxyz", "ABCDEFGHIJKLMNOPQRSTUVWXYZ", "&8(>3[6#|?<4W%09qr$+u^M*/2"},
      {"", "", ""},
  };
  for (const auto& c : cases) {
    int draws = 0;
    EXPECT_EQ(HackerTranscription(c.text, [&] { return ++draws, 0.0; }), c.first);
    EXPECT_EQ(draws, static_cast<int>(c.text.size()));  // also for what has no look-alikes
    EXPECT_EQ(HackerTranscription(c.text, [] { return 0.9999; }), c.last);
  }
  // Each of the five of "W", equally wide.
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(HackerTranscription("w", [i] { return 0.2 * i + 0.1; }), std::string(1, "Ww~mM"[i]));
}

TEST(HackerTranscription, ReminderLiesUnderItsLetters) {
  const std::string reminder = LookAlikeReminder();
  // The column of a letter holds nothing but what the letter can become.
  std::vector<std::string> rows(1);
  for (const char ch : reminder) {
    if (ch == '\n') {
      rows.emplace_back();
    } else if (ch != '\r') {
      rows.back() += ch;
    }
  }
  ASSERT_EQ(rows.size(), 5u);
  for (std::size_t column = 0; column < 26; ++column) {
    std::string can_be;
    for (double r = 0.01; r < 1; r += 0.05) can_be += HackerTranscription(rows[0].substr(column, 1), [r] { return r; });
    for (const std::string& row : rows) {
      if (column >= row.size() || row[column] == ' ') continue;
      EXPECT_NE(can_be.find(row[column]), std::string::npos) << row << ' ' << column;
    }
  }
}

}  // namespace
}  // namespace pelmar
