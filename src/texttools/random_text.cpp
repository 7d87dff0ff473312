#include "texttools/random_text.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

#include "texttools/lines.h"

namespace pelmar {
namespace {

// A whole number from `least` on, `count` of them with equal chance.
int Pick(const Draw& draw, int count, int least) {
  return static_cast<int>(DrawBelow(draw, static_cast<std::size_t>(count))) + least;
}

char Letter(const Draw& draw) { return static_cast<char>('a' + Pick(draw, 26, 0)); }
char Capital(const Draw& draw) { return static_cast<char>('A' + Pick(draw, 26, 0)); }

void AppendLetters(std::string& text, int count, const Draw& draw) {
  for (; count > 0; --count) text += Letter(draw);
}

std::string NamePart(const Draw& draw) {
  const int small = Pick(draw, 9, 2) - 1;
  std::string part(1, Capital(draw));
  AppendLetters(part, small, draw);
  return part + ' ';
}

// The place of the k-th (from 0) set bit of a word that has more than k.
std::size_t PlaceOfBit(std::uint64_t bits, std::uint32_t k) {
  constexpr std::uint64_t kOnes = 0x0101010101010101;
  constexpr std::uint64_t kTops = kOnes << 7;
  // Each byte of `upto` counts the bits up to and with that byte.
  std::uint64_t upto = bits - (bits >> 1 & 0x5555555555555555);
  upto = (upto & 0x3333333333333333) + (upto >> 2 & 0x3333333333333333);
  upto = ((upto + (upto >> 4)) & 0x0F0F0F0F0F0F0F0F) * kOnes;
  // The bytes that end before the bit.
  const std::size_t byte = ((((kOnes * k | kTops) - upto) & kTops) >> 7) * kOnes >> 56;
  if (byte > 0) k -= static_cast<std::uint32_t>(upto >> 8 * (byte - 1) & 0xFF);
  std::uint64_t rest = bits >> 8 * byte;
  for (; k > 0; --k) rest &= rest - 1;
  return 8 * byte + static_cast<std::size_t>(std::countr_zero(rest));
}

// Which of the numbers 0 to n - 1 are still there: a bit for each, 64 to a word, and a tree over the words in which
// each node counts the bits below it. To take the k-th one out costs log n, where closing the gap in a list would cost
// n.
class Remaining {
 public:
  explicit Remaining(std::size_t n) : words_(std::bit_ceil(n / 64 + 1)), bits_(words_), counts_(2 * words_) {
    for (std::size_t i = 0; i < n; ++i) bits_[i / 64] |= std::uint64_t{1} << i % 64;
    for (std::size_t word = 0; word < words_; ++word)
      counts_[words_ + word] = static_cast<std::uint32_t>(std::popcount(bits_[word]));
    for (std::size_t node = words_ - 1; node > 0; --node) counts_[node] = counts_[2 * node] + counts_[2 * node + 1];
  }

  // Takes the k-th (from 0) of those that are left.
  std::size_t Take(std::uint32_t k) {
    std::size_t node = 1;
    while (node < words_) {
      --counts_[node];
      node *= 2;
      // Without a branch: which way to go is random, and a processor would guess wrong every other time.
      const std::uint32_t left = counts_[node];
      const bool right = k >= left;
      k -= right * left;
      node += right;
    }
    --counts_[node];
    const std::size_t place = PlaceOfBit(bits_[node - words_], k);
    // NOLINTNEXTLINE(clang-analyzer-core.UndefinedBinaryOperatorResult): the word has more than k bits
    bits_[node - words_] &= ~(std::uint64_t{1} << place);
    return (node - words_) * 64 + place;
  }

 private:
  std::size_t words_;
  std::vector<std::uint64_t> bits_;
  std::vector<std::uint32_t> counts_;  // the root at 1, the two below a node at twice its place
};

}  // namespace

std::string RandomSentence(const Draw& draw) {
  const int letters = Pick(draw, 41, 10) - 1;
  std::string text(1, Capital(draw));
  for (int i = 0; i < letters; ++i) {
    text += Letter(draw);
    if (Pick(draw, 4, 1) != 2) continue;
    if (Pick(draw, 4, 1) == 2) text += ',';
    text += ' ';
  }
  static constexpr std::string_view kStops[] = {". ", ". ", "? ", "! "};
  return text.append(kStops[Pick(draw, 4, 0)]);
}

std::string RandomWord(const Draw& draw) {
  std::string word;
  AppendLetters(word, Pick(draw, 9, 2), draw);
  return word + ' ';
}

std::string RandomName(const Draw& draw) {
  std::string name = NamePart(draw);
  return name.append(NamePart(draw));
}

std::string ShuffledWords(std::string_view text, const Draw& draw) {
  const std::vector<std::uint32_t> starts = WordStarts(text);
  std::string out;
  if (starts.empty()) return out;
  out.reserve(text.size());
  Remaining remaining(starts.size() - 1);
  for (std::size_t left = starts.size() - 1; left > 0; --left) {
    const std::size_t word = remaining.Take(static_cast<std::uint32_t>(DrawBelow(draw, left)));
    out.append(text, starts[word], starts[word + 1] - starts[word]);
  }
  return out;
}

}  // namespace pelmar
