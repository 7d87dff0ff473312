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
// If HasWindowOnTop is true, makes the dialog stay on top, so that no window can cover the dialog. Otherwise makes the
// dialog a normal window.
void PutAboveAll(QWidget& dialog);

// Assigns a hidden window to the screen of DialogParent. A window that was shown before must be moved there too, for
// instance by CentreOnScreen.
void ShowOnParentsScreen(QWidget& window);

}  // namespace pelmar
