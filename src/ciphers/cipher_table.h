// The key of the RND cipher: a code of binary digits for each of 29 symbols, and the letters that stand for the digits.
// In a table from a file the codes may have any length and any characters, the sets of letters may be empty, and the
// depth is 0 to 255. All functions accept such a table.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/random.h"

namespace pelmar {

inline constexpr std::string_view kSymbolCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ \r\n";
inline constexpr std::size_t kSymbols = kSymbolCharacters.size();

struct CipherTable {
  std::array<std::string, kSymbols> symbol_codes;
  std::uint8_t depth = 0;  // the number of digits in a code
  std::string one_letters;
  std::string zero_letters;
  std::string note;
};

// Makes new codes of `depth` digits. Takes two draws for each digit. required: two symbols may get the same code.
void GenerateCodes(CipherTable& table, int depth, const Draw& draw);

// Divides the letters between the two sets. Takes two draws for each letter.
void GenerateLetterSplit(CipherTable& table, const Draw& draw);

// The rows of the two lists in the window.
std::vector<std::string> CodeRows(const CipherTable& table);
std::vector<std::string> LetterRows(const CipherTable& table);

enum class CountedDigits { kAll, kFirstEight };
// The line with the two coefficients and their product; 1 means perfect balance. Nothing if a coefficient would divide
// by zero. required: the window counts all digits only after it has generated codes and letters in one step, otherwise
// the first eight.
std::optional<std::string> CoefficientsText(const CipherTable& table, CountedDigits counted);

}  // namespace pelmar
