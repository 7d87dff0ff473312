#include "shell/windows/main/file_tab.h"

#include <QPainter>
#include <algorithm>

#include "platform/qt/convert.h"
#include "text/index.h"

namespace pelmar {
namespace {

constexpr int kTallestTab = 160;
constexpr int kUnnamedTab = 24;
constexpr int kCaptionMargin = 6;
constexpr int kCorner = 4;
constexpr int kDot = 6;
constexpr int kDotMargin = 4;

}  // namespace

FileTab::FileTab(QWidget* parent) : QTabBar(parent) {
  setObjectName(QStringLiteral("FileTab"));
  setShape(QTabBar::RoundedEast);
  setUsesScrollButtons(false);
  setExpanding(false);
  setDrawBase(false);
  setElideMode(Qt::ElideNone);
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName(QStringLiteral("Dokumenty"));
  for (int tab = 1; tab <= kTabCount; ++tab) {
    addTab(QString());
    SetFace(tab, {});
  }
}

void FileTab::SetFace(int tab, const TabFace& face) {
  const QString caption = Utf8ToQString(face.Caption);
  captions_[IndexFromOne(tab)] = caption;
  setTabText(tab - 1, QString(caption).replace(QLatin1Char('&'), QLatin1String("&&")));
  setTabToolTip(tab - 1, Utf8ToQString(face.ToolTipText));
  NameTab(tab);
}

void FileTab::SetUnsaved(int tab, bool unsaved) {
  const std::size_t at = IndexFromOne(tab);
  if (unsaved_[at] == unsaved) return;
  unsaved_[at] = unsaved;
  NameTab(tab);
  update();
}

void FileTab::NameTab(int tab) {
  const std::size_t at = IndexFromOne(tab);
  const QString spoken = captions_[at].isEmpty() ? QStringLiteral("nový soubor") : captions_[at];
  const QString state = unsaved_[at] ? QStringLiteral(", neuloženo") : QString();
  setAccessibleTabName(tab - 1, QStringLiteral("Dokument %1, %2%3").arg(tab).arg(spoken, state));
}

void FileTab::SetStripWidth(int width) {
  strip_width_ = width;
  update();
}

// All tabs have the same length if their captions fit. Otherwise tabs without a caption shrink.
QSize FileTab::tabSizeHint(int index) const {
  int widest = 0;
  for (const QString& caption : captions_) widest = std::max(widest, fontMetrics().horizontalAdvance(caption));
  const int alike = std::min(height() / kTabCount, kTallestTab);
  const auto unnamed = static_cast<int>(std::ranges::count_if(captions_, &QString::isEmpty));
  if (widest + 2 * kCaptionMargin <= alike || unnamed == kTabCount || alike < kUnnamedTab) return {width(), alike};
  if (captions_[static_cast<std::size_t>(index)].isEmpty()) return {width(), kUnnamedTab};
  return {width(), std::min((height() - unnamed * kUnnamedTab) / (kTabCount - unnamed), kTallestTab)};
}
QSize FileTab::minimumTabSizeHint(int index) const { return tabSizeHint(index); }

QRect FileTab::VisibleRect(int index) const {
  QRect rect = tabRect(index);
  rect.setLeft(width() - strip_width_);
  return rect;
}

void FileTab::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (int index = 0; index < count(); ++index)
    if (index != currentIndex()) PaintTab(painter, index);
  PaintTab(painter, currentIndex());
}

void FileTab::PaintTab(QPainter& painter, int index) const {
  const bool selected = index == currentIndex();
  const QRect rect = VisibleRect(index);
  const QRectF shape = QRectF(rect).adjusted(-kCorner, 0.5, selected ? -0.5 : -2.5, -0.5);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().brush(selected ? QPalette::Base : QPalette::Button));
  painter.drawRoundedRect(shape, kCorner, kCorner);

  const QString& name = captions_[static_cast<std::size_t>(index)];
  const bool unnamed = name.isEmpty();
  painter.save();
  painter.translate(rect.right() + 1, rect.top());
  painter.rotate(90);
  QRect turned(kCaptionMargin, 0, rect.height() - 2 * kCaptionMargin, rect.width());
  if (unsaved_[static_cast<std::size_t>(index)]) {
    const int left = rect.height() - kDotMargin - kDot;
    turned.setRight(left - kDotMargin);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().brush(selected ? QPalette::Text : QPalette::ButtonText));
    painter.drawEllipse(QRectF(left, (rect.width() - kDot) / 2.0, kDot, kDot));
  }
  painter.setPen(palette().color(unnamed    ? QPalette::PlaceholderText
                                 : selected ? QPalette::Text
                                            : QPalette::ButtonText));
  painter.drawText(
      turned, Qt::AlignCenter | Qt::TextSingleLine,
      fontMetrics().elidedText(unnamed ? QString::number(index + 1) : name, Qt::ElideRight, turned.width()));
  painter.restore();
}

}  // namespace pelmar
