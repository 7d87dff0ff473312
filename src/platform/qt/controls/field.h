// The single-line fields of all forms, which hold whatever comes. Where one is to have a limit, its form sets it.
#pragma once

#include <QComboBox>

#include "platform/qt/any_length.h"

namespace pelmar {

class Field : public QLineEdit {
 public:
  explicit Field(QWidget* parent = nullptr) : QLineEdit(parent) { TakeAnyLength(*this); }
};

// A box to choose from or to type into.
class FieldBox : public QComboBox {
 public:
  explicit FieldBox(QWidget* parent = nullptr) : QComboBox(parent) { setLineEdit(new Field(this)); }
};

}  // namespace pelmar
