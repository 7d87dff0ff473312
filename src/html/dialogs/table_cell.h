// `TableCell`: one cell of a table around the selection, or the attributes of a cell for the table builder.
#pragma once

#include <functional>
#include <memory>

#include "html/dialogs/attributes_dialog.h"
#include "html/table_tags.h"
#include "platform/color.h"

namespace Ui {
class TableCell;
}

namespace pelmar {

class TableCell : public AttributesDialog {
  Q_OBJECT

 public:
  TableCell(TextBuffer& document, std::function<Color(Color)> pick_color, QWidget* parent);
  ~TableCell() override;

 private:
  void VScroll6_Change();
  void Check8_Click(bool percent);
  [[nodiscard]] CellSpec Read() const;
  [[nodiscard]] std::string OpeningTag() const override;
  void InsertTags() override;
  void EnableForEditor(bool enabled) override;

  TextBuffer& document_;
  std::unique_ptr<Ui::TableCell> ui_;
};

}  // namespace pelmar
