#include "platform/qt/controls/cell_grid.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "platform/qt/controls/accessible_face.h"
#include "platform/qt/controls/picture_edge.h"

namespace pelmar {

CellGrid::CellGrid(int cells, QWidget* parent) : QWidget(parent), cells_(cells) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  SetAccessibleRole(*this, QAccessible::Graphic);
}

void CellGrid::Clear() {
  row_ = column_ = 0;
  update();
}

QRect CellGrid::CellRect(int row, int column) const {
  return {QPoint((column - 1) * width() / cells_ + 1, (row - 1) * height() / cells_ + 1),
          QPoint(column * width() / cells_ - 1, row * height() / cells_ - 1)};
}

void CellGrid::Enter(int row, int column) {
  row_ = std::clamp(row, 1, cells_);
  column_ = std::clamp(column, 1, cells_);
  update();
  Q_EMIT CellEntered(row_, column_);
}

// Marks the cell at the point, or the nearest cell if the point is outside the grid.
void CellGrid::EnterAt(QPoint point) {
  Enter(point.y() * cells_ / std::max(height(), 1) + 1, point.x() * cells_ / std::max(width(), 1) + 1);
}

void CellGrid::GoByKeys(int rows, int columns) {
  Enter(row_ + rows, column_ + columns);
  Say();
}

void CellGrid::Say() {
  if (row_ > 0) Announce(*window(), name_(row_, column_));
}

void CellGrid::mouseMoveEvent(QMouseEvent* event) { EnterAt(event->position().toPoint()); }

void CellGrid::mouseReleaseEvent(QMouseEvent* event) {
  if (!rect().contains(event->position().toPoint())) return;
  EnterAt(event->position().toPoint());
  Q_EMIT CellChosen(row_, column_);
}

void CellGrid::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  Say();
}

void CellGrid::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return GoByKeys(0, -1);
    case Qt::Key_Right:
      return GoByKeys(0, 1);
    case Qt::Key_Up:
      return GoByKeys(-1, 0);
    case Qt::Key_Down:
      return GoByKeys(1, 0);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (row_ > 0) return void(Q_EMIT CellChosen(row_, column_));
      break;
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

void CellGrid::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().brush(QPalette::Base));
  for (int row = 1; row <= cells_; ++row) {
    for (int column = 1; column <= cells_; ++column) {
      const bool marked = row == row_ && column == column_;
      const QRect cell = CellRect(row, column);
      if (marked) painter.fillRect(cell, palette().brush(QPalette::Highlight));
      PaintCell(painter, cell, row, column, marked);
    }
  }
  painter.setPen(palette().color(QPalette::Mid));
  for (int line = 1; line < cells_; ++line) {
    painter.drawLine(line * width() / cells_, 0, line * width() / cells_, height());
    painter.drawLine(0, line * height() / cells_, width(), line * height() / cells_);
  }
  DrawEdge(painter, *this, hasFocus() ? QPalette::Highlight : QPalette::Mid);
}

}  // namespace pelmar
