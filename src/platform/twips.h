// The unit of places and sizes of windows: 1440 twips to the inch, 15 to the logical pixel.
#pragma once

namespace pelmar {

inline constexpr int kTwipsPerPixel = 15;
constexpr int TwipsOf(int pixels) { return pixels * kTwipsPerPixel; }
// Rounded to the nearest pixel.
constexpr int PixelsOf(int twips) { return (twips + (twips < 0 ? -7 : 7)) / kTwipsPerPixel; }

struct TwipsRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const TwipsRect&) const = default;
};

}  // namespace pelmar
