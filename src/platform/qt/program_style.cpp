#include "platform/qt/program_style.h"

#include <QAbstractItemView>
#include <QMenuBar>
#include <QPainter>
#include <QStyleOptionMenuItem>

#include "platform/qt/svg_icon.h"

namespace pelmar {
namespace {

bool HasKeyboard(const QWidget* widget) { return widget != nullptr && widget->hasFocus() && widget->isActiveWindow(); }

void DrawKeyboardFrame(QPainter& painter, const QStyleOption& option) {
  painter.setPen(option.palette.color(QPalette::Highlight));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

}  // namespace

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const {
  if (picture == SP_ToolBarHorizontalExtensionButton) return SvgIcon(QStringLiteral(":/icons/more.svg"));
  if (picture == SP_ToolBarVerticalExtensionButton) return SvgIcon(QStringLiteral(":/icons/more_below.svg"));
  return QProxyStyle::standardIcon(picture, option, widget);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const {
  // The buttons of message boxes look like those of the program's own dialogs.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  // A turn of the wheel over the tabs is not a choice; the document behind would change, and its undo be gone.
  if (hint == SH_TabBar_AllowWheelScrolling) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  // A title of the menu bar that the keyboard is at, with no menu open, as behind an Escape.
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element == CE_MenuBarItem && item != nullptr && item->state.testFlag(State_Selected) &&
      qobject_cast<const QMenuBar*>(widget) && HasKeyboard(widget)) {
    QStyleOptionMenuItem chosen(*item);
    chosen.state |= State_Sunken;
    return QProxyStyle::drawControl(element, &chosen, painter, widget);
  }
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_ShapedFrame && qobject_cast<const QAbstractItemView*>(widget) && HasKeyboard(widget))
    DrawKeyboardFrame(*painter, *option);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  // A bar that stands for a value; those of lists and texts never have the keyboard.
  if (control == CC_ScrollBar && HasKeyboard(widget)) DrawKeyboardFrame(*painter, *option);
}

}  // namespace pelmar
