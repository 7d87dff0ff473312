// Outer places and sizes of windows in twips, with the window manager's frame, and the stacking order. Before a window
// is mapped its frame is unknown and counts as nothing; a position set then is still the frame's.
#pragma once

#include <QRect>
#include <QSize>

#include "platform/twips.h"

class QWidget;

namespace pelmar {

TwipsRect OuterGeometry(const QWidget& window);
// Left and top together: set one after the other, the second would undo the first, whose answer is still on its way.
void SetOuterPosition(QWidget& window, int left, int top);
void SetOuterWidth(QWidget& window, int twips);
void SetOuterHeight(QWidget& window, int twips);
// All four at once; only what differs is touched.
void SetOuterPlace(QWidget& window, const TwipsRect& place);

// The whole screen that the window is on, and where it lies on the desktop.
TwipsRect ScreenTwips(const QWidget& window);
// The one that the middle of this place is on; the first where it is on none.
TwipsRect ScreenTwips(const TwipsRect& place);
// What the screen leaves to a window that isn't on show yet, inside its frame.
QSize RoomOnScreen(const QWidget& window);
// Moves a window that covers `place` (on the screen, in logical pixels) just off it, where the screen has room for it
// elsewhere.
void MoveAside(QWidget& window, const QRect& place);

// How wide its title makes a window, with the buttons of the frame, in logical pixels.
int WidthOfTitle(const QWidget& window);

// Shows the window, or brings it back to the front where it is on show already, also out of its icon. It gets the
// keyboard.
void BringToFront(QWidget& window);

// Keeps the window above all others, or no longer. A window on show stays so, without a flicker.
void SetAlwaysOnTop(QWidget& window, bool on_top);

}  // namespace pelmar
