// The piece that the tag editor and its neighbours share: a pair of boxes to choose or type an attribute and its value,
// the pair of lists, add and remove. It works also where it stands in a window that is hidden.
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
