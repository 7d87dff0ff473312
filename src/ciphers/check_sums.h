// Four sums over the codes of a text. required: they are called CRC, but are no CRC.
#pragma once

#include <cstdint>
#include <string_view>

namespace pelmar {

struct Editor;

// The text is divided into groups of characters. Each group gives one value, and a field is the sum of these values. A
// group is one character for `crc`, two characters for `contra_crc` and `and_crc`, and four for `short_crc`. The
// comment at the field names the value.
struct CheckSums {
  std::int64_t crc = 0;         // the code
  std::int64_t contra_crc = 0;  // the XOR of the two codes
  std::int64_t and_crc = 0;     // the AND of the two codes
  std::int64_t short_crc = 0;   // the AND of the first two codes, XOR the AND of the last two
};
// An incomplete group at the end of the text gives no value.
CheckSums SumsOf(std::string_view text);

// Adds the command that shows the sums of the document.
void AddCheckSumCommand(Editor& editor);

}  // namespace pelmar
