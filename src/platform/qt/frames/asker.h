// The window that asks: what a box or a dialog that waits stands over, and what is the active window again afterwards.
// The window manager would turn to the main window, whose text would take the next keys.
#pragma once

class QWidget;

namespace pelmar {

// The active window, or the one that is about to be; the main window where there is neither. Nothing without all.
QWidget* Asker();

// This window is to be the active one, though the window manager may make it so only later.
void ExpectActive(QWidget* window);

// True while a window of ours is on show that stays on top. Dialogs don't count: they do so because of such a window.
bool HasWindowOnTop();
// A dialog must not lie under such a window: it stays on top as well, or no longer, once there is none.
void PutAboveAll(QWidget& dialog);

// A window that was never on show is to come up on the screen of the one that asks.
void ShowOnAskersScreen(QWidget& window);

}  // namespace pelmar
