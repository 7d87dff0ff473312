#include "texttools/random_text.h"

#include <bit>
#include <vector>

#include "texttools/lines.h"

namespace pelmar {
namespace {

// A whole number from `least` on, `count` of them with equal chance.
int Pick(const Draw& draw, int count, int least) { return static_cast<int>(draw() * count) + least; }

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

// Which of the numbers 0 to n - 1 are still there, in a tree of counts: to take the k-th one out costs log n, where
// closing the gap in a list would cost n.
class Remaining {
 public:
  explicit Remaining(std::size_t n) : counts_(n + 1) {
    for (std::size_t i = 1; i <= n; ++i) counts_[i] = i & (~i + 1);
  }

  // Takes the k-th (from 0) of those that are left.
  std::size_t Take(std::size_t k) {
    std::size_t at = 0;
    for (std::size_t step = std::bit_floor(counts_.size()); step > 0; step /= 2) {
      const std::size_t next = at + step;
      if (next >= counts_.size() || counts_[next] > k) continue;
      at = next;
      k -= counts_[next];
    }
    for (std::size_t i = at + 1; i < counts_.size(); i += i & (~i + 1)) --counts_[i];
    return at;
  }

 private:
  std::vector<std::size_t> counts_;  // from 1; entry i counts the lowest-bit(i) numbers that end at i - 1
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
  const std::vector<std::string_view> words = WordsWithBlanks(text);
  Remaining remaining(words.size());
  std::string out;
  out.reserve(text.size());
  for (std::size_t left = words.size(); left > 0; --left)
    out += words[remaining.Take(static_cast<std::size_t>(draw() * static_cast<double>(left)))];
  return out;
}

}  // namespace pelmar
