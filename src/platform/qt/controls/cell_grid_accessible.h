// A grid of cells as assistive technology sees it: a list, since of a table a whole row would be read at each step
// down. The cells tell their name, their number in reading order, counted from 0, and whether they are the marked one,
// and can be chosen.
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
  mutable std::vector<QAccessible::Id> cells_;  // made when they are asked for
};

}  // namespace pelmar
