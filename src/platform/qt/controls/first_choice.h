// The first press of an arrow key in a list without a selection.
#pragma once

class QAbstractItemView;

namespace pelmar {

// Makes Up, Down and Home select the current row if no row is selected. When a list gets the focus, Qt makes the first
// row current without selecting it. So Down would skip the first row, and no key would select the only row of a list.
void ChooseFirstByArrows(QAbstractItemView* list);

}  // namespace pelmar
