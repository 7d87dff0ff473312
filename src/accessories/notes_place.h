// Computes the place of the notes window. An undocked window snaps to the edges of the screen, and so does a docked
// window while the main window is minimised. Otherwise a docked window lies to the right of the main window, or, if the
// main window is maximised, at the right edge of the screen. If the notes are the whole program, a docked window lies
// in the lower right corner of the screen. Places are outer frames in twips.
#pragma once

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
};

// The new place. Call only while the notes window is neither minimised nor maximised.
TwipsRect PlaceNotes(const NotesSurroundings& around);

}  // namespace pelmar
