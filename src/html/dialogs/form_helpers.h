// What the events of many HTML dialogs have in common: controls that go with a check box, a colour with its hex label,
// the set one of some options, a value's label, a text that is switched off.
#pragma once

#include <QColor>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>

#include "platform/color.h"

class QAbstractButton;
class QAbstractSlider;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace pelmar {

class Swatch;

// The widgets are enabled while the box is ticked, from now on.
void EnableWith(QCheckBox* box, std::initializer_list<QWidget*> widgets);

// What belongs to a control and shows its value goes grey with it, and keeps what it says.
void GreyWith(QWidget* source, QWidget* follower);

// The button asks `pick` for a colour, beginning with the swatch's; the answer goes into the swatch, into the label in
// hex and to `taken`, where there is one. The label goes grey with the button.
void ConnectColorChoice(QAbstractButton* button, Swatch* swatch, QLabel* hex, std::function<Color(Color)> pick,
                        std::function<void(const QColor&)> taken = {});

// The box takes any text as it is typed: none is completed from the list, and where the text of now isn't in it, the
// arrow key Down goes to the first row.
void AcceptFreeText(QComboBox* box);

// The number with a blank in front of it, as the labels of many values are written, and "%" where it is one of percent.
QString BlankLed(int value);
QString BlankLedPercent(int value);

// Each change of the bar's value is written into the label, in plain digits where no other form is given. What the form
// of the window says at first stays until then: such labels are what is written, and not all begin at their bar's
// value. The label goes grey with the bar.
void ShowValue(QAbstractSlider* bar, QLabel* label, std::function<QString(int)> write = {});

// What the field says, in Windows-1250, as long as the box is ticked.
std::optional<std::string> Written(const QCheckBox* box, const QLabel* field);
std::optional<std::string> Written(const QCheckBox* box, const QLineEdit* field);
std::optional<std::string> Written(const QCheckBox* box, const QComboBox* field);

// The index of the option that is set, from 0; 0 where none is.
int SetOption(std::initializer_list<const QRadioButton*> options);

}  // namespace pelmar
