// The table of the RND cipher, which is its key: a code of binary digits for each of 29 symbols, and two sets of
// letters that stand for the digits. A table that was read from a file may hold anything: codes of other lengths or of
// other characters, empty sets, a depth of 0 to 255. Nothing here or in rnd_cipher relies on more.
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
  std::uint8_t depth = 0;  // digits in each code
  std::string one_letters;
  std::string zero_letters;
  std::string note;
};

// New codes of `depth` digits, 8 to 64. Two draws a digit. required: a new code isn't compared with those that are
// there already, so two symbols may get the same one, and then can't be told apart.
void GenerateCodes(CipherTable& table, int depth, const Draw& draw);

// Each letter goes into one of the two sets. Two draws a letter.
void GenerateLetterSplit(CipherTable& table, const Draw& draw);

// The rows of the two lists.
std::vector<std::string> CodeRows(const CipherTable& table);
std::vector<std::string> LetterRows(const CipherTable& table);

enum class CountedDigits { kAll, kFirstEight };
// The line of the two coefficients and their product, 1 for perfect balance; nothing where a set of letters or of
// digits to divide by is empty. required: which digits of the codes count depends on what made the table.
std::optional<std::string> CoefficientsText(const CipherTable& table, CountedDigits counted);

}  // namespace pelmar
