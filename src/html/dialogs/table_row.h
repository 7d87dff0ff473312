// The dialog `TableRow` inserts a row of numbered cells, or returns the attributes of a row to `Table`.
#pragma once

#include "html/dialogs/attributes_dialog.h"

namespace Ui {
class TableRow;
}

namespace pelmar {

class TableRow : public AttributesDialog<Ui::TableRow> {
  Q_OBJECT

 public:
  TableRow(TextBuffer& buffer, QWidget* parent);

 private:
  [[nodiscard]] RowSpec Read() const;
  [[nodiscard]] std::string OpeningTag() const override;
  void InsertTags() override;
  void EnableTagOnlyFields(bool enabled) override;
};

}  // namespace pelmar
