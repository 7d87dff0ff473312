// Reads and shows Windows-1250 texts and numbers in the fields of a window.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace pelmar {

// The text of a field. A single-line field may contain line breaks. The field shows line breaks as blanks, but
// FieldText returns the line breaks unchanged.
std::string FieldText(const QLineEdit& field);
std::string FieldText(const QComboBox& field);
std::string FieldText(const QLabel& field);
void ShowFieldText(QLineEdit& field, const std::string& text);

// Appends to the list the rows that the list doesn't show yet. The list must show the beginning of `rows`.
void ShowRows(QListWidget& list, const std::vector<std::string>& rows);

// Shows the number without separators, or an empty text if there is no number.
void ShowNumber(QLabel& label, std::optional<std::size_t> number);

}  // namespace pelmar
