// Presents a CellGrid to screen readers as a list. In a table, screen readers would say a whole row at each step down.
// Each cell is a list item with the name and the number of the cell. The item of the marked cell is selected. The
// action of an item chooses its cell.
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
  mutable std::vector<QAccessible::Id> cells_;  // 0 for an item that is not created yet
};

}  // namespace pelmar
