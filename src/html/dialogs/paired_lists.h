// Lists that a person fills row by row: adding before the selected row, removing it, and the two parallel lists of the
// tag editor and its neighbours.
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

// The index of the selected row, -1 where none is.
int SelectedRow(const QListWidget& list);

// Before the selected row, or at the end.
void AddRow(QListWidget& list, const QString& text);

// Removes the selected row, or the last one, and leaves none selected. Nothing where the list is empty.
void RemoveRow(QListWidget& list);

// The key Delete in the list presses the button that removes rows.
void RemoveByKey(QListWidget& list, QAbstractButton& remove);

// The rows' texts, Windows-1250.
std::vector<std::string> RowTexts(const QListWidget& list);

// Two lists of which row i belongs to row i, two fields to add a pair from, and the buttons for adding and removing.
// required: the lists may get out of step, since each removes by its own selection.
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

  // From now on the fields take the texts of a clicked row, and what is typed into them goes into the selected rows.
  void EditSelectedRows() { edits_rows_ = true; }

  // Adds a pair, where that is allowed, and gets the first field ready for the next.
  void Add();

  [[nodiscard]] AttributeLists Rows() const;
  void SetRows(const AttributeLists& rows);

 private:
  void Follow(QListWidget* other, int row);
  void FieldChanged(const QString& text, QListWidget* list);
  void Remove();

  Parts parts_;
  bool edits_rows_ = false;
  bool following_ = false;  // the fields are taking the texts of a row
};

}  // namespace pelmar
