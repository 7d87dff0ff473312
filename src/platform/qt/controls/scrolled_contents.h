// Makes a dialog usable on a screen that is too small for its form.
#pragma once

class QWidget;

namespace pelmar {

// Moves the contents of a window into a scroll area, which scrolls to the widget that gets the focus. Makes the window
// large enough for the contents and the scroll bars. Call before the window is first shown.
void ScrollContents(QWidget& window);

}  // namespace pelmar
