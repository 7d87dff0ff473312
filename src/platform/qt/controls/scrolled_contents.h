// Makes a dialog usable on a screen that is too small for its form.
#pragma once

#include <QList>

class QPushButton;
class QWidget;

namespace pelmar {

// Moves the contents of a window into a scroll area. Makes the window large enough for the contents and the scroll
// bars. If the last item of the layout is a row or column of buttons, this item stays outside the area. Otherwise the
// buttons `ending` get a new row outside. Call before the window is first shown.
void ScrollContents(QWidget& window, const QList<QPushButton*>& ending);

}  // namespace pelmar
