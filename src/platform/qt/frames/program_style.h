// The desktop's own style, with what the program needs beside it: two pictures that every menu bar and toolbar asks for
// when it is made come from the program itself, since the toolkit would search its picture plug-ins for them before the
// first window is on the screen; what has the keyboard is to be seen also where the style doesn't show it; and so is,
// on a dark desktop too, what is off: the text of its fields, its captions, the rims of boxes. The wheel leaves tabs
// alone. A form says nothing of the room round a dialog and between what stands in it, unless it wants another one.
#pragma once

#include <QProxyStyle>
#include <QStyleOptionButton>

namespace pelmar {

// Set on the windows that get that room.
inline constexpr char kRoomProperty[] = "roomByStyle";

class ProgramStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  void polish(QPalette& palette) override;
  using QProxyStyle::polish;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;

 private:
  void DrawPushButton(QStyleOptionButton button, QPainter& painter, const QWidget& widget) const;
};

}  // namespace pelmar
