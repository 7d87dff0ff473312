// Computes the place of the notes window at each tick of its timer. The window snaps to the edges of the screen if it
// is undocked or the main window is minimised. A docked window lies to the right of the main window; over a maximised
// main window it lies at the right edge of the screen. If the notes are the whole program, the docked window lies in
// the lower right corner of the screen. Places are outer frames in twips.
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
  TwipsRect screen;   // the screen of the notes, or of the main window if docked
  int narrowest = 0;  // the smallest width of the notes
  bool operator==(const NotesSurroundings&) const = default;
};

// The new place. Call only while the notes window is neither minimised nor maximised.
TwipsRect PlaceNotes(const NotesSurroundings& around);

// The timer of the notes window. A hundred ticks a second cost a percent of a core, so the timer slows down when
// nothing has moved for a second. Slow ticks remain, because no event reports a new snap distance or another screen.
class NotesTimer {
 public:
  [[nodiscard]] int Interval() const { return quiet_ticks_ < kTicksUntilQuiet ? kTick : kQuietTick; }  // ms
  // Call when something has moved.
  void Wake() { quiet_ticks_ = 0; }
  // Call in place of Tick while the window is minimised or maximised.
  void Rest() { ++quiet_ticks_; }
  // The new place of the window, nothing if the window stays.
  std::optional<TwipsRect> Tick(const NotesSurroundings& now);

 private:
  static constexpr int kTick = 10;
  static constexpr int kQuietTick = 250;
  static constexpr int kTicksUntilQuiet = 100;
  // The most requests for one place. A window manager may ignore them while the person moves the window, or always.
  static constexpr int kTries = 50;

  NotesSurroundings placed_for_;  // the surroundings at the last tick
  int tries_left_ = 0;            // how often the same place is requested again
  int quiet_ticks_ = 0;
};

}  // namespace pelmar
