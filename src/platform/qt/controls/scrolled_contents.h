// The way of a dialog onto a screen that is too small for its form.
#pragma once

#include <QList>

class QPushButton;
class QWidget;

namespace pelmar {

// Moves the contents of a window that isn't on show yet into an area that scrolls, and gives the window the size that
// they need. What stays outside is the row or column of buttons that ends the form, or, where the form has none, the
// buttons `ending` in a row of their own.
void ScrollContents(QWidget& window, const QList<QPushButton*>& ending);

}  // namespace pelmar
