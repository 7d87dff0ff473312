// A square grid of cells that follows the mouse, and the arrow keys. What lies in the cells is painted by subclasses.
// Rows and columns count from 1.
#pragma once

#include <QWidget>
#include <functional>

namespace pelmar {

class CellGrid : public QWidget {
  Q_OBJECT

 public:
  explicit CellGrid(QWidget* parent = nullptr) : CellGrid(kCells, parent) {}

  QSize sizeHint() const override { return {216, 135}; }
  // The marked cell was marked by the arrow keys, not by the mouse.
  [[nodiscard]] bool MarkedByKeys() const { return row_ > 0 && by_keys_; }
  // No cell is marked.
  void Clear();
  // What a cell is called by who can't see it.
  void NameCells(std::function<QString(int row, int column)> name) { name_ = std::move(name); }

  // Cells by their numbers in reading order, from 0; -1 where none is marked.
  [[nodiscard]] int Cells() const { return cells_; }  // in each row and each column
  [[nodiscard]] int Marked() const { return row_ > 0 ? (row_ - 1) * cells_ + column_ - 1 : -1; }
  [[nodiscard]] QString CellName(int number) const;
  void Choose(int number);

  [[nodiscard]] QPoint CellAt(QPoint point) const;  // column and row
  [[nodiscard]] QRect CellRect(int row, int column) const;

 Q_SIGNALS:
  void CellEntered(int row, int column);
  void CellChosen(int row, int column);

 protected:
  CellGrid(int cells, QWidget* parent);

  // The cell without its lines, and whether it is the marked one.
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
  bool by_keys_ = false;
};

}  // namespace pelmar
