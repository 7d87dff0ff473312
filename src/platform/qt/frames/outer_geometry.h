// Outer places and sizes of windows in twips, and the stacking order. An outer place includes the frame of the window
// manager. While a window is hidden, its frame counts as empty. A position is the upper left corner.
#pragma once

#include <QRect>
#include <QSize>

#include "platform/twips.h"

class QWidget;

namespace pelmar {

TwipsRect InTwips(const QRect& pixels);
TwipsRect OuterGeometry(const QWidget& window);
// Sets left and top together. A function for one of them would have to read the other from OuterGeometry. That value
// may be old, since the window manager answers with a delay.
void SetOuterPosition(QWidget& window, int left, int top);
void SetOuterSize(QWidget& window, int width, int height);
// Sets the size and the position. Does nothing for a size or a position that is already right.
void SetOuterPlace(QWidget& window, const TwipsRect& place);

// The screen of the window, panels included, in the coordinates of the desktop.
TwipsRect ScreenTwips(const QWidget& window);
// The screen that contains the centre of the place. If no screen contains the centre, the primary screen.
TwipsRect ScreenTwips(const TwipsRect& place);
// The room for the inside of a window: the size of the screen minus panels and a usual frame, in logical pixels. For
// windows that were never shown.
QSize RoomOnScreen(const QWidget& window);
// If the window overlaps `place` (in logical pixels on the desktop), moves the window below, above or beside `place`,
// unless there is no room.
void MoveAside(QWidget& window, const QRect& place);

// The estimated width that a window needs to show its whole title and the buttons of the frame, in logical pixels.
int WidthOfTitle(const QWidget& window);

// Shows the window in front of the others, even if minimised, and gives it the keyboard focus.
void BringToFront(QWidget& window);

// Sets whether the window stays above all normal windows. A visible window doesn't flicker.
void SetAlwaysOnTop(QWidget& window, bool on_top);

}  // namespace pelmar
