// Computes the place of the notes window. An undocked window snaps to the edges of the screen, and so does a docked
// window while the main window is minimised. Otherwise a docked window lies to the right of the main window, or, if the
// main window is maximised, at the right edge of the screen. If the notes are the whole program, a docked window lies
// in the lower right corner of the screen. Places are outer frames in twips.
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
  // The screen of the main window if the notes are docked to a main window that isn't minimised. Otherwise the screen
  // of the notes.
  TwipsRect screen;
  int narrowest = 0;  // the smallest width of the notes
  bool operator==(const NotesSurroundings&) const = default;
};

// The new place. Call only while the notes window is neither minimised nor maximised.
TwipsRect PlaceNotes(const NotesSurroundings& around);

// The work of the notes window's timer. A hundred ticks a second cost a percent of a core, so the timer slows down when
// nothing has changed for a second. The timer doesn't stop, because no event reports a new snap distance or a new size
// of the screen.
class NotesTimer {
 public:
  [[nodiscard]] int Interval() const { return quiet_ticks_ < kTicksUntilQuiet ? kTick : kQuietTick; }  // ms
  // Makes the timer fast again. Call when the place, size or state of a window has changed, or "Dock" was clicked.
  void Wake() { quiet_ticks_ = 0; }
  // Call in place of Tick while the window is minimised or maximised.
  void Rest() { ++quiet_ticks_; }
  // The place to request for the window. Nothing if the window is there already, or if kTries requests changed nothing.
  std::optional<TwipsRect> Tick(const NotesSurroundings& now);

 private:
  static constexpr int kTick = 10;
  static constexpr int kQuietTick = 250;
  static constexpr int kTicksUntilQuiet = 100;
  // The most requests while nothing changes. A window manager may ignore requests while the person moves the window, or
  // always.
  static constexpr int kTries = 50;

  NotesSurroundings placed_for_;  // the surroundings at the last tick
  int tries_left_ = 0;            // requests left until something changes
  int quiet_ticks_ = 0;
};

}  // namespace pelmar
