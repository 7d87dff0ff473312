// The base of the row's and the cell's dialog. The menu shows them beside the editor, where Ok inserts tags; the table
// builder asks one of them for attributes alone and waits for the answer. Both callers find the fields as they were
// left.
#pragma once

#include <optional>
#include <string>

#include "platform/qt/controls/dialog_window.h"

namespace pelmar {

class AttributesDialog : public DialogWindow {
  Q_OBJECT

 public:
  // Waits for the attributes, with the blank before the first; "" for none of them, nothing on cancel.
  std::optional<std::string> AskAttributes();

 protected:
  using DialogWindow::DialogWindow;

  // The window's Command1 comes here.
  void Command1_Click();

  [[nodiscard]] virtual std::string OpeningTag() const = 0;
  virtual void InsertTags() = 0;
  // What means nothing to the builder can't be touched in its mode.
  virtual void EnableForEditor(bool enabled) = 0;

 private:
  bool for_builder_ = false;
  std::optional<std::string> answer_;
};

}  // namespace pelmar
