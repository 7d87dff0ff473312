#include "accessories/notes_place.h"

#include <algorithm>

#include "shell/window_geometry.h"

namespace pelmar {

TwipsRect PlaceNotes(const NotesSurroundings& around) {
  const TwipsRect& screen = around.screen;
  const int right = screen.left + screen.width;
  TwipsRect notes = around.notes;
  const bool in_editor = around.mode == StartMode::kEditor;
  if (!around.docked || around.main_state == WindowMode::kMinimised) notes = Snap(notes, around.snap_distance, screen);
  if (around.docked && in_editor && around.main_state == WindowMode::kNormal) {
    notes.top = around.main.top;
    notes.left = around.main.left + around.main.width;
    notes.height = around.main.height;
    const int beside = right - notes.left;
    if (beside > 0) notes.width = std::max(beside, around.narrowest);
  }
  if (around.docked && in_editor && around.main_state == WindowMode::kMaximised)
    notes = {right - around.narrowest, screen.top, around.narrowest, screen.height};
  if (around.docked && around.mode == StartMode::kNotes) {
    notes.left = right - notes.width;
    notes.top = screen.top + screen.height - notes.height;
  }
  return notes;
}

}  // namespace pelmar
