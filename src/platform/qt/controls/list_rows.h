// What the list boxes of the program share: picking a row by mouse or keyboard, and rows that hold line breaks.
#pragma once

#include <functional>

class QListWidget;

namespace pelmar {

// Tells each row that a person picks: clicked (also again) or reached with the keyboard. A row that the list takes the
// keyboard to when it comes into focus isn't picked.
void OnRowPicked(QListWidget& list, const std::function<void(int row)>& picked);

// A row with line breaks in it stays one line high and shows each break as a sign. The text of the row keeps them.
void ShowRowsOnOneLine(QListWidget& list);

}  // namespace pelmar
