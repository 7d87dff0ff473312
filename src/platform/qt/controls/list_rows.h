// Functions for the list boxes of the program.
#pragma once

#include <functional>

class QListWidget;

namespace pelmar {

// Calls `picked` when the person clicks a row, and when the person or the program selects one. A click that selects a
// row calls twice. When the list gets the focus, Qt makes a row current: it counts as picked only after an arrow key.
void OnRowPicked(QListWidget& list, const std::function<void(int row)>& picked);

// Makes each row one line high and shows line breaks as signs. The texts of the rows are unchanged.
void ShowRowsOnOneLine(QListWidget& list);

}  // namespace pelmar
