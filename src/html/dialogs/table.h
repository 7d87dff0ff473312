// `Table`: the table builder. One tab holds the table's size and attributes, the other walks over the grid, whose cells
// take each change of their fields at once. The grid is never cleared.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "html/table_builder.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

class QLineEdit;

namespace Ui {
class Table;
}

namespace pelmar {

class Table : public DialogWindow {
  Q_OBJECT

 public:
  // Waits for attributes; nothing on cancel.
  using AskAttributes = std::function<std::optional<std::string>()>;

  Table(TextBuffer& document, AskAttributes ask_cell, AskAttributes ask_row, QWidget* parent);
  ~Table() override;

 private:
  void MakeTabs();
  void ConnectGroups();
  void ConnectWalk(AskAttributes ask_cell, AskAttributes ask_row);
  void SetWidthUnit(bool percent);
  void VScroll1_Change(int columns);
  void VScroll2_Change(int rows);
  void ShowCell();
  void ShowRow();
  [[nodiscard]] TableSpec Read() const;
  void Command1_Click();

  // The strings at the present position.
  std::string& Text();
  std::string& Attributes();
  std::string& RowAttributes();

  TextBuffer& document_;
  TableGrid grid_;
  std::unique_ptr<Ui::Table> ui_;
};

}  // namespace pelmar
