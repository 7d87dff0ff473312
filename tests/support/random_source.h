// Random texts and draws. Equal seeds give equal results on every machine.
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace pelmar {

class RandomSource {
 public:
  explicit RandomSource(unsigned seed) : random_(seed) {}

  // A number from 0 to count - 1.
  std::size_t Below(std::size_t count) { return random_() % count; }
  // 0 to `most` characters of the alphabet. A character that the alphabet has twice is drawn twice as often.
  std::string Text(std::size_t most, std::string_view alphabet) {
    std::string text(Below(most + 1), ' ');
    for (char& ch : text) ch = alphabet[Below(alphabet.size())];
    return text;
  }
  // 0 to `most` characters of any code.
  std::string Bytes(std::size_t most) {
    std::string text(Below(most + 1), ' ');
    for (char& ch : text) ch = static_cast<char>(Below(256));
    return text;
  }
  double Next() { return static_cast<double>(random_()) / 4294967296.0; }

 private:
  std::mt19937 random_;
};

}  // namespace pelmar
