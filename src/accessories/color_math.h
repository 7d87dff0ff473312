// The transformations of the colour dialog and the rows of its history. Channels are 0 to 255.
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
// One draw a channel, red first.
Channels RandomChannels(const Draw& draw);
// A tenth less or more; halves go to the even neighbour.
Channels Darker(const Channels& c);
Channels Lighter(const Channels& c);
Channels Rotated(const Channels& c);
// The lowest channel to 0, the highest to 255. required: with a tie no channel is the extreme one, so the first changes
// nothing and the second makes white.
Channels LowestToZero(const Channels& c);
Channels HighestToFull(const Channels& c);
Channels MeanToMiddle(const Channels& c);

// "012,255,000"
std::string HistoryRow(const Channels& c);
// required: green is read from the comma on, so it comes out as 0.
Channels FromHistoryRow(std::string_view row);

}  // namespace pelmar
