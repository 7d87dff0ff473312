// The parent of a message box or a modal dialog. When the dialog closes, its parent is made active again. Otherwise the
// window manager may activate the main window, and its text would get the next keys.
#pragma once

class QWidget;

namespace pelmar {

// The window that is active or soon will be, otherwise an open modal dialog, otherwise the main window. Null if no such
// window is visible.
QWidget* DialogParent();

// Activates the window. DialogParent returns this window even before the window manager has activated it.
void ExpectActive(QWidget* window);

// Whether the program shows a window that stays on top. Dialogs don't count, since PutAboveAll puts them on top.
bool HasWindowOnTop();
// Sets the dialog to stay on top if HasWindowOnTop, otherwise not. A window on top could cover the dialog.
void PutAboveAll(QWidget& dialog);

// Call for a window that was never shown: the window will appear on the screen of DialogParent.
void ShowOnParentsScreen(QWidget& window);

}  // namespace pelmar
