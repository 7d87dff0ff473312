// Between the fields of a window and the Windows-1250 texts and numbers behind them.
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

// What stands in a field. A single-line one may hold line breaks: they show as blanks and come back as they were.
std::string FieldText(const QLineEdit& field);
std::string FieldText(const QComboBox& field);
std::string FieldText(const QLabel& field);
void ShowFieldText(QLineEdit& field, const std::string& text);

// Adds the rows that a growing list doesn't show yet.
void ShowRows(QListWidget& list, const std::vector<std::string>& rows);

// Plain digits, or nothing.
void ShowNumber(QLabel& label, std::optional<std::size_t> number);

}  // namespace pelmar
