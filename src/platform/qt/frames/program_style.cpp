#include "platform/qt/frames/program_style.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionMenuItem>
#include <QToolButton>
#include <algorithm>
#include <cmath>

#include "platform/qt/frames/svg_icon.h"

namespace pelmar {
namespace {

// The wanted contrasts with the background, as ratios of luminances: 1 for equal colours, 21 for black on white.
constexpr double kTextContrast = 4.5;
constexpr double kBorderContrast = 3.7;  // more than the usual 3, since borders have blurred edges
constexpr double kDisabledContrast = 3;  // disabled captions: visible, but paler than enabled ones
constexpr double kLineContrast = 2;
constexpr double kSelectionContrast = 1.5;  // the background of a selected text in a disabled field
constexpr int kSteps = 20;

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one), b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor Mixed(const QColor& ground, const QColor& text, double share) {
  const auto mix = [share](double from, double to) { return static_cast<float>(from + (to - from) * share); };
  return QColor::fromRgbF(mix(ground.redF(), text.redF()), mix(ground.greenF(), text.greenF()),
                          mix(ground.blueF(), text.blueF()));
}

// Mixes `text` into `ground`, with a greater share of `text` in each step, until the contrast of the mixture with
// `ground` is at least `wanted`. Returns this mixture, or `text` itself if no mixture has enough contrast.
QColor OfContrast(double wanted, const QColor& ground, const QColor& text) {
  for (int step = 1; step < kSteps; ++step)
    if (const QColor mixed = Mixed(ground, text, static_cast<double>(step) / kSteps); Contrast(ground, mixed) >= wanted)
      return mixed;
  return text;
}

bool HasKeyboard(const QWidget* widget) { return widget != nullptr && widget->hasFocus() && widget->isActiveWindow(); }

// Whether Enter presses this widget instead of the default button of the window.
bool TakesEnter(const QWidget* widget) {
  return qobject_cast<const QPushButton*>(widget) || qobject_cast<const QToolButton*>(widget);
}

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
  // The buttons of message boxes have the look and the order of the program's own dialogs.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  if (hint == SH_DialogButtonLayout) return QDialogButtonBox::WinLayout;
  // A wheel turn over the tabs is often an accident. The turn would show another document and clear the undo history.
  if (hint == SH_TabBar_AllowWheelScrolling) return 0;
  // A menu that doesn't fit the screen scrolls. Without this, the last items would be in a second column.
  if (hint == SH_Menu_Scrollable) return 1;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  constexpr int kRoundDialog = 12, kBetween = 8;
  const auto dialog = [](const QWidget* window) {
    return window != nullptr && window->property(kRoomProperty).toBool();
  };
  switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
      if (dialog(widget)) return kRoundDialog;
      break;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      if (widget != nullptr && dialog(widget->window())) return kBetween;
      break;
    default:
      break;
  }
  return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize ProgramStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                     const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  // Qt's usual style widens buttons with short captions, but lets long captions touch the border. So the button gets a
  // least space beside its caption.
  constexpr int kBesideCaption = 12;
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (type == CT_PushButton && button != nullptr && !button->text.isEmpty())
    size.setWidth(std::max(size.width(), contents.width() + 2 * kBesideCaption));
  return size;
}

void ProgramStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  // Tool tips show paths, and "<b>" in a name is no tag.
  if (widget->inherits("QTipLabel")) qobject_cast<QLabel*>(widget)->setTextFormat(Qt::PlainText);
}

void ProgramStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  const auto text = [&palette](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
  const auto lift = [&](QPalette::ColorRole role, QPalette::ColorRole ground, double wanted) {
    const QColor on = palette.color(QPalette::Disabled, ground);
    if (Contrast(on, palette.color(QPalette::Disabled, role)) < wanted)
      palette.setColor(QPalette::Disabled, role, OfContrast(wanted, on, text(QPalette::WindowText)));
  };
  // A running search disables fields of its dialog, but the person still has to read these fields.
  lift(QPalette::Text, QPalette::Base, kTextContrast);
  const QColor marked =
      OfContrast(kSelectionContrast, palette.color(QPalette::Disabled, QPalette::Base), text(QPalette::Text));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, marked);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText,
                   OfContrast(kTextContrast, marked, text(QPalette::Text)));
  lift(QPalette::WindowText, QPalette::Window, kDisabledContrast);
  lift(QPalette::ButtonText, QPalette::Button, kDisabledContrast);
  // Some dark desktops leave placeholder texts black. The tabs of unnamed documents use the colour of placeholder texts
  // too, on the colour of buttons. On this colour the contrast is lower than in a field, so the colour of placeholder
  // texts is computed for buttons.
  const QColor hint = OfContrast(kTextContrast, text(QPalette::Button), text(QPalette::ButtonText));
  palette.setColor(QPalette::PlaceholderText, hint);
  // The colour of lines in the program's own controls.
  palette.setColor(QPalette::Mid, OfContrast(kLineContrast, text(QPalette::Window), text(QPalette::WindowText)));
  // On some dark desktops tool tips stay light yellow.
  if (Luminance(text(QPalette::Window)) > Luminance(text(QPalette::WindowText))) return;
  palette.setColor(QPalette::ToolTipBase, text(QPalette::Window));
  palette.setColor(QPalette::ToolTipText, text(QPalette::WindowText));
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (element == PE_PanelButtonCommand && box != nullptr && widget != nullptr)
    return DrawPushButton(*box, *painter, *widget);
  if ((element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) || box == nullptr)
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  // Qt's usual style draws the border in a darker shade of the window's colour. On a dark window this shade is
  // invisible. So the style gets another colour for the window, whose darker shade is `rim`.
  const int darkens = element == PE_IndicatorRadioButton ? 150 : 127;
  QStyleOptionButton rimmed(*box);
  const QColor rim = OfContrast(kBorderContrast, box->palette.color(QPalette::Window),
                                box->palette.color(QPalette::Active, QPalette::WindowText));
  rimmed.palette.setColor(QPalette::Window, rim.lighter(darkens));
  QProxyStyle::drawPrimitive(element, &rimmed, painter, widget);
}

void ProgramStyle::DrawPushButton(QStyleOptionButton button, QPainter& painter, const QWidget& widget) const {
  if (const QWidget* focus = widget.window()->focusWidget(); focus != &widget && TakesEnter(focus))
    button.features &= ~QStyleOptionButton::DefaultButton;
  QProxyStyle::drawPrimitive(PE_PanelButtonCommand, &button, &painter, &widget);
  if (!button.state.testFlag(State_HasFocus) || !button.state.testFlag(State_KeyboardFocusChange)) return;
  painter.save();
  painter.setPen(QPen(button.palette.color(QPalette::Highlight), 2));
  painter.setBrush(Qt::NoBrush);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawRoundedRect(QRectF(button.rect).adjusted(2, 2, -2, -2), 2, 2);
  painter.restore();
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  // Marks the selected title of the menu bar even if no menu is open, for instance after Escape.
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element == CE_MenuBarItem && item != nullptr && item->state.testFlag(State_Selected) &&
      qobject_cast<const QMenuBar*>(widget) && HasKeyboard(widget)) {
    QStyleOptionMenuItem chosen(*item);
    chosen.state |= State_Sunken;
    return QProxyStyle::drawControl(element, &chosen, painter, widget);
  }
  if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option); element == CE_ComboBoxLabel && box) {
    QStyleOptionComboBox fitting(*box);
    const int room = subControlRect(CC_ComboBox, box, SC_ComboBoxEditField, widget).width() - 2;
    fitting.currentText = box->fontMetrics.elidedText(box->currentText, Qt::ElideMiddle, room);
    return QProxyStyle::drawControl(element, &fitting, painter, widget);
  }
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_ShapedFrame && qobject_cast<const QAbstractItemView*>(widget) && HasKeyboard(widget))
    DrawKeyboardFrame(*painter, *option);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  // Only scroll bars with a value of their own can have the focus. The scroll bars of lists and texts can't.
  if (control != CC_ScrollBar || widget == nullptr || widget->focusPolicy() == Qt::NoFocus) return;
  const QPalette& palette = option->palette;
  painter->setPen(widget->isEnabled() ? OfContrast(kBorderContrast, palette.color(QPalette::Window),
                                                   palette.color(QPalette::Active, QPalette::WindowText))
                                      : palette.color(QPalette::Mid));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget).adjusted(0, 0, -1, -1));
  if (HasKeyboard(widget)) DrawKeyboardFrame(*painter, *option);
}

}  // namespace pelmar
