// The edge of the program's pictures.
#pragma once

#include <QPainter>
#include <QWidget>

namespace pelmar {

// Draws a line of one pixel just inside the picture.
inline void DrawEdge(QPainter& painter, const QWidget& picture, QPalette::ColorRole color = QPalette::Mid) {
  painter.setPen(picture.palette().color(color));
  painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
}

}  // namespace pelmar
