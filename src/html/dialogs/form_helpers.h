// What the events of many HTML dialogs have in common: controls that go with a check box, a colour with its hex label,
// the set one of some options.
#pragma once

#include <QColor>
#include <functional>
#include <initializer_list>

#include "shell/common.h"

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QRadioButton;
class QWidget;

namespace pelmar {

class Swatch;

// The widgets are enabled while the box is ticked, from now on.
void EnableWith(QCheckBox* box, std::initializer_list<QWidget*> widgets);

// The button asks `pick` for a colour, beginning with the swatch's; the answer goes into the swatch, into the label in
// hex and to `taken`, where there is one.
void ConnectColorChoice(QAbstractButton* button, Swatch* swatch, QLabel* hex, std::function<Color(Color)> pick,
                        std::function<void(const QColor&)> taken = {});

// The box takes any text as it is typed: none is completed from the list.
void AcceptFreeText(QComboBox* box);

// The index of the option that is set, from 0; 0 where none is.
int SetOption(std::initializer_list<const QRadioButton*> options);

}  // namespace pelmar
