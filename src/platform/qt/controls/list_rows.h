// Functions for the list boxes of the program.
#pragma once

#include <functional>

class QListWidget;

namespace pelmar {

// Calls `picked` when a row is clicked or selected, by the person or the program. A click that selects a row calls
// twice. The row that becomes current when the list gets the focus is not picked, but the first arrow key picks it.
void OnRowPicked(QListWidget& list, const std::function<void(int row)>& picked);

// Makes each row one line high and shows line breaks as signs. The texts of the rows are unchanged.
void ShowRowsOnOneLine(QListWidget& list);

}  // namespace pelmar
