// The dialog `TableCell` puts a table cell around the selection, or returns the attributes of a cell to `Table`.
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
  void EnableTagOnlyFields(bool enabled) override;
};

}  // namespace pelmar
