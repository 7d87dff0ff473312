// A grid of three columns and three rows that follows the mouse, and the arrow keys.
#pragma once

#include <QWidget>

namespace pelmar {

class CellGrid : public QWidget {
  Q_OBJECT

 public:
  explicit CellGrid(QWidget* parent = nullptr);

  QSize sizeHint() const override { return {216, 135}; }
  // No cell is marked.
  void Clear();

 Q_SIGNALS:
  void CellEntered(int row, int column);  // from 1
  void CellChosen(int row, int column);

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Enter(int row, int column);
  [[nodiscard]] QPoint CellAt(QPoint point) const;

  int row_ = 0;
  int column_ = 0;
};

}  // namespace pelmar
