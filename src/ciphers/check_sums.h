// Four sums over the codes of a text. required: they are called CRC, but are no CRC.
#pragma once

#include <cstdint>
#include <string_view>

namespace pelmar {

struct Editor;

// `crc` adds one value for each character. `contra_crc` and `and_crc` add one for each pair, and `short_crc` adds one
// for each four characters.
struct CheckSums {
  std::int64_t crc = 0;         // the code
  std::int64_t contra_crc = 0;  // the XOR of the pair
  std::int64_t and_crc = 0;     // the AND of the pair
  std::int64_t short_crc = 0;   // the AND of the first pair, XOR the AND of the second pair
};
// An incomplete pair or four at the end of the text adds no value.
CheckSums SumsOf(std::string_view text);

// Adds the command that shows the sums of the document.
void AddCheckSumCommand(Editor& editor);

}  // namespace pelmar
