#include "accessories/color_math.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

TEST(ColorMath, Commands) {
  EXPECT_EQ(Inverted({0, 100, 255}), (Channels{255, 155, 0}));
  EXPECT_EQ(ToGrey({1, 1, 3}), (Channels{1, 1, 1}));
  EXPECT_EQ(Rotated({1, 2, 3}), (Channels{2, 3, 1}));
  EXPECT_EQ(Darker({1, 5, 255}), (Channels{1, 4, 230}));  // 4.5 and 229.5 go to the even neighbour
  EXPECT_EQ(Lighter({0, 5, 232}), (Channels{0, 6, 255}));
  EXPECT_EQ(Lighter({231, 10, 15}), (Channels{254, 11, 16}));
  EXPECT_EQ(MeanToMiddle({200, 200, 200}), (Channels{128, 128, 128}));
  EXPECT_EQ(MeanToMiddle({255, 0, 0}), (Channels{255, 43, 43}));
  double draw = 0.0;
  EXPECT_EQ(RandomChannels([&draw] { return (draw += 0.25) - 0.25; }), (Channels{0, 64, 128}));
}

// required: a tie for the extreme place has no winner
TEST(ColorMath, StrictExtremes) {
  EXPECT_EQ(LowestToZero({10, 20, 30}), (Channels{0, 10, 20}));
  EXPECT_EQ(LowestToZero({20, 30, 10}), (Channels{10, 20, 0}));
  EXPECT_EQ(LowestToZero({10, 10, 30}), (Channels{10, 10, 30}));
  EXPECT_EQ(HighestToFull({10, 55, 30}), (Channels{210, 255, 230}));
  EXPECT_EQ(HighestToFull({10, 55, 55}), (Channels{255, 255, 255}));
}

TEST(ColorMath, HistoryRowLosesGreen) {
  EXPECT_EQ(HistoryRow({1, 22, 255}), "001,022,255");
  EXPECT_EQ(FromHistoryRow("001,022,255"), (Channels{1, 0, 255}));  // required
  EXPECT_EQ(ColorOf(ChannelsOf(0x123456)), 0x123456);
}

}  // namespace
}  // namespace pelmar
