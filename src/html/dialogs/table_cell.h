// `TableCell`: one cell of a table around the selection, or the attributes of a cell for the table builder.
#pragma once

#include <functional>

#include "html/dialogs/attributes_dialog.h"
#include "platform/color.h"

namespace Ui {
class TableCell;
}

namespace pelmar {

class TableCell : public AttributesDialog<Ui::TableCell> {
  Q_OBJECT

 public:
  TableCell(TextBuffer& buffer, std::function<Color(Color)> pick_color, QWidget* parent);

 private:
  [[nodiscard]] CellSpec Read() const;
  [[nodiscard]] std::string OpeningTag() const override;
  void InsertTags() override;
  void EnableForEditor(bool enabled) override;
};

}  // namespace pelmar
