#include "platform/qt/controls/field_helpers.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "platform/qt/convert.h"

namespace pelmar {

std::string FieldText(const QLineEdit& field) { return TextFromQString(field.text()); }
std::string FieldText(const QComboBox& field) { return TextFromQString(field.currentText()); }
std::string FieldText(const QLabel& field) { return TextFromQString(field.text()); }

void ShowFieldText(QLineEdit& field, const std::string& text) {
  const QString shown = TextToQString(text);
  if (field.text() != shown) field.setText(shown);
}

void ShowRows(QListWidget& list, const std::vector<std::string>& rows) {
  for (auto row = static_cast<std::size_t>(list.count()); row < rows.size(); ++row)
    list.addItem(TextToQString(rows[row]));
}

void ShowNumber(QLabel& label, std::optional<std::size_t> number) {
  label.setText(number ? QString::number(*number) : QString());
}

}  // namespace pelmar
