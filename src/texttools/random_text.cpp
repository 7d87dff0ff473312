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

// Which of the numbers 0 to n - 1 are still there: counted over stretches of twofold lengths, so that to take the k-th
// one out costs log n, where closing the gap in a list would cost n.
class Remaining {
 public:
  explicit Remaining(std::size_t n) : counts_(std::bit_ceil(n + 1)) {
    // The stretch that ends with number i - 1 is as long as the lowest bit of i. What lies behind n is never taken.
    for (std::size_t i = 1; i < counts_.size(); ++i) counts_[i] = i & (~i + 1);
  }

  // Takes the k-th (from 0) of those that are left.
  std::size_t Take(std::size_t k) {
    std::size_t place = 0;
    for (std::size_t length = counts_.size() / 2; length > 0; length /= 2) {
      std::size_t& count = counts_[place + length];
      if (k < count) {
        --count;
      } else {
        k -= count;
        place += length;
      }
    }
    return place;
  }

 private:
  std::vector<std::size_t> counts_;
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
    const std::size_t word = remaining.Take(DrawBelow(draw, left));
    out.append(text, starts[word], starts[word + 1] - starts[word]);
  }
  return out;
}

}  // namespace pelmar
