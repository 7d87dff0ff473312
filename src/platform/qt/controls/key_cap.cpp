#include "platform/qt/controls/key_cap.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

namespace pelmar {
namespace {

constexpr int kEdge = 3;  // the width of the frame on each side

QString Plain(QString caption) { return caption.remove(QLatin1Char('&')); }

// Whether the access key is underlined. Only letters are underlined: a keypad of underlined digits is hard to read.
bool ShowsAccessKey(const QString& caption) {
  const auto at = caption.indexOf(QLatin1Char('&')) + 1;
  return at > 0 && at < caption.size() && caption[at].isLetter();
}

QStringList Words(const QString& caption) { return Plain(caption).split(QLatin1Char(' '), Qt::SkipEmptyParts); }

QSize RoomFor(const QStringList& words, const QFontMetrics& metrics) {
  int width = 0;
  for (const QString& word : words) width = std::max(width, metrics.horizontalAdvance(word));
  return {width + 2 * kEdge, metrics.height() + 2 * kEdge};
}

// If the caption doesn't fit the key, uses a smaller font, down to 6 points.
void PaintCaption(QStylePainter& painter, const QWidget& key, const QString& caption, QPalette::ColorRole role) {
  constexpr int kSmallest = 6;
  painter.setPen(key.palette().color(key.isEnabled() ? QPalette::Active : QPalette::Disabled, role));
  const QRect room = key.rect().adjusted(kEdge - 1, kEdge, 1 - kEdge, -kEdge);
  const int flags =
      Qt::AlignCenter | Qt::TextWordWrap | (ShowsAccessKey(caption) ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
  QFont letters = key.font();
  while (letters.pointSize() > kSmallest && !room.contains(QFontMetrics(letters).boundingRect(room, flags, caption)))
    letters.setPointSize(letters.pointSize() - 1);
  painter.setFont(letters);
  painter.drawText(room, flags, caption);
}

void PaintFrame(QStylePainter& painter, QStyleOptionButton& option) {
  option.text.clear();
  option.icon = QIcon();
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
}

}  // namespace

QSize KeyCap::minimumSizeHint() const { return RoomFor(Words(text()), fontMetrics()); }

void KeyCap::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  PaintFrame(painter, option);
  // The caption of a tall key is one word, written with blanks ("En te  r") so that the key may be narrow. The blanks
  // are not painted.
  const QString caption = height() > width() ? Words(text()).join(QString()) : text();
  PaintCaption(painter, *this, caption, QPalette::ButtonText);
}

QSize LatchKey::minimumSizeHint() const { return RoomFor({text().trimmed()}, fontMetrics()); }

void LatchKey::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  if (isChecked()) {
    option.state |= QStyle::State_Sunken;
    option.palette.setBrush(QPalette::Button, palette().brush(QPalette::Highlight));
  }
  PaintFrame(painter, option);
  PaintCaption(painter, *this, text().trimmed(), isChecked() ? QPalette::HighlightedText : QPalette::ButtonText);
}

}  // namespace pelmar
