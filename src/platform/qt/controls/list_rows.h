// What the list boxes of the program share: picking a row by mouse or keyboard, and rows that hold line breaks.
#pragma once

#include <functional>

class QListWidget;

namespace pelmar {

// Tells each row that is picked: clicked (also again, and once more for a click that selects it), reached with the
// keyboard or selected by the program. The row that the list makes current when it comes into focus isn't picked; the
// first arrow key picks it.
void OnRowPicked(QListWidget& list, const std::function<void(int row)>& picked);

// A row with line breaks in it stays one line high and shows each break as a sign. The text of the row keeps them.
void ShowRowsOnOneLine(QListWidget& list);

}  // namespace pelmar
