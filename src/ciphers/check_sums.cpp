#include "ciphers/check_sums.h"

#include <cstdio>
#include <string>

#include "shell/common.h"
#include "shell/editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

std::string Line(std::string_view name, std::int64_t sum) {
  char digits[48];
  std::snprintf(digits, sizeof digits, "%llX (%lld)", static_cast<unsigned long long>(sum),
                static_cast<long long>(sum));
  return std::string(name) + " součet je #" + digits;
}

// A line for each sum, in hexadecimal and decimal. UTF-8.
std::string SumsMessage(const CheckSums& sums) {
  return JoinLines({Line("CRC", sums.crc), Line("ContraCRC", sums.contra_crc), Line("&CRC", sums.and_crc),
                    Line("ShortCRC", sums.short_crc)});
}

}  // namespace

CheckSums SumsOf(std::string_view text) {
  CheckSums sums;
  for (const char ch : text) sums.crc += CodeOf(ch);
  for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
    sums.contra_crc += CodeOf(text[i + 1]) ^ CodeOf(text[i]);
    sums.and_crc += CodeOf(text[i + 1]) & CodeOf(text[i]);
  }
  for (std::size_t i = 0; i + 3 < text.size(); i += 4)
    sums.short_crc += (CodeOf(text[i + 3]) & CodeOf(text[i + 2])) ^ (CodeOf(text[i + 1]) & CodeOf(text[i]));
  return sums;
}

void AddCheckSumCommand(Editor& editor) {
  editor.commands.Add("mnu_crc", [&editor] {
    editor.platform.Message(MessageType::kOkInfo, SumsMessage(SumsOf(editor.text.Text())), "CRC");
  });
}

}  // namespace pelmar
