// `Table`: the table builder. One tab holds the table's size and attributes, the other walks over the grid, whose cells
// take each change of their fields at once. The grid is never cleared.
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
  // Waits for attributes; nothing on cancel.
  using AskAttributes = std::function<std::optional<std::string>()>;

  Table(TextBuffer& document, AskAttributes ask_cell, AskAttributes ask_row, QWidget* parent);

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

  // The strings at the present position.
  std::string& Text();
  std::string& Attributes();
  std::string& RowAttributes();

  TableGrid grid_;
};

}  // namespace pelmar
