#include "accessories/color_math.h"

#include <algorithm>
#include <cmath>

#include "text/number_text.h"

namespace pelmar {
namespace {

template <class Function>
Channels Each(const Channels& c, Function function) {
  return {function(c.red), function(c.green), function(c.blue)};
}

int Mean(const Channels& c) { return (c.red + c.green + c.blue) / 3; }

int NumberOf(std::string_view text) { return static_cast<int>(LeadingNumber(text)); }

// The channel that comes before both others in the order of `before`, 0 if no channel does.
template <class Before>
int StrictExtreme(const Channels& c, Before before) {
  if (before(c.red, c.green) && before(c.red, c.blue)) return c.red;
  if (before(c.green, c.red) && before(c.green, c.blue)) return c.green;
  if (before(c.blue, c.red) && before(c.blue, c.green)) return c.blue;
  return 0;
}

}  // namespace

Channels ChannelsOf(Color color) { return {RedOf(color), GreenOf(color), BlueOf(color)}; }
Color ColorOf(const Channels& c) { return Rgb(c.red, c.green, c.blue); }

Channels Inverted(const Channels& c) {
  return Each(c, [](int v) { return 255 - v; });
}

Channels ToGrey(const Channels& c) { return {Mean(c), Mean(c), Mean(c)}; }

Channels RandomChannels(const Draw& draw) {
  Channels c;
  for (int* channel : {&c.red, &c.green, &c.blue}) *channel = static_cast<int>(DrawBelow(draw, 256));
  return c;
}

Channels Darker(const Channels& c) {
  return Each(c, [](int v) { return static_cast<int>(std::nearbyint(v * 0.9)); });
}

Channels Lighter(const Channels& c) {
  return Each(c, [](int v) { return v * 1.1 <= 255 ? static_cast<int>(std::nearbyint(v * 1.1)) : 255; });
}

Channels Rotated(const Channels& c) { return {c.green, c.blue, c.red}; }

Channels LowestToZero(const Channels& c) {
  const int lowest = StrictExtreme(c, std::less<>());
  return Each(c, [lowest](int v) { return v - lowest; });
}

Channels HighestToFull(const Channels& c) {
  const int highest = StrictExtreme(c, std::greater<>());
  return Each(c, [highest](int v) { return std::min(v + 255 - highest, 255); });
}

Channels MeanToMiddle(const Channels& c) {
  return Each(c, [mean = Mean(c)](int v) { return std::clamp(v + 128 - mean, 0, 255); });
}

std::string HistoryRow(const Channels& c) {
  return ZeroPadded(c.red, 3) + "," + ZeroPadded(c.green, 3) + "," + ZeroPadded(c.blue, 3);
}

Channels FromHistoryRow(std::string_view row) { return {NumberOf(row), 0, NumberOf(row.substr(row.size() - 3))}; }

}  // namespace pelmar
