// The edge of the program's pictures.
#pragma once

#include <QPainter>
#include <QWidget>

namespace pelmar {

// Draws a line of one pixel just inside the picture.
inline void DrawEdge(QPainter& painter, const QWidget& picture, QPalette::ColorRole color = QPalette::Mid) {
  const int width = picture.width(), height = picture.height();
  // A drawn rectangle would not be whole at a scale such as 1.25.
  for (const QRect& side :
       {QRect(0, 0, width, 1), QRect(0, height - 1, width, 1), QRect(0, 0, 1, height), QRect(width - 1, 0, 1, height)})
    painter.fillRect(side, picture.palette().color(color));
}

}  // namespace pelmar
