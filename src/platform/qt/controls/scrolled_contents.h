// Makes a dialog usable on a screen that is too small for its form.
#pragma once

#include <QList>

class QPushButton;
class QWidget;

namespace pelmar {

// Moves the contents of a window into a scroll area and gives the window the size of the contents. A last row or column
// of buttons stays outside the area. Without such buttons, the buttons `ending` stay outside, in a new row. Call before
// the window is first shown.
void ScrollContents(QWidget& window, const QList<QPushButton*>& ending);

}  // namespace pelmar
