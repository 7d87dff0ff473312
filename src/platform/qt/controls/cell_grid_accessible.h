// Presents a grid of cells to screen readers as a list: in a table each step down would read a whole row. A list item
// has the name and the number of its cell, is selected if the cell is marked, and can be chosen.
#pragma once

#include <QAccessibleWidget>
#include <vector>

#include "platform/qt/controls/cell_grid.h"

namespace pelmar {

class CellGridAccessible : public QAccessibleWidget {
 public:
  explicit CellGridAccessible(CellGrid& grid) : QAccessibleWidget(&grid, QAccessible::List), grid_(grid) {}
  ~CellGridAccessible() override;

  [[nodiscard]] int childCount() const override { return grid_.Cells() * grid_.Cells(); }
  [[nodiscard]] QAccessibleInterface* child(int number) const override;
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
  [[nodiscard]] QAccessibleInterface* focusChild() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

 private:
  CellGrid& grid_;
  mutable std::vector<QAccessible::Id> cells_;  // created on request; 0 if not created yet
};

}  // namespace pelmar
