// Where the notes window goes on each tick of its timer: snapped to the screen's edges, docked beside the main window,
// at full height beside a maximised one, or in the screen's corner. Outer places in twips.
#pragma once

#include "platform/twips.h"
#include "shell/stand_alone.h"

namespace pelmar {

struct NotesSurroundings {
  TwipsRect notes;
  TwipsRect main;
  int main_state = 0;  // 0 normal, 1 minimised, 2 maximised
  StartMode mode = StartMode::kEditor;
  bool docked = false;  // the button "Dock" is pressed
  int snap_distance = 0;
  int screen_width = 0;
  int screen_height = 0;
  int narrowest = 0;  // the least width that the window takes
  bool operator==(const NotesSurroundings&) const = default;
};

// The window is in the normal state.
TwipsRect PlaceNotes(const NotesSurroundings& around);

}  // namespace pelmar
