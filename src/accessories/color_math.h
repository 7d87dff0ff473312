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
// Make each channel a tenth less or a tenth more, at most 255. Results are rounded to whole numbers.
Channels Darker(const Channels& c);
Channels Lighter(const Channels& c);
Channels Rotated(const Channels& c);
// Lowers all channels by the lowest value. required: changes nothing if channels share the lowest value.
Channels LowestToZero(const Channels& c);
// Raises all channels by the same number, so that the highest becomes 255. required: gives white if channels share the
// highest value.
Channels HighestToFull(const Channels& c);
Channels MeanToMiddle(const Channels& c);

// For example "012,255,000".
std::string HistoryRow(const Channels& c);
// Reads a row of HistoryRow. required: green is lost and becomes 0.
Channels FromHistoryRow(std::string_view row);

}  // namespace pelmar
