// What many HTML dialogs share: controls enabled by a check box, a colour with its hex label, the value of a set
// option, the label of a bar, a size in percent or pixels, and a text that counts only while its box is ticked.
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

// Enables the widgets while the box is ticked.
void EnableWith(QCheckBox* box, std::initializer_list<QWidget*> widgets);

// Disables the follower while the source is disabled. The follower keeps its text.
void GreyWith(QWidget* source, QWidget* follower);

// The button asks `pick` for a colour, starting with the swatch's colour. The answer goes to the swatch, to the label
// in hex and to `taken`, if given. The label is disabled with the button.
void ConnectColorChoice(QAbstractButton* button, Swatch* swatch, QLabel* hex, std::function<Color(Color)> pick,
                        std::function<void(const QColor&)> taken = {});

// The box takes any typed text without completing it from the list. If its present text isn't in the list, the key Down
// selects the first row.
void AcceptFreeText(QComboBox* box);

// Writes a number for a label: as plain digits, or with a blank before it, as most labels do.
using WriteNumber = QString (*)(int);
QString Plain(int value);
QString BlankLed(int value);

// Writes each new value of the bar into the label. Until the first change the label keeps the form's text, even if the
// bar has another value, and the tag gets the label's text. The label is disabled with the bar.
void ShowValue(QAbstractSlider* bar, QLabel* label, std::function<QString(int)> write = Plain);

struct BarRange {
  int least, most;
};
// The bar counts in percent while the button is set, otherwise in pixels, and its range changes with the unit. The
// label shows the number, in percent with a final "%".
void LinkUnit(QAbstractButton* percent, QAbstractSlider* bar, QLabel* label, WriteNumber write = BlankLed,
              BarRange in_percent = {1, 100}, BarRange in_pixels = {1, 800});

// The text of the field in Windows-1250, while the box is ticked.
template <class Field>
std::optional<std::string> Written(const QCheckBox* box, const Field* field) {
  return box->isChecked() ? std::optional(FieldText(*field)) : std::nullopt;
}

// Options, each with its value.
template <class Value>
using Options = std::initializer_list<std::pair<const QRadioButton*, Value>>;

// The value of the set option, or of the first one if none is set.
template <class Value>
Value SetOption(Options<Value> options) {
  for (const auto& [option, value] : options)
    if (option->isChecked()) return value;
  return options.begin()->second;
}

// The same, while the box is ticked.
template <class Value>
std::optional<Value> SetOption(const QCheckBox* box, Options<Value> options) {
  return box->isChecked() ? std::optional(SetOption<Value>(options)) : std::nullopt;
}

}  // namespace pelmar
