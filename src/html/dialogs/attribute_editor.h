// The block that the tag editor and similar dialogs share: two boxes for an attribute and its value, the pair of lists,
// and the buttons that add and remove. The block also works in a hidden window.
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

  // `Atribut` and `Hodnota`.
  [[nodiscard]] QComboBox* NameBox() const;
  [[nodiscard]] QComboBox* ValueBox() const;

 private:
  std::unique_ptr<Ui::AttributeEditor> ui_;
  PairedLists* lists_;
};

}  // namespace pelmar
