// The controls for attributes in the tag editor and similar dialogs: a box and a list for the names, a box and a list
// for the values, a button that adds a pair, and a button that removes rows.
#pragma once

#include <QWidget>
#include <memory>

#include "html/dialogs/paired_lists.h"

class QComboBox;

namespace Ui {
class AttributeEditor;
}

namespace pelmar {

class AttributeEditor : public QWidget {
  Q_OBJECT

 public:
  explicit AttributeEditor(QWidget* parent = nullptr);
  ~AttributeEditor() override;

  [[nodiscard]] PairedLists& Lists() const { return *lists_; }

  // The box `Hodnota`.
  [[nodiscard]] QComboBox* ValueBox() const;

 private:
  std::unique_ptr<Ui::AttributeEditor> ui_;
  PairedLists* lists_;
};

}  // namespace pelmar
