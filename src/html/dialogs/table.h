// The dialog `Table` builds a table. One tab sets the size and the attributes of the table. The other tab shows one
// cell and one row of the grid, and stores each change of their fields at once. The grid is never cleared.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "html/table_builder.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace Ui {
class Table;
}

namespace pelmar {

class Table : public FragmentDialog<Ui::Table> {
  Q_OBJECT

 public:
  // Lets the person set attributes and returns them. Nothing on cancel.
  using AskAttributes = std::function<std::optional<std::string>()>;

  Table(TextBuffer& buffer, AskAttributes ask_cell, AskAttributes ask_row, QWidget* parent);

 private:
  void MakeTabs();
  void ConnectGroups();
  void ConnectWalk(AskAttributes ask_cell, AskAttributes ask_row);
  void VScroll1_Change(int columns);
  void VScroll2_Change(int rows);
  void ShowCell();
  void GoToNextCell();
  void ShowRow();
  [[nodiscard]] TableSpec Read() const;
  bool Put() override;

  // The strings of the shown cell and row in the grid.
  std::string& ShownCellText();
  std::string& ShownCellAttributes();
  std::string& ShownRowAttributes();

  TableGrid grid_;
};

}  // namespace pelmar
