// `TableRow`: one row of a table, with numbered cells, or the attributes of a row for the table builder.
#pragma once

#include <memory>

#include "html/dialogs/attributes_dialog.h"
#include "html/table_tags.h"

namespace Ui {
class TableRow;
}

namespace pelmar {

class TableRow : public AttributesDialog {
  Q_OBJECT

 public:
  TableRow(TextBuffer& document, QWidget* parent);
  ~TableRow() override;

 private:
  [[nodiscard]] RowSpec Read() const;
  [[nodiscard]] std::string OpeningTag() const override;
  void InsertTags() override;
  void EnableForEditor(bool enabled) override;

  TextBuffer& document_;
  std::unique_ptr<Ui::TableRow> ui_;
};

}  // namespace pelmar
