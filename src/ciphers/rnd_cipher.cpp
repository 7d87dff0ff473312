#include "ciphers/rnd_cipher.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "shell/common.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// Tells the progress some thirty times in a text, and at its end.
class Milestones {
 public:
  Milestones(const Progress& progress, std::size_t all) : progress_(progress), all_(all), step_(all / 32 + 1) {}
  void Pass(std::size_t done) {
    if (done < next_ || !progress_) return;
    progress_(done);
    next_ = std::min(done + step_, all_);
  }

 private:
  const Progress& progress_;
  std::size_t all_;
  std::size_t step_;
  std::size_t next_ = 0;
};

// Finds symbols by digits. Every run of `depth` digits in a code is filed once, so that a block of text costs one
// look-up whatever the codes are like.
class CodeIndex {
 public:
  explicit CodeIndex(const CipherTable& table) : codes_(table.SymbolCodes), depth_(table.Depth) {
    for (std::size_t symbol = 0; symbol < kSymbols; ++symbol) {
      const std::string_view code = codes_[symbol];
      for (std::size_t at = 0; at + depth_ <= code.size(); ++at) symbols_[code.substr(at, depth_)] = symbol;
    }
  }

  // The last symbol whose code holds the digits, kSymbols where none does.
  [[nodiscard]] std::size_t Find(std::string_view digits) const {
    if (digits.size() == depth_) {
      const auto found = symbols_.find(digits);
      return found == symbols_.end() ? kSymbols : found->second;
    }
    for (std::size_t symbol = kSymbols; symbol-- > 0;)
      if (codes_[symbol].find(digits) != std::string::npos) return symbol;
    return kSymbols;
  }

 private:
  const std::array<std::string, kSymbols>& codes_;
  std::size_t depth_;
  std::unordered_map<std::string_view, std::size_t> symbols_;
};

std::string DigitsOf(std::string_view letters, std::string_view zero_letters) {
  std::array<char, 256> digit_of{};
  digit_of.fill('1');
  for (const char letter : zero_letters) digit_of[static_cast<std::size_t>(CodeOf(letter))] = '0';
  std::string digits(letters);
  for (char& ch : digits) ch = digit_of[static_cast<std::size_t>(CodeOf(ch))];
  return digits;
}

}  // namespace

std::string PrepareText(std::string_view text) {
  std::string plain = StripDiacritics(ToUpper(text));
  std::erase_if(plain, [](char ch) { return kSymbolCharacters.find(ch) == std::string_view::npos; });
  return plain;
}

std::string RndEncipher(std::string_view text, const CipherTable& table, const Draw& draw, const Progress& progress) {
  Milestones milestones(progress, text.size());
  std::string out;
  out.reserve(text.size() * table.Depth);
  std::string_view code;
  for (std::size_t i = 0; i < text.size(); ++i) {
    milestones.Pass(i);
    const std::size_t symbol = kSymbolCharacters.find(text[i]);
    if (symbol < kSymbols) code = table.SymbolCodes[symbol];
    for (std::size_t j = 0; j < table.Depth; ++j) {
      const bool zero = j < code.size() && code[j] == '0';
      const std::string& letters = zero ? table.ZeroLetters : table.OneLetters;
      const std::size_t drawn = DrawBelow(draw, letters.size());
      if (drawn < letters.size()) out += letters[drawn];
    }
  }
  milestones.Pass(text.size());
  return out;
}

std::string RndDecipher(std::string_view text, const CipherTable& table, const Progress& progress) {
  if (table.Depth == 0) return {};
  const std::string digits = DigitsOf(text, table.ZeroLetters);
  const CodeIndex index(table);
  Milestones milestones(progress, digits.size());
  std::string out;
  std::size_t found = kSymbols;
  for (std::size_t at = 0; at < digits.size(); at += table.Depth) {
    milestones.Pass(at);
    const std::size_t match = index.Find(std::string_view(digits).substr(at, table.Depth));
    if (match < kSymbols) found = match;
    if (found < kSymbols) out += kSymbolCharacters[found];
  }
  milestones.Pass(digits.size());
  return out;
}

}  // namespace pelmar
