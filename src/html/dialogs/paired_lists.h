// Functions for a list to which the person adds rows, and a class for the two parallel lists of the tag editor and
// similar dialogs.
#pragma once

#include <QObject>
#include <QString>
#include <string>
#include <vector>

#include "html/tag_editor.h"

class QAbstractButton;
class QLineEdit;
class QListWidget;

namespace pelmar {

// The index of the selected row, -1 if no row is selected.
int SelectedRow(const QListWidget& list);

// Adds a row before the selected row, or at the end if no row is selected.
void AddRow(QListWidget& list, const QString& text);

// Removes the selected row, or the last row if no row is selected. Afterwards no row is selected.
void RemoveRow(QListWidget& list);

// Makes the key Delete in the list click the button `remove`, but only if a row is selected.
void RemoveByKey(QListWidget& list, QAbstractButton& remove);

// The texts of the rows, in Windows-1250.
std::vector<std::string> RowTexts(const QListWidget& list);

// Two lists whose rows form pairs, two fields for a new pair, a button that adds a pair and a button that removes rows.
// required: the lists may get out of step. Each list adds and removes at its own selected row, or at the end if no row
// is selected.
class PairedLists : public QObject {
 public:
  struct Parts {
    QLineEdit* name;
    QLineEdit* value;
    QListWidget* names;
    QListWidget* values;
    QAbstractButton* add;
    QAbstractButton* remove;
  };

  PairedLists(const Parts& parts, QObject* parent);

  // From this call on, the fields show the texts of the selected row, and typing into a field changes this row.
  void EditSelectedRows() { edits_rows_ = true; }

  // Does nothing if the button `add` is disabled. Otherwise adds a pair, focuses the field for the name and selects the
  // text of this field.
  void Add();

  [[nodiscard]] AttributeLists Rows() const;
  void SetRows(const AttributeLists& rows);

 private:
  void Follow(QListWidget* other, int row);
  void FieldChanged(const QString& text, QListWidget* list);
  void Remove();

  Parts parts_;
  bool edits_rows_ = false;
  bool following_ = false;  // true while the texts of a row are written into the fields
};

}  // namespace pelmar
