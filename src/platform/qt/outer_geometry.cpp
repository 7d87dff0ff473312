#include "platform/qt/outer_geometry.h"
#include <QScreen>
namespace pelmar {
TwipsRect OuterGeometry(const QWidget& w) {
  const QRect g = w.frameGeometry();
  return {TwipsOf(g.left()), TwipsOf(g.top()), TwipsOf(g.width()), TwipsOf(g.height())};
}
void SetOuterLeft(QWidget& w, int t) { w.move(PixelsOf(t), w.y()); }
void SetOuterTop(QWidget& w, int t) { w.move(w.x(), PixelsOf(t)); }
void SetOuterWidth(QWidget& w, int t) { w.resize(PixelsOf(t) - (w.frameGeometry().width() - w.width()), w.height()); }
void SetOuterHeight(QWidget& w, int t) { w.resize(w.width(), PixelsOf(t) - (w.frameGeometry().height() - w.height())); }
QSize ScreenTwips(const QWidget& w) {
  const QSize s = w.screen()->size();
  return {TwipsOf(s.width()), TwipsOf(s.height())};
}
void CentreOnScreen(QWidget& w) { w.move(w.screen()->geometry().center() - w.frameGeometry().center() + w.pos()); }
void SetAlwaysOnTop(QWidget&, bool) {}
}  // namespace pelmar
