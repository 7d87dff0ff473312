// A grid with as many rows as columns, 3 unless a subclass sets another number. The mouse pointer and the arrow keys
// mark a cell. A click, Space or Enter chooses the marked cell. Subclasses may paint the contents of the cells. Rows
// and columns count from 1.
#pragma once

#include <QWidget>
#include <functional>

namespace pelmar {

class CellGrid : public QWidget {
  Q_OBJECT

 public:
  explicit CellGrid(QWidget* parent = nullptr) : CellGrid(kCells, parent) {}

  QSize sizeHint() const override { return {216, 135}; }
  // Unmarks the marked cell.
  void Clear();
  // Sets the names of the cells for screen readers.
  void NameCells(std::function<QString(int row, int column)> name) { name_ = std::move(name); }

  // `number` and Marked() count the cells in reading order, from 0. Marked() is -1 if no cell is marked.
  [[nodiscard]] int Cells() const { return cells_; }  // how many in each row and in each column
  [[nodiscard]] int Marked() const { return row_ > 0 ? (row_ - 1) * cells_ + column_ - 1 : -1; }
  [[nodiscard]] QString CellName(int number) const;
  void Choose(int number);

  [[nodiscard]] QPoint CellAt(QPoint point) const;  // the column as x, the row as y
  [[nodiscard]] QRect CellRect(int row, int column) const;

 Q_SIGNALS:
  void CellEntered(int row, int column);
  void CellChosen(int row, int column);

 protected:
  CellGrid(int cells, QWidget* parent);

  // `cell` is the rectangle inside the grid lines.
  virtual void PaintCell(QPainter& /*painter*/, const QRect& /*cell*/, int /*row*/, int /*column*/, bool /*marked*/) {}

  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int kCells = 3;

  void Enter(int row, int column);
  void GoByKeys(int rows, int columns);

  std::function<QString(int row, int column)> name_;
  int cells_ = kCells;
  int row_ = 0;
  int column_ = 0;
};

}  // namespace pelmar
