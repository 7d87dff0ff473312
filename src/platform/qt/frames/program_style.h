// The style of the desktop with changes, mainly these. Push buttons, lists and scroll bars show the keyboard focus
// clearly. Disabled texts and the borders of check boxes are visible on dark desktops too. The mouse wheel doesn't
// change tabs. All dialogs have the same margins and the same spacing, unless a form sets others. Two icons of menu
// bars and toolbars come from the program: for Qt's own icons, Qt would load its image plug-ins before the first window
// appears.
#pragma once

#include <QProxyStyle>
#include <QStyleOptionButton>

namespace pelmar {

// A dynamic property of the windows that get the margins and the spacing of dialogs.
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
  void polish(QWidget* widget) override;
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
