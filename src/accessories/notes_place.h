// Where the notes window goes on each tick of its timer: snapped to the screen's edges, docked beside the main window,
// at full height beside a maximised one, or in the screen's corner. Outer places in twips.
#pragma once

#include <optional>

#include "platform/twips.h"
#include "shell/main_view.h"
#include "shell/stand_alone.h"

namespace pelmar {

struct NotesSurroundings {
  TwipsRect notes;
  TwipsRect main;
  WindowMode main_state = WindowMode::kNormal;
  StartMode mode = StartMode::kEditor;
  bool docked = false;  // the button "Dock" is pressed
  int snap_distance = 0;
  TwipsRect screen;   // of the notes, or of the main window that they are docked to
  int narrowest = 0;  // the least width that the window takes
  bool operator==(const NotesSurroundings&) const = default;
};

// The window is in the normal state.
TwipsRect PlaceNotes(const NotesSurroundings& around);

// What the timer does on each tick, and how fast it goes: a hundred wake-ups a second would cost a percent of a core
// for nothing. When nothing has moved for a second it goes slowly, for what no event tells (the distance, the screen),
// until something moves.
class NotesTimer {
 public:
  [[nodiscard]] int Interval() const { return quiet_ticks_ < kTicksUntilQuiet ? kTick : kQuietTick; }  // ms
  // Something moved.
  void Wake() { quiet_ticks_ = 0; }
  // The window is minimised or maximised, and stays where it is.
  void Rest() { ++quiet_ticks_; }
  // Where the window is to go; nothing where it stays.
  std::optional<TwipsRect> Tick(const NotesSurroundings& now);

 private:
  static constexpr int kTick = 10;
  static constexpr int kQuietTick = 250;
  static constexpr int kTicksUntilQuiet = 100;
  // A window manager may overlook a request while it moves the window itself, or refuse it for good.
  static constexpr int kTries = 50;

  NotesSurroundings placed_for_;  // what the last tick saw
  int tries_left_ = 0;            // how often the same place is asked for again
  int quiet_ticks_ = 0;
};

}  // namespace pelmar
