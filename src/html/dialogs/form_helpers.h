// Functions that many HTML dialogs share, for check boxes, options, colours and the values of bars.
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

// Enables the widgets while the box is checked.
void EnableWith(QCheckBox* box, std::initializer_list<QWidget*> widgets);

// The button calls `pick` with the swatch's colour. The result is shown in the swatch and, in hexadecimal digits, in
// the label; `taken` is called with the result.
void ConnectColorChoice(QAbstractButton* button, Swatch* swatch, QLabel* hex, std::function<Color(Color)> pick,
                        std::function<void(const QColor&)> taken = {});

// The box accepts any typed text and doesn't complete the text from its list. If the list doesn't contain the text, the
// key Down selects the first row.
void AcceptFreeText(QComboBox* box);

// How a label shows a number: as digits, or with a blank before the digits, as most labels do.
using WriteNumber = QString (*)(int);
QString Plain(int value);
QString BlankLed(int value);

// Writes each new value of the bar into the label. Before the first change the label has the form's text, even if the
// bar has another value. Tags get the label's text, not the bar's value.
void ShowValue(QAbstractSlider* bar, QLabel* label, std::function<QString(int)> write = Plain);

struct BarRange {
  int least, most;
};
// The bar counts percent while the button is checked, otherwise pixels; each unit has its own range. The label shows
// the number, followed by "%" for percent.
void LinkUnit(QAbstractButton* percent, QAbstractSlider* bar, QLabel* label, WriteNumber write = BlankLed,
              BarRange in_percent = {1, 100}, BarRange in_pixels = {1, 800});

// The text of the field in Windows-1250. Nothing if the box is not checked.
template <class Field>
std::optional<std::string> TextIfChecked(const QCheckBox* box, const Field* field) {
  return box->isChecked() ? std::optional(FieldText(*field)) : std::nullopt;
}

// Options, each with its value.
template <class Value>
using Options = std::initializer_list<std::pair<const QRadioButton*, Value>>;

// The value of the checked option, or of the first option if no option is checked.
template <class Value>
Value CheckedOption(Options<Value> options) {
  for (const auto& [option, value] : options)
    if (option->isChecked()) return value;
  return options.begin()->second;
}

// The value of the checked option, as above. Nothing if the box is not checked.
template <class Value>
std::optional<Value> CheckedOption(const QCheckBox* box, Options<Value> options) {
  return box->isChecked() ? std::optional(CheckedOption<Value>(options)) : std::nullopt;
}

}  // namespace pelmar
