// Four plain sums over the codes of a text. required: they are called CRC, but none of them is one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pelmar {

struct CheckSums {
  std::int64_t crc = 0;         // all codes
  std::int64_t contra_crc = 0;  // XOR of each pair
  std::int64_t and_crc = 0;     // AND of each pair
  std::int64_t short_crc = 0;   // XOR of the ANDs of the two pairs in each four
};
// Characters at the end that fill no pair, or no four, count in the first sum alone.
CheckSums SumsOf(std::string_view text);

// The four lines of the message, UTF-8, each sum in hexadecimal and decimal.
std::string SumsMessage(const CheckSums& sums);

}  // namespace pelmar
