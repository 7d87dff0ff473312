#include "platform/qt/controls/elided_label.h"

#include <QPainter>
#include <algorithm>

namespace pelmar {
namespace {

// Of a long text, only this many characters at each end are measured. No screen shows more, and measuring takes time.
constexpr qsizetype kMostShown = 2000;

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

QSize ElidedLabel::sizeHint() const { return {0, fontMetrics().height() + 2 * frameWidth() + 2}; }
QSize ElidedLabel::minimumSizeHint() const { return sizeHint(); }

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  const QString whole = text();
  QString shown = whole.size() <= 2 * kMostShown ? whole : whole.left(kMostShown) + whole.right(kMostShown);
  for (QChar& ch : shown)
    if (ch.unicode() < 0x20) ch = QLatin1Char(' ');
  const int space = std::max(indent(), 0);
  const QRect inside = contentsRect().adjusted(space, 0, -space, 0);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
  painter.drawText(inside, static_cast<int>(alignment()) | Qt::TextSingleLine,
                   fontMetrics().elidedText(shown, mode_, inside.width()));
}

}  // namespace pelmar
