#include "platform/qt/controls/swatch.h"

#include "platform/qt/controls/accessible_face.h"
#include "platform/qt/controls/picture_edge.h"
#include "platform/twips.h"

namespace pelmar {

Swatch::Swatch(QWidget* parent) : QAbstractButton(parent) { setFocusPolicy(Qt::StrongFocus); }

void Swatch::setColor(const QColor& color) {
  color_ = color;
  update();
}

void Swatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), color_);
  DrawEdge(painter, *this);
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(2, 2, -2, -2));
}

GradientBar::GradientBar(QWidget* parent) : QWidget(parent) { SetAccessibleRole(*this, QAccessible::Graphic); }

void GradientBar::SetColors(const QColor& top, const QColor& bottom) {
  top_ = top;
  bottom_ = bottom;
  update();
}

void GradientBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QLinearGradient gradient(0, 0, 0, height());
  gradient.setColorAt(0, top_);
  gradient.setColorAt(1, bottom_);
  painter.fillRect(rect(), gradient);
  DrawEdge(painter, *this);
}

ValueBar::ValueBar(QWidget* parent) : QWidget(parent) { SetAccessibleRole(*this, QAccessible::Graphic); }

void ValueBar::SetTwips(int twips) {
  twips_ = twips;
  update();
}

void ValueBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  painter.fillRect(0, 0, PixelsOf(twips_), height(), palette().color(QPalette::Highlight));
  DrawEdge(painter, *this);
}

}  // namespace pelmar
