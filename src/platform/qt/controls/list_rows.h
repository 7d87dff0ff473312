// Functions for the list boxes of the program.
#pragma once

#include <QItemSelectionModel>
#include <functional>

class QAbstractItemView;
class QListWidget;

namespace pelmar {

// Makes Up, Down and Home select the current row if no row is selected. When a list gets the focus, Qt makes the first
// row current without selecting it. So Down would skip the first row, and these keys would never select the only row of
// a list.
void ChooseFirstByArrows(QAbstractItemView* list);

// Calls `picked` when the person clicks a row that is selected then, and when the person or the program selects a row.
// A click that selects a row calls `picked` twice. The row that Qt makes current when the list gets the focus causes no
// call.
void OnRowPicked(QListWidget& list, const std::function<void(int row)>& picked);

// What a click does in a list that always keeps its selected row: Ctrl with a click deselects nothing.
QItemSelectionModel::SelectionFlags WithoutDeselection(QItemSelectionModel::SelectionFlags click);

// Shows each line break as "¶", so that each row is one line high. Shows at most 1000 characters of a row. The texts of
// the rows stay unchanged.
void ShowRowsOnOneLine(QListWidget& list);

}  // namespace pelmar
