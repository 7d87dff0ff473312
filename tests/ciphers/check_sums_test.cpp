#include "ciphers/check_sums.h"

#include <gtest/gtest.h>

#include <array>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(CheckSums, ToldExamples) {
  const struct {
    std::string text;
    std::int64_t crc, contra_crc, and_crc, short_crc;
  } cases[] = {
      {"", 0, 0, 0, 0},
      {"A", 65, 0, 0, 0},
      {"ABC", 198, 3, 64, 0},      // the last has no partner
      {"ABCDE", 335, 10, 128, 0},  // nor a four
      {"\xFF\xFF\x0F\x0F", 540, 0, 270, 240},
      {"BADC", 266, 10, 128, 0},  // swapped within the pairs: the same as "ABCD"
      {"ACBD", 266, 8, 129, 1},   // swapped between them: not
  };
  for (const auto& c : cases) {
    const CheckSums sums = SumsOf(c.text);
    EXPECT_EQ((std::array{sums.crc, sums.contra_crc, sums.and_crc, sums.short_crc}),
              (std::array{c.crc, c.contra_crc, c.and_crc, c.short_crc}))
        << c.text;
  }
}

TEST(CheckSums, AreToldInFourLines) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  editor.text.SetText("ABCD");
  platform.answers = {Answer::kOk};
  editor.commands.Run("mnu_crc");
  EXPECT_EQ(platform.calls.back(),
            "message 64 \"CRC součet je #10A (266)\r\nContraCRC součet je #A (10)\r\n&CRC součet je #80 (128)\r\n"
            "ShortCRC součet je #0 (0)\" \"CRC\"");
}

}  // namespace
}  // namespace pelmar
