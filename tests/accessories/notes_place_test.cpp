#include "accessories/notes_place.h"
#include "platform/twips.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

constexpr int kWidth = 19200, kHeight = 15360;

NotesSurroundings Around(TwipsRect notes, StartMode mode, bool docked, int main_state) {
  return {notes, {1500, 600, 12000, 9000}, main_state, mode, docked, 240, kWidth, kHeight, 2700};
}

TEST(PlaceNotes, FollowsTheButtonAndTheMainWindow) {
  constexpr StartMode kEditor = StartMode::kEditor, kNotes = StartMode::kNotes;
  const struct {
    const char* what;
    TwipsRect notes;
    StartMode mode;
    bool docked;
    int main_state;
    TwipsRect expected;
  } kCases[] = {
      {"free", {300, 300, 6000, 4000}, kEditor, false, 0, {300, 300, 6000, 4000}},
      {"just within the distance", {239, 239, 6000, 4000}, kEditor, false, 0, {0, 0, 6000, 4000}},
      {"just outside of it", {240, 240, 6000, 4000}, kEditor, false, 0, {240, 240, 6000, 4000}},
      {"right and bottom", {13000, 11200, 6000, 4000}, kEditor, false, 2, {13200, 11360, 6000, 4000}},
      {"nearly as wide as the screen", {100, 3000, 18900, 4000}, kEditor, false, 0, {0, 3000, kWidth, 4000}},
      {"wider and partly off the screen", {-100, 3000, kWidth, 4000}, kNotes, false, 0, {0, 3000, kWidth, 4000}},
      {"docked", {300, 300, 6000, 4000}, kEditor, true, 0, {13500, 600, 5700, 9000}},
      {"docked beside a minimised one", {100, 300, 6000, 4000}, kEditor, true, 1, {0, 300, 6000, 4000}},
      {"docked beside a maximised one", {100, 300, 6000, 4000}, kEditor, true, 2, {16500, 0, 2700, kHeight}},
      {"in the corner", {100, 100, 6000, 4000}, kNotes, true, 0, {13200, 11360, 6000, 4000}},
  };
  for (const auto& one : kCases)
    EXPECT_EQ(PlaceNotes(Around(one.notes, one.mode, one.docked, one.main_state)), one.expected) << one.what;
}

TEST(PlaceNotes, KeepsItsWidthWhereTheMainWindowReachesTheEdge) {
  NotesSurroundings around = Around({0, 0, 6000, 4000}, StartMode::kEditor, true, 0);
  around.main.width = kWidth - around.main.left;
  EXPECT_EQ(PlaceNotes(around), (TwipsRect{kWidth, 600, 6000, 9000}));
  around.main.width -= 300;  // less room than the window needs
  EXPECT_EQ(PlaceNotes(around), (TwipsRect{kWidth - 300, 600, 2700, 9000}));
}

// Places that the timer asks for, as far as the window takes them.
TEST(NotesTimer, AsksAgainUntilItIsObeyedOrGivesUp) {
  NotesTimer timer;
  const auto asks = [&timer](const NotesSurroundings& now) {
    int times = 0;
    for (int tick = 0; tick < 80; ++tick) times += timer.Tick(now).has_value();
    return times;
  };
  const NotesSurroundings near_edge = Around({100, 300, 6000, 4000}, StartMode::kEditor, false, 0);
  EXPECT_EQ(timer.Tick(near_edge), (TwipsRect{0, 300, 6000, 4000}));
  EXPECT_EQ(timer.Tick(Around({0, 300, 6000, 4000}, StartMode::kEditor, false, 0)), std::nullopt);
  EXPECT_EQ(asks(near_edge), 50);  // refused for good
  EXPECT_EQ(asks(near_edge), 0);
  EXPECT_EQ(asks(Around({110, 300, 6000, 4000}, StartMode::kEditor, false, 0)), 50);  // until something moves
}

TEST(NotesTimer, GoesSlowlyBehindAQuietSecond) {
  NotesTimer timer;
  const NotesSurroundings there = Around({300, 300, 6000, 4000}, StartMode::kEditor, false, 0);
  timer.Tick(there);
  for (int tick = 0; tick < 99; ++tick) timer.Tick(there);
  EXPECT_EQ(timer.Interval(), 10);
  timer.Rest();  // minimised, it counts on
  EXPECT_EQ(timer.Interval(), 250);
  timer.Wake();
  EXPECT_EQ(timer.Interval(), 10);
  for (int tick = 0; tick < 100; ++tick) timer.Rest();
  NotesSurroundings wider = there;
  wider.snap_distance = 100000;  // no event tells of it
  EXPECT_NE(timer.Tick(wider), std::nullopt);
  EXPECT_EQ(timer.Interval(), 10);
}

}  // namespace
}  // namespace pelmar
