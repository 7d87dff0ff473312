#include <gtest/gtest.h>

#include "ciphers/cht.h"
#include "ciphers/cronfeld.h"
#include "ciphers/shift.h"
#include "support/random_source.h"
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
      {"MNmn", 13, "ZAza"},
      {"A", 60, "C"},  // required: one turn is taken back, no more, and the case forced on what comes out
      {"A", -1, "@"},
  };
  for (const auto& c : cases) EXPECT_EQ(Shiftp(c.text, c.shift), c.shifted) << c.text << ' ' << c.shift;
}

TEST(Shiftp, IsUndoneByTheRestOfTheAlphabet) {
  RandomSource random(2);
  for (int round = 0; round < 2000; ++round) {
    const auto shift = static_cast<std::int16_t>(random.Below(27));
    const std::string text = random.Bytes(100);
    const std::string there = Shiftp(text, shift);
    ASSERT_EQ(Shiftp(there, static_cast<std::int16_t>(26 - shift)), text);
    for (std::size_t i = 0; i < text.size(); ++i) {
      ASSERT_EQ(IsUpperChar(there.substr(i, 1)), IsUpperChar(text.substr(i, 1)));
      ASSERT_TRUE(LetterNumber(text[i]) != 0 || there[i] == text[i]);
    }
  }
}

TEST(Shiftp, UpperCharIsItsOwnUpperCase) {
  for (const std::string_view upper : {"A"_w, "Ž"_w, "."_w, "ß"_w, "Ab"_w, ""_w}) EXPECT_TRUE(IsUpperChar(upper));
  for (const std::string_view lower : {"a"_w, "ž"_w, "aB"_w}) EXPECT_FALSE(IsUpperChar(lower));
}

TEST(Rotated, MovesTheFrontBehindTheRest) {
  EXPECT_EQ(Rotated("a\r\nbcd", 1), "\r\nbcda");
  for (const std::size_t all : {4, 5, 1000}) EXPECT_EQ(Rotated("abcd", all), "abcd");
}

TEST(Cronfeld, ToldExamples) {
  const struct {
    std::string_view text;
    const char* password;
    std::string_view enciphered;
  } cases[] = {
      {"aa aa", "12", "bc cb"},    {"ZaB", "9", "IjK"}, {"Čaa"_w, "123", "Čcd"_w},  // "Č" uses up a digit
      {"a\r\na", "123", "b\r\nb"},                                                  // line ends too
      {"abc", "", "abc"},                                                           //
      {"aaaa", "-1E5", "abaf"},                                                     // what is no digit counts as 0
  };
  for (const auto& c : cases) EXPECT_EQ(CronfeldEncipher(c.text, c.password), c.enciphered) << c.password;
}

TEST(Cronfeld, DecipheringUndoesEnciphering) {
  RandomSource random(4);
  for (int round = 0; round < 3000; ++round) {
    const std::string password = random.Text(15, "0123456789-E"), text = random.Bytes(100);
    ASSERT_EQ(CronfeldDecipher(CronfeldEncipher(text, password), password), text) << password;
    ASSERT_EQ(CronfeldEncipher(CronfeldDecipher(text, password), password), text) << password;
  }
}

TEST(Cronfeld, ThePasswordIsAWholeNumber) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "0"},    {"007", "7"},    {" 42 ", "42"},  {"12ab", "12"},    {"-1.5", "-2"},
      {"1,9", "1"}, {"1E3", "1000"}, {"1.5E20", "1"}, {"2E20", "2E+20"}, {"999999999999999", "999999999999999"}};
  for (const auto& [typed, shown] : cases) EXPECT_EQ(PasswordText(typed), shown) << typed;
}

TEST(Cronfeld, RandomPasswordStaysInTheField) {
  EXPECT_EQ(RandomPassword([] { return 0.0; }), "100000000000000");
  EXPECT_EQ(RandomPassword([] { return 0.999999; }), "999999999999999");
}

TEST(HackerTranscription, TakesEachLookAlike) {
  // From the first look-alike of each letter to the last, equally wide.
  const std::string letters = "AaBCDEFGHIJKLMNOPQRSTUVWXYZz";
  std::string all;
  for (int i = 0; i < 5; ++i) all += HackerTranscription(letters, [i] { return 0.2 * i + 0.1; }) + '\n';
  EXPECT_EQ(all,
            "AABCDEFGHIJKLMNOPQRSTUVWXYZZ\n"
            "aaBCdEFGHiJKlmNOPQRsTUVwXYZZ\n"
            "@@bc)efgh1jk7~nopqr5tuv~xyzz\n"
            "@@8()3[6#!?<7w%09qr5+u^m*/22\n"
            "&&8(>3[6#|?<4W%09qr$+u^M*/22\n");
  int draws = 0;
  EXPECT_EQ(HackerTranscription("Qq Íí\r\n1@"_w, [&draws] { return ++draws, 0.9999; }), "qq Íí\r\n1@"_w);
  EXPECT_EQ(draws, 9);  // also for what has no look-alikes
}

TEST(HackerTranscription, ReminderShowsTheLookAlikes) {
  EXPECT_EQ(LookAlikeReminder(),
            "ABCDEFGHIJKLMNOPQRSTUVWXYZ\r\nabcdefghijklmnopqrstuvwxyz\r\n&8(>3[6#1?<7~%09  5+ ^M*/2\r\n"
            "@  )    !  4w     $   m\r\n        |   W");
}

}  // namespace
}  // namespace pelmar
