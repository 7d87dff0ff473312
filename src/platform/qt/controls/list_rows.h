// Functions for the list boxes of the program.
#pragma once

#include <functional>

class QListWidget;

namespace pelmar {

// Calls `picked` when the person clicks a row, and when the person or the program selects a row. A click that selects a
// row calls `picked` twice. The row that Qt makes current when the list gets the focus is not picked.
void OnRowPicked(QListWidget& list, const std::function<void(int row)>& picked);

// Makes each row one line high and shows line breaks as signs. The texts of the rows are unchanged.
void ShowRowsOnOneLine(QListWidget& list);

}  // namespace pelmar
