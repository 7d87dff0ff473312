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
  // Sets the names of the cells. Screen readers say the name of the marked cell when an arrow key marks the cell, and
  // when the grid gets the keyboard focus. Call before the grid is shown.
  void NameCells(std::function<QString(int row, int column)> name) { name_ = std::move(name); }

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
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int kCells = 3;

  [[nodiscard]] QRect CellRect(int row, int column) const;
  void Enter(int row, int column);
  void EnterAt(QPoint point);
  void GoByKeys(int rows, int columns);
  void Say();

  std::function<QString(int row, int column)> name_;
  int cells_ = kCells;
  int row_ = 0;
  int column_ = 0;
};

}  // namespace pelmar
