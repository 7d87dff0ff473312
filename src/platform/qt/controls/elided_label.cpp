#include "platform/qt/controls/elided_label.h"

#include <QPainter>

namespace pelmar {
namespace {

// Of a longer text, only this many characters are measured, since measuring takes time. No screen shows so many.
constexpr qsizetype kMostShown = 2000;

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ElidedLabel::setElideMode(Qt::TextElideMode mode) {
  mode_ = mode;
  update();
}

QSize ElidedLabel::sizeHint() const { return {0, fontMetrics().height() + 2 * frameWidth() + 2}; }
QSize ElidedLabel::minimumSizeHint() const { return sizeHint(); }

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  const QString whole = text();
  QString shown = whole.size() <= kMostShown ? whole
                  : mode_ == Qt::ElideRight  ? whole.left(kMostShown)
                                             : whole.left(kMostShown / 2) + whole.right(kMostShown / 2);
  for (QChar& ch : shown)
    if (ch.unicode() < 0x20) ch = QLatin1Char(' ');
  const int space = indent() > 0 ? indent() : 0;
  const QRect inside = contentsRect().adjusted(space, 0, -space, 0);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
  painter.drawText(inside, static_cast<int>(alignment()) | Qt::TextSingleLine,
                   fontMetrics().elidedText(shown, mode_, inside.width()));
}

}  // namespace pelmar
