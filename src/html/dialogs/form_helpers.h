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

// Keeps the widgets enabled while the box is checked, and disabled otherwise.
void EnableWith(QCheckBox* box, std::initializer_list<QWidget*> widgets);

// The button calls `pick` with the swatch's colour. The result is shown in the swatch and, in hexadecimal digits, in
// the label. Then `taken` is called with the result.
void ConnectColorChoice(QAbstractButton* button, Swatch* swatch, QLabel* hex, std::function<Color(Color)> pick,
                        std::function<void(const QColor&)> taken = {});

// The box accepts any typed text and doesn't complete the text from the list. The row of the present text becomes
// current, so that the arrow keys start there. If no row has this text, the key Down selects the first row.
void AcceptFreeText(QComboBox* box);

// How a label shows a number: Plain writes "7", BlankLed writes " 7".
using WriteNumber = QString (*)(int);
QString Plain(int value);
QString BlankLed(int value);

// Writes each new value of the bar into the label. Before the first change the label has the form's text, even if the
// bar has another value. Many dialogs write the label's text, not the bar's value, into the tag.
void ShowValue(QAbstractSlider* bar, QLabel* label, std::function<QString(int)> write = Plain);

struct BarRange {
  int least, most;
};
// The bar counts percent while the button is checked, otherwise pixels. A change of the unit sets the range of the new
// unit. The label shows the number, followed by "%" for percent.
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
