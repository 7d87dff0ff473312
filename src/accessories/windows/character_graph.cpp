#include "accessories/windows/character_graph.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/controls/accessible_face.h"

namespace pelmar {
namespace {

// The graph for assistive technology. Its value is the marked code.
class GraphAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit GraphAccessible(CharacterGraph& graph) : QAccessibleWidget(&graph, QAccessible::Chart), graph_(graph) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  [[nodiscard]] QVariant currentValue() const override { return graph_.PointedCode(); }
  void setCurrentValue(const QVariant& code) override { graph_.GoTo(code.toInt()); }
  [[nodiscard]] QVariant minimumValue() const override { return 0; }
  [[nodiscard]] QVariant maximumValue() const override { return graph_.LastCode(); }
  [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

 private:
  CharacterGraph& graph_;
};

}  // namespace

CharacterGraph::CharacterGraph(QWidget* parent) : QWidget(parent) {
  InstallFace<CharacterGraph, GraphAccessible>();
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
  if (!QAccessible::isActive()) return;
  QAccessibleValueChangeEvent event(this, PointedCode());
  QAccessible::updateAccessibility(&event);
}

int CharacterGraph::PointedCode() const { return place_ ? std::max(CodeAt(*place_, wide_), 0) : 0; }
int CharacterGraph::LastCode() const { return kGraphWidth / BarStep(wide_); }

int CharacterGraph::PointedShare() const {
  const int x = PointedCode() * BarStep(wide_);
  const auto bar = std::ranges::find(bars_, x, &Bar::x);
  return bar == bars_.end() ? 0 : qRound(100 * bar->height / kGraphFull);
}

void CharacterGraph::GoTo(int code) { Point(std::clamp(code, 0, LastCode()) * BarStep(wide_)); }

void CharacterGraph::mouseMoveEvent(QMouseEvent* event) {
  Point(event->position().x() * kGraphWidth / std::max(width(), 1));
}

// The field around the graph removes the mark at a click, so clicks on the graph must not reach the field.
void CharacterGraph::mousePressEvent(QMouseEvent* event) { event->accept(); }

void CharacterGraph::keyPressEvent(QKeyEvent* event) {
  const int code = PointedCode();
  switch (event->key()) {
    case Qt::Key_Left:
      return GoTo(code - 1);
    case Qt::Key_Right:
      return GoTo(code + 1);
    case Qt::Key_PageUp:
      return GoTo(code - 16);
    case Qt::Key_PageDown:
      return GoTo(code + 16);
    case Qt::Key_Home:
      return GoTo(0);
    case Qt::Key_End:
      return GoTo(LastCode());
    default:
      QWidget::keyPressEvent(event);
  }
}

// Paints whole pixels of the screen, so equal bars look equal at every scale.
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
  if (place_) PaintColumn(painter, PointedCode() * BarStep(wide_), 0, QColor(150, 195, 240));
  for (const Bar& bar : bars_) PaintColumn(painter, bar.x, kGraphFull - bar.height, Qt::black);
  const QColor frame = palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid);
  for (const QRect& edge : {QRect(0, 0, width(), 1), QRect(0, height() - 1, width(), 1), QRect(0, 0, 1, height()),
                            QRect(width() - 1, 0, 1, height())})
    painter.fillRect(edge, frame);
}

}  // namespace pelmar
