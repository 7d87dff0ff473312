#include "ciphers/xor_cipher.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "support/random_source.h"
#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

std::vector<int> KeyBytes(double key, int count) {
  ReproducibleGenerator generator;
  generator.Reseed(key);
  std::vector<int> bytes;
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<int>(generator.DrawUpTo(254)));
  return bytes;
}

// The same generator once more, by other means: the double taken apart by its value, the products summed up bit by bit
// and reduced at each step, the key byte from a division.
class SecondGenerator {
 public:
  explicit SecondGenerator(double key) : state_(0x800000 + 0xBF) {
    Next();
    const long long high = HighHalf(key);
    const long long low_part = high % 65536;
    const long long high_part = high / 65536;
    long long folded = 0;
    for (long long bit = 1; bit < 65536; bit *= 2)
      if (low_part / bit % 2 != high_part / bit % 2) folded += bit;
    state_ = state_ % 256 + folded * 256;
  }
  double Next() {
    long long sum = 12820163;
    long long addend = state_;
    for (long long factor = 1140671485; factor > 0; factor /= 2) {
      if (factor % 2 == 1) sum = (sum + addend) % 16777216;
      addend = addend * 2 % 16777216;
    }
    state_ = sum;
    return static_cast<double>(state_) / 16777216;
  }
  int NextKeyByte() { return static_cast<int>(std::floor(Next() * 254 + 1)); }

 private:
  static long long HighHalf(double key) {
    if (key == 0) return 0;
    int exponent = 0;
    const double mantissa = std::frexp(std::abs(key), &exponent);  // 0.5 to 1
    const auto fraction = static_cast<long long>(std::floor((mantissa * 2 - 1) * 1048576));
    return (key < 0 ? 2147483648 : 0) + (exponent + 1022LL) * 1048576 + fraction;
  }

  long long state_;
};

TEST(ReproducibleGenerator, GivesTheToldKeyBytes) {
  EXPECT_EQ(KeyBytes(0, 6), (std::vector{85, 82, 23, 137, 34, 246}));
  EXPECT_EQ(KeyBytes(1, 6), (std::vector{85, 18, 151, 195, 49, 137}));
  EXPECT_EQ(KeyBytes(123, 6), (std::vector{203, 6, 180, 134, 159, 19}));
}

TEST(ReproducibleGenerator, EqualsASecondImplementation) {
  std::vector<double> keys = {0, 1, -1, 0.5, 0.1, 1e15, 1e-300, 1.5e308, -12345678901234, 65535, 65536};
  RandomSource random(3);
  for (int i = 0; i < 1000; ++i) keys.push_back(std::ldexp(random.Next(), static_cast<int>(random.Below(1000)) - 500));
  for (const double key : keys) {
    ReproducibleGenerator generator;
    ReproducibleGenerator bytes;
    generator.Reseed(key);
    bytes.Reseed(key);
    SecondGenerator second(key);
    SecondGenerator second_bytes(key);
    for (int i = 0; i < 300; ++i) {
      ASSERT_EQ(generator.Draw(), second.Next()) << key;
      const auto byte = static_cast<int>(bytes.DrawUpTo(254));
      ASSERT_EQ(byte, second_bytes.NextKeyByte()) << key;
      ASSERT_TRUE(byte >= 1 && byte <= 254);
    }
  }
}

TEST(KeyText, IsANumberAndNoPassword) {
  const std::pair<const char*, const char*> cases[] = {{"", "0"},
                                                       {"12ab", "12"},
                                                       {"1.5", "1"},
                                                       {"1,5", "1"},
                                                       {"-", "0"},
                                                       {"-0.5", "0"},
                                                       {"1E5", "100000"},
                                                       {"1E20", "1E+20"},
                                                       {"1.5E-7", "1"},
                                                       {"1E999", "1E+99"},
                                                       {"123456789012345", "123456789012345"}};
  for (const auto& [typed, shown] : cases) EXPECT_EQ(KeyText(typed), shown) << typed;
}

// Runs of a document through the whole rewrite.
struct StreamTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer document;
  std::string output;
  std::vector<std::size_t> progress;

  std::string Rewritten(std::string_view text, double key) {
    document.SetText(std::string(text));
    RewriteStream(document, key, output, platform, [this](std::size_t done) {
      progress.push_back(done);
      return true;
    });
    return document.Text();
  }
};

TEST_F(StreamTest, IsTheTextAgainstTheKeyBytesWithoutTheZeros) {
  RandomSource random(1);
  for (int round = 0; round < 1000; ++round) {
    const double key = random.Next() * 1e9 / (round % 2 ? 1 : -7);
    const std::string text = random.Bytes(120);
    const std::vector<int> bytes = KeyBytes(key, static_cast<int>(text.size()));
    std::string expected, once;
    for (std::size_t i = 0; i < text.size(); ++i)
      if (const int code = CodeOf(text[i]) ^ bytes[i]) expected += CharOf(code);
    StreamCipher(key).Append(text, once);
    ASSERT_EQ(once, expected);
  }
}

TEST_F(StreamTest, DropsTheCharacterThatEqualsItsKeyByte) {
  // Key 0 begins 85, 82, 23: "U" gives 0 and is lost, "R" behind it too.
  EXPECT_EQ(Rewritten("URa", 0), std::string(1, CharOf('a' ^ 23)));
  EXPECT_NE(Rewritten(document.Text(), 0), "a");
}

TEST_F(StreamTest, WarnsOfCode8AndGoesOn) {
  const std::string text("a\bb\b", 4);
  platform.answers = {Answer::kOk, Answer::kNo, Answer::kOk, Answer::kNo};
  Rewritten(text, 7);
  std::string plain;
  StreamCipher(7).Append(text, plain);
  EXPECT_EQ(document.Text(), plain);
  const std::vector<std::string> warning = {"message 0 \"Porusena intengrita textu!\" \"Kódování\"",
                                            "message 52 \"Ukončit proces? (doporučuji ne)\" \"Kódování\""};
  EXPECT_EQ(platform.calls, (std::vector{warning[0], warning[1], warning[0], warning[1]}));
  EXPECT_EQ(progress, (std::vector<std::size_t>{1, 2, 2, 3, 4, 4}));  // at the character that a warning is about
}

TEST_F(StreamTest, ReadsADocumentThatChangesUnderIt) {
  const std::string text(20000, 'a');
  const auto run = [&](const std::function<bool(std::size_t)>& meanwhile) {
    document.SetText(text);
    RewriteStream(document, 3, output, platform, meanwhile);
  };
  std::string all_a;
  StreamCipher(3).Append(text, all_a);

  std::size_t turned = 0;
  run([&](std::size_t done) {
    if (turned == 0) {
      turned = done;
      document.SetText(std::string(30000, 'b'));
    }
    return true;
  });
  // The length was taken once, each character at its turn.
  StreamCipher cipher(3);
  std::string expected;
  cipher.Append(std::string(turned, 'a'), expected);
  cipher.Append(std::string(text.size() - turned, 'b'), expected);
  EXPECT_EQ(document.Text(), expected);

  run([&](std::size_t) {
    document.SetText("short");
    return true;
  });
  EXPECT_EQ(document.Text(), all_a.substr(0, output.size()));
  EXPECT_LT(output.size(), text.size());

  run([&](std::size_t) { return false; });
  EXPECT_EQ(document.Text(), text);
}

TEST(PrimitiveRewrite, TakesEachCodeFrom256) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  std::string all;
  for (int code = 0; code < 256; ++code) all += CharOf(code);
  editor.text.SetText(all);
  platform.answers = {Answer::kOk, Answer::kOk};
  editor.commands.Run("mnuZaKodPrim");
  for (int code = 0; code < 256; ++code)
    EXPECT_EQ(CodeOf(editor.text.Text()[static_cast<std::size_t>(code)]), (256 - code) % 256);
  EXPECT_EQ(platform.calls, std::vector<std::string>{"message 0 \"Ukončeno kódování.\" \"kód\""});
  editor.commands.Run("mnuZaKodPrim");
  EXPECT_EQ(editor.text.Text(), all);
}

}  // namespace
}  // namespace pelmar
