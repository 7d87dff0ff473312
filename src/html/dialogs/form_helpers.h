// What the events of many HTML dialogs have in common: controls that go with a check box, a colour with its hex label,
// the value of the option that is set, a value's label, a size in percent or pixels, a text that is switched off.
#pragma once

#include <QCheckBox>
#include <QColor>
#include <QRadioButton>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "platform/color.h"
#include "platform/qt/controls/field_helpers.h"

class QAbstractSlider;

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

// How a label writes a number: in plain digits, or with a blank in front of it, as most do.
using WriteNumber = QString (*)(int);
QString Plain(int value);
QString BlankLed(int value);

// Each change of the bar's value is written into the label. What the form of the window says at first stays until then:
// such labels are what is written, and not all begin at their bar's value. The label goes grey with the bar.
void ShowValue(QAbstractSlider* bar, QLabel* label, std::function<QString(int)> write = Plain);

struct BarRange {
  int least, most;
};
// The bar counts in percent while that button is set and in pixels otherwise, as far as the unit goes; the label shows
// the number, in percent with "%" behind it.
void LinkUnit(QAbstractButton* percent, QAbstractSlider* bar, QLabel* label, WriteNumber write = BlankLed,
              BarRange in_percent = {1, 100}, BarRange in_pixels = {1, 800});

// What the field says, in Windows-1250, as long as the box is ticked.
template <class Field>
std::optional<std::string> Written(const QCheckBox* box, const Field* field) {
  return box->isChecked() ? std::optional(FieldText(*field)) : std::nullopt;
}

// Options and what each of them stands for.
template <class Value>
using Options = std::initializer_list<std::pair<const QRadioButton*, Value>>;

// What the set option stands for; the first one where none is set.
template <class Value>
Value SetOption(Options<Value> options) {
  for (const auto& [option, value] : options)
    if (option->isChecked()) return value;
  return options.begin()->second;
}

// The same as long as the box is ticked.
template <class Value>
std::optional<Value> SetOption(const QCheckBox* box, Options<Value> options) {
  return box->isChecked() ? std::optional(SetOption<Value>(options)) : std::nullopt;
}

}  // namespace pelmar
