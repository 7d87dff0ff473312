// The desktop's own style, but for two pictures that every menu bar and toolbar asks for when it is made: the toolkit
// would search its picture plug-ins for them before the first window is on the screen.
#pragma once

#include <QProxyStyle>

namespace pelmar {

class ProgramStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace pelmar
