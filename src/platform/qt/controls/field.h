// The single-line fields of all forms, which hold whatever comes. Where one is to have a limit, its form sets it, and
// `holdsLines` where lines may be pasted into it.
#pragma once

#include <QComboBox>

#include "platform/qt/line_edits.h"

namespace pelmar {

class Field : public QLineEdit {
 public:
  explicit Field(QWidget* parent = nullptr) : QLineEdit(parent) { TakeAnyLength(*this); }

  bool event(QEvent* event) override { return TakePasted(*this, *event) || QLineEdit::event(event); }
};

// A box to choose from or to type into.
class FieldBox : public QComboBox {
 public:
  explicit FieldBox(QWidget* parent = nullptr) : QComboBox(parent) { setLineEdit(new Field(this)); }
};

}  // namespace pelmar
