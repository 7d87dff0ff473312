// The parent of a message box or a modal dialog. When the dialog closes, its parent is made active again. Otherwise the
// window manager may activate the main window, and the document would get the next keys.
#pragma once

class QWidget;

namespace pelmar {

// The first of these windows: the window that ExpectActive expects, if visible; the active window; the open modal
// dialog; the main window, if neither hidden nor minimised. Null if there is none.
QWidget* DialogParent();

// Activates the window if it is visible. Expects it to become active: until a window of the program gets the focus,
// DialogParent returns this window. If `window` is null, no window is expected any more.
void ExpectActive(QWidget* window);

// If the program shows a window that always stays on top, for instance a notes window, makes the given window stay on
// top too, because the other one could cover it. Otherwise makes the given window a normal window.
void PutAboveAll(QWidget& window);
// From now on, calls PutAboveAll each time the window or one of its child windows gets the focus, and when no other
// window on top is left. Does nothing while the window is hidden. A window without a parent stays on top only until
// another window of the program gets the focus.
void KeepAboveAll(QWidget& window);

// Assigns a hidden window to the screen of the window that DialogParent returns. Does nothing if DialogParent returns
// null. A window that was shown before must be moved there too, for instance by CentreOnScreen.
void ShowOnParentsScreen(QWidget& window);

}  // namespace pelmar
