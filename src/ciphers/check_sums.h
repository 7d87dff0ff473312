// Four sums over the codes of a text. required: they are called CRC, but are no CRC.
#pragma once

#include <cstdint>
#include <string_view>

namespace pelmar {

struct Editor;

struct CheckSums {
  std::int64_t crc = 0;         // all codes
  std::int64_t contra_crc = 0;  // XOR of each pair
  std::int64_t and_crc = 0;     // AND of each pair
  std::int64_t short_crc = 0;   // XOR of the ANDs of the two pairs in each four
};
// Only `crc` counts the characters after the last whole pair or four.
CheckSums SumsOf(std::string_view text);

// Adds the command that shows the sums of the document.
void AddCheckSumCommand(Editor& editor);

}  // namespace pelmar
