#include "ciphers/rnd_cipher.h"

#include "shell/common.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::size_t kProgressStep = 1024;  // characters or groups between two calls of `progress`

// The index of the last symbol whose code contains the digits. kSymbols if no code contains them.
std::size_t SymbolOf(const CipherTable& table, std::string_view digits) {
  for (std::size_t symbol = kSymbols; symbol-- > 0;)
    if (table.symbol_codes[symbol].find(digits) != std::string::npos) return symbol;
  return kSymbols;
}

std::string DigitsOf(std::string_view letters, std::string_view zero_letters) {
  std::string digits(letters);
  for (char& ch : digits) ch = zero_letters.find(ch) == std::string_view::npos ? '1' : '0';
  return digits;
}

}  // namespace

std::string PrepareText(std::string_view text) {
  std::string plain = StripDiacritics(ToUpper(text));
  std::erase_if(plain, [](char ch) { return kSymbolCharacters.find(ch) == std::string_view::npos; });
  return plain;
}

std::string RndEncipher(std::string_view text, const CipherTable& table, const Draw& draw, const Progress& progress) {
  std::string out;
  out.reserve(text.size() * table.depth);
  std::string_view code;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i % kProgressStep == 0) progress(i);
    const std::size_t symbol = kSymbolCharacters.find(text[i]);
    if (symbol < kSymbols) code = table.symbol_codes[symbol];
    for (std::size_t j = 0; j < table.depth; ++j) {
      const bool zero = j < code.size() && code[j] == '0';
      const std::string& letters = zero ? table.zero_letters : table.one_letters;
      const std::size_t drawn = DrawBelow(draw, letters.size());
      if (drawn < letters.size()) out += letters[drawn];
    }
  }
  progress(text.size());
  return out;
}

std::string RndDecipher(std::string_view text, const CipherTable& table, const Progress& progress) {
  if (table.depth == 0) return {};
  const std::string digits = DigitsOf(text, table.zero_letters);
  std::string out;
  std::size_t found = kSymbols;
  for (std::size_t at = 0; at < digits.size(); at += table.depth) {
    if (at % (kProgressStep * table.depth) == 0) progress(at);
    const std::size_t match = SymbolOf(table, std::string_view(digits).substr(at, table.depth));
    if (match < kSymbols) found = match;
    if (found < kSymbols) out += kSymbolCharacters[found];
  }
  progress(digits.size());
  return out;
}

}  // namespace pelmar
