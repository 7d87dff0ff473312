// A random source with a fixed sequence. An enciphered text can only be read with the same numbers, so do not change
// anything in this file.
#pragma once

#include <bit>
#include <cstdint>

namespace pelmar {

class ReproducibleGenerator {
 public:
  // required: only the high 32 bits of the key have an effect, folded to 16 bits. Keys that differ only in the low 32
  // bits give the same numbers.
  void Reseed(double key) {
    constexpr std::uint32_t kReset = 0x8000BF;
    state_ = kReset;
    Step();
    const auto high = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(key) >> 32);
    const std::uint32_t folded = (high ^ high >> 16) & 0xFFFF;
    state_ = (state_ & 0xFF) | folded << 8;
  }

  // The next draw r, 0 <= r < 1. Call Reseed before the first draw.
  float Draw() { return static_cast<float>(Step()) / static_cast<float>(kModulus); }

  // A number from 1 to `range`: the integer part of r * range + 1, where r is the next draw. `range` is at most 256.
  std::uint32_t DrawUpTo(std::uint32_t range) { return (Step() * range >> kBits) + 1; }

 private:
  static constexpr int kBits = 24;
  static constexpr std::uint32_t kModulus = std::uint32_t{1} << kBits;

  std::uint32_t Step() { return state_ = (state_ * 1140671485u + 12820163u) % kModulus; }

  std::uint32_t state_ = 0;
};

}  // namespace pelmar
