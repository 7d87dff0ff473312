// The key of the RND cipher: a code of binary digits for each of 29 symbols, and the letters that stand for the digits.
// A table from a file may differ: its codes and its sets of letters may have any length and any characters, and its
// depth may be 0. All functions accept such a table.
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
  std::uint8_t depth = 0;  // the number of digits that the cipher uses for a symbol
  std::string one_letters;
  std::string zero_letters;
  std::string note;
};

// Makes new codes of `depth` digits. Takes two draws for each digit. required: two symbols may get the same code.
void GenerateCodes(CipherTable& table, int depth, const Draw& draw);

// Divides the letters A to Z between the two sets at random. Takes two draws for each letter.
void GenerateLetterSplit(CipherTable& table, const Draw& draw);

// The rows of the two lists in the window.
std::vector<std::string> CodeRows(const CipherTable& table);
std::vector<std::string> LetterRows(const CipherTable& table);

enum class CountedDigits { kAll, kFirstEight };
// The line with the coefficients of the letters (A) and of the digits (B) and their product. 1 is perfect balance.
// Nothing if a coefficient would divide by zero. required: the window passes kAll only after it has generated codes and
// letters in one step, in all other cases kFirstEight.
std::optional<std::string> CoefficientsText(const CipherTable& table, CountedDigits counted);

}  // namespace pelmar
