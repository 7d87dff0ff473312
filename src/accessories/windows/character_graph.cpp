#include "accessories/windows/character_graph.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/controls/picture_edge.h"

namespace pelmar {

CharacterGraph::CharacterGraph(QWidget* parent) : QWidget(parent) { setMouseTracking(true); }

void CharacterGraph::Show(std::vector<Bar> bars, bool wide) {
  bars_ = std::move(bars);
  wide_ = wide;
  update();
}

void CharacterGraph::mouseMoveEvent(QMouseEvent* event) {
  Q_EMIT Pointed(event->position().x() * kGraphWidth / width());
}

// A click on the field around the graph removes the text about the pointed place, so clicks on the graph must not reach
// the field.
void CharacterGraph::mousePressEvent(QMouseEvent* event) { event->accept(); }

// Paints whole pixels of the screen, so that bars of equal counts look the same at every scale. A bar ends below the
// graph.
void CharacterGraph::PaintBar(QPainter& painter, const Bar& bar) const {
  const double ratio = devicePixelRatioF();
  const double scale = width() * ratio / kGraphWidth;
  const double thick = std::max(1.0, std::round(BarWidth(wide_) * scale));
  const double left = std::round(bar.x * scale - (thick - 1) / 2);
  const double upper = std::round((kGraphFull - bar.height) * height() * ratio / kGraphHeight);
  painter.fillRect(QRectF(left / ratio, upper / ratio, thick / ratio, height()), Qt::black);
}

void CharacterGraph::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  for (const Bar& bar : bars_) PaintBar(painter, bar);
  DrawEdge(painter, *this);
}

}  // namespace pelmar
