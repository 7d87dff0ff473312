#include "ciphers/cipher_table.h"

#include <algorithm>
#include <cmath>

#include "text/number_text.h"

namespace pelmar {
namespace {

// The digit 1 (true) or 0: the integer part of the sum of two draws.
bool DrawDigit(const Draw& draw) {
  const double first = draw();
  return first + draw() >= 1;
}

// 1 if both parts have the same size, otherwise more. `other` must not be 0.
double Imbalance(std::size_t part, std::size_t other) {
  return std::abs(static_cast<double>(part) / static_cast<double>(other) - 1) + 1;
}

// The name of a symbol, padded to 8 characters.
std::string ShownSymbol(char symbol) {
  if (symbol == ' ') return R"(" "     )";
  if (symbol == '\r') return "Chr(13) ";
  if (symbol == '\n') return "Chr(10) ";
  return symbol + std::string(7, ' ');
}

}  // namespace

void GenerateCodes(CipherTable& table, int depth, const Draw& draw) {
  table.depth = static_cast<std::uint8_t>(depth);
  for (std::string& code : table.symbol_codes) {
    code.clear();
    for (int digit = 0; digit < depth; ++digit) code += DrawDigit(draw) ? '1' : '0';
  }
}

void GenerateLetterSplit(CipherTable& table, const Draw& draw) {
  table.one_letters.clear();
  table.zero_letters.clear();
  for (char letter = 'A'; letter <= 'Z'; ++letter) (DrawDigit(draw) ? table.one_letters : table.zero_letters) += letter;
}

std::vector<std::string> CodeRows(const CipherTable& table) {
  std::vector<std::string> rows{"Hloubka: " + std::to_string(table.depth)};
  for (std::size_t i = 0; i < kSymbols; ++i) rows.push_back(ShownSymbol(kSymbolCharacters[i]) + table.symbol_codes[i]);
  return rows;
}

std::vector<std::string> LetterRows(const CipherTable& table) {
  std::vector<std::string> rows;
  for (const char letter : table.zero_letters) rows.push_back(std::string("0 : ") + letter);
  rows.emplace_back("-----");
  for (const char letter : table.one_letters) rows.push_back(std::string("1 : ") + letter);
  return rows;
}

std::optional<std::string> CoefficientsText(const CipherTable& table, CountedDigits counted) {
  constexpr std::size_t kFirst = 8;
  std::size_t ones = 0;
  std::size_t zeros = 0;
  for (const std::string_view code : table.symbol_codes) {
    const std::string_view digits = code.substr(0, counted == CountedDigits::kAll ? table.depth : kFirst);
    ones += static_cast<std::size_t>(std::ranges::count(digits, '1'));
    zeros += static_cast<std::size_t>(std::ranges::count(digits, '0'));
  }
  if (table.zero_letters.empty() || zeros == 0) return std::nullopt;
  const double a = Imbalance(table.one_letters.size(), table.zero_letters.size());
  const double b = Imbalance(ones, zeros);
  return "Koeficient A:" + FixedText(a, 5) + " Koeficient B:" + FixedText(b, 5) + " Celkem:" + FixedText(a * b, 9);
}

}  // namespace pelmar
