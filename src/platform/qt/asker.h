// The window that asks: what a box or a dialog that waits stands over, and what is the active window again afterwards.
// The window manager would turn to the main window, whose text would take the next keys.
#pragma once

class QWidget;

namespace pelmar {

// The active window, or the one that is about to be; the main window where there is neither. Nothing without all.
QWidget* Asker();

// This window is to be the active one, though the window manager may make it so only later.
void ExpectActive(QWidget* window);

// What waits for an answer must not lie under a window of ours that stays on top. For a window that isn't on show.
void PutAboveAll(QWidget& window);

// A window that was never on show is to come up on the screen of the one that asks.
void ShowOnAskersScreen(QWidget& window);

}  // namespace pelmar
