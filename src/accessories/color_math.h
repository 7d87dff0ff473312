// The colour changes of the colour dialog, and the rows of its history. Channels are 0 to 255.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/color.h"
#include "platform/random.h"

namespace pelmar {

struct Channels {
  int red = 0;
  int green = 0;
  int blue = 0;
  bool operator==(const Channels&) const = default;
};

Channels ChannelsOf(Color color);
Color ColorOf(const Channels& channels);

Channels Inverted(const Channels& c);
Channels ToGrey(const Channels& c);
// Takes one draw for each channel, red first.
Channels RandomChannels(const Draw& draw);
// A tenth less, a tenth more. Halves are rounded to the even number.
Channels Darker(const Channels& c);
Channels Lighter(const Channels& c);
Channels Rotated(const Channels& c);
// Move all channels by the same number, which brings the lowest to 0, or the highest to 255. required: if two channels
// share the lowest value, LowestToZero changes nothing; if two share the highest value, HighestToFull gives white.
Channels LowestToZero(const Channels& c);
Channels HighestToFull(const Channels& c);
Channels MeanToMiddle(const Channels& c);

// For example "012,255,000".
std::string HistoryRow(const Channels& c);
// required: green is read from the comma before its digits, so green is 0.
Channels FromHistoryRow(std::string_view row);

}  // namespace pelmar
