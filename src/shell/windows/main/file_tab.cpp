#include "shell/windows/main/file_tab.h"

#include <QPainter>

#include "platform/qt/convert.h"

namespace pelmar {
namespace {

constexpr int kCaptionMargin = 6;
constexpr int kCorner = 4;
constexpr int kDot = 6;
constexpr int kDotMargin = 4;

}  // namespace

FileTab::FileTab(Documents& documents, QWidget* parent) : QTabBar(parent), documents_(documents) {
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
    ShowFace(tab);
  }
  connect(this, &QTabBar::currentChanged, this, [&documents](int index) { documents.SwitchTo(index + 1); });
  listenings_ = {documents.face_changed.Add([this](int tab) { ShowFace(tab); }),
                 documents.title_changed.Add([this] { ShowUnsaved(); }), documents.tab_selected.Add([this](int tab) {
                   setCurrentIndex(tab - 1);
                   ShowUnsaved();
                 })};
}

QString FileTab::CaptionAt(int index) const { return Utf8ToQString(documents_.Face(index + 1).Caption); }

void FileTab::ShowFace(int tab) {
  setTabText(tab - 1, CaptionAt(tab - 1).replace(QLatin1Char('&'), QLatin1String("&&")));
  setTabToolTip(tab - 1, Utf8ToQString(documents_.Face(tab).ToolTipText));
  SetAccessibleTabName(tab);
}

void FileTab::ShowUnsaved() {
  for (int tab = 1; tab <= kTabCount; ++tab) SetAccessibleTabName(tab);
  update();
}

void FileTab::SetAccessibleTabName(int tab) {
  const QString caption = CaptionAt(tab - 1);
  const QString spoken = caption.isEmpty() ? QStringLiteral("nový soubor") : caption;
  const QString state = documents_.IsUnsaved(tab) ? QStringLiteral(", neuloženo") : QString();
  setAccessibleTabName(tab - 1, QStringLiteral("Dokument %1, %2%3").arg(tab).arg(spoken, state));
}

void FileTab::SetStripWidth(int width) {
  strip_width_ = width;
  update();
}

QSize FileTab::tabSizeHint(int) const { return {width(), height() / kTabCount}; }
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

  const QString name = CaptionAt(index);
  const bool unnamed = name.isEmpty();
  painter.save();
  painter.translate(rect.right() + 1, rect.top());
  painter.rotate(90);
  QRect turned(kCaptionMargin, 0, rect.height() - 2 * kCaptionMargin, rect.width());
  if (documents_.IsUnsaved(index + 1)) {
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
      fontMetrics().elidedText(unnamed ? QString::number(index + 1) : name, Qt::ElideMiddle, turned.width()));
  painter.restore();
}

}  // namespace pelmar
