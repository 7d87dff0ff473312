// A grid of cells as assistive technology sees it: a table whose cells tell their name, their number in reading order,
// counted from 0, and whether they are the marked one, and can be chosen.
#pragma once

#include <QAccessibleWidget>
#include <vector>

#include "platform/qt/controls/cell_grid.h"

namespace pelmar {

class CellGridAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit CellGridAccessible(CellGrid& grid) : QAccessibleWidget(&grid, QAccessible::Table), grid_(grid) {}
  ~CellGridAccessible() override;

  void* interface_cast(QAccessible::InterfaceType type) override;
  [[nodiscard]] int childCount() const override { return grid_.Cells() * grid_.Cells(); }
  [[nodiscard]] QAccessibleInterface* child(int number) const override;
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
  [[nodiscard]] QAccessibleInterface* focusChild() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

  [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override;
  [[nodiscard]] int rowCount() const override { return grid_.Cells(); }
  [[nodiscard]] int columnCount() const override { return grid_.Cells(); }
  [[nodiscard]] int selectedCellCount() const override { return grid_.Marked() < 0 ? 0 : 1; }
  [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;
  // Whole rows and columns are neither named nor selected.
  [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
  [[nodiscard]] QString rowDescription(int) const override { return {}; }
  [[nodiscard]] QString columnDescription(int) const override { return {}; }
  [[nodiscard]] int selectedRowCount() const override { return 0; }
  [[nodiscard]] int selectedColumnCount() const override { return 0; }
  [[nodiscard]] QList<int> selectedRows() const override { return {}; }
  [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
  [[nodiscard]] bool isRowSelected(int) const override { return false; }
  [[nodiscard]] bool isColumnSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 private:
  CellGrid& grid_;
  mutable std::vector<QAccessible::Id> cells_;  // made when they are asked for
};

}  // namespace pelmar
