#include "platform/qt/program_style.h"

#include "platform/qt/svg_icon.h"

namespace pelmar {

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const {
  if (picture == SP_ToolBarHorizontalExtensionButton) return SvgIcon(QStringLiteral(":/icons/more.svg"));
  if (picture == SP_ToolBarVerticalExtensionButton) return SvgIcon(QStringLiteral(":/icons/more_below.svg"));
  return QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace pelmar
