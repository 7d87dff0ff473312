#include "accessories/windows/character_graph.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace pelmar {

CharacterGraph::CharacterGraph(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void CharacterGraph::Show(std::vector<Bar> bars, bool wide) {
  bars_ = std::move(bars);
  wide_ = wide;
  update();
}

void CharacterGraph::Clear() {
  bars_.clear();
  update();
}

void CharacterGraph::ForgetPlace() {
  place_.reset();
  update();
}

void CharacterGraph::Point(double x) {
  place_ = x;
  update();
  Q_EMIT Pointed(x);
}

void CharacterGraph::mouseMoveEvent(QMouseEvent* event) {
  Point(event->position().x() * kGraphWidth / std::max(width(), 1));
}

// The field around the graph takes clicks; those on the graph itself are none of its.
void CharacterGraph::mousePressEvent(QMouseEvent* event) { event->accept(); }

void CharacterGraph::keyPressEvent(QKeyEvent* event) {
  const int last = kGraphWidth / BarStep(wide_);
  const int code = place_ ? std::max(CodeAt(*place_, wide_), 0) : 0;
  const auto go_to = [&](int to) { Point(std::clamp(to, 0, last) * BarStep(wide_)); };
  switch (event->key()) {
    case Qt::Key_Left:
      return go_to(code - 1);
    case Qt::Key_Right:
      return go_to(code + 1);
    case Qt::Key_PageUp:
      return go_to(code - 16);
    case Qt::Key_PageDown:
      return go_to(code + 16);
    case Qt::Key_Home:
      return go_to(0);
    case Qt::Key_End:
      return go_to(last);
    default:
      QWidget::keyPressEvent(event);
  }
}

// In whole pixels of the screen, so that equal bars look equal at every scale.
void CharacterGraph::PaintColumn(QPainter& painter, double x, double top, const QColor& color) const {
  const double ratio = devicePixelRatioF();
  const double scale = width() * ratio / kGraphWidth;
  const double thick = std::max(1.0, std::round(BarWidth(wide_) * scale));
  const double left = std::round(x * scale - (thick - 1) / 2);
  const double upper = std::round(top * height() * ratio / kGraphHeight);
  painter.fillRect(QRectF(left / ratio, upper / ratio, thick / ratio, height() - upper / ratio), color);
}

void CharacterGraph::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  if (place_) PaintColumn(painter, std::max(CodeAt(*place_, wide_), 0) * BarStep(wide_), 0, QColor(150, 195, 240));
  for (const Bar& bar : bars_) PaintColumn(painter, bar.x, kGraphFull - bar.height, Qt::black);
  const QColor frame = palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid);
  for (const QRect& edge : {QRect(0, 0, width(), 1), QRect(0, height() - 1, width(), 1), QRect(0, 0, 1, height()),
                            QRect(width() - 1, 0, 1, height())})
    painter.fillRect(edge, frame);
}

}  // namespace pelmar
