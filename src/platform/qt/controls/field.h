// The single-line fields of all forms. The length of the text is unlimited unless the form sets a limit. If the
// property `holdsLines` is true, a field keeps the line breaks of a pasted or dropped text.
#pragma once

#include <QComboBox>

#include "platform/qt/line_edits.h"

namespace pelmar {

class Field : public QLineEdit {
 public:
  explicit Field(QWidget* parent = nullptr) : QLineEdit(parent) { TakeAnyLength(*this); }

  bool event(QEvent* event) override { return TakePasted(*this, *event) || QLineEdit::event(event); }
};

// An editable combo box.
class FieldBox : public QComboBox {
 public:
  explicit FieldBox(QWidget* parent = nullptr) : QComboBox(parent) { setLineEdit(new Field(this)); }
};

}  // namespace pelmar
