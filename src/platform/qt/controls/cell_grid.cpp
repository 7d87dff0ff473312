#include "platform/qt/controls/cell_grid.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace pelmar {
namespace {

constexpr int kCells = 3;

}  // namespace

CellGrid::CellGrid(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
}

void CellGrid::Clear() {
  row_ = column_ = 0;
  update();
}

QPoint CellGrid::CellAt(QPoint point) const {
  return {std::clamp(point.x() * kCells / std::max(width(), 1), 0, kCells - 1) + 1,
          std::clamp(point.y() * kCells / std::max(height(), 1), 0, kCells - 1) + 1};
}

void CellGrid::Enter(int row, int column) {
  row_ = std::clamp(row, 1, kCells);
  column_ = std::clamp(column, 1, kCells);
  update();
  Q_EMIT CellEntered(row_, column_);
}

void CellGrid::mouseMoveEvent(QMouseEvent* event) {
  const QPoint cell = CellAt(event->position().toPoint());
  Enter(cell.y(), cell.x());
}

void CellGrid::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint cell = CellAt(event->position().toPoint());
  Enter(cell.y(), cell.x());
  Q_EMIT CellChosen(row_, column_);
}

void CellGrid::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return Enter(std::max(row_, 1), column_ - 1);
    case Qt::Key_Right:
      return Enter(std::max(row_, 1), column_ + 1);
    case Qt::Key_Up:
      return Enter(row_ - 1, std::max(column_, 1));
    case Qt::Key_Down:
      return Enter(row_ + 1, std::max(column_, 1));
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
  if (row_ > 0) {
    const QRect cell(QPoint((column_ - 1) * width() / kCells, (row_ - 1) * height() / kCells),
                     QPoint(column_ * width() / kCells - 1, row_ * height() / kCells - 1));
    painter.fillRect(cell, palette().brush(QPalette::Highlight));
  }
  painter.setPen(palette().color(QPalette::Mid));
  for (int line = 1; line < kCells; ++line) {
    painter.drawLine(line * width() / kCells, 0, line * width() / kCells, height());
    painter.drawLine(0, line * height() / kCells, width(), line * height() / kCells);
  }
  painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace pelmar
