// The base of the row's and the cell's dialog. The menu shows them beside the editor, where Ok inserts tags; the table
// builder asks one of them for attributes alone and waits for the answer. Both callers find the fields as they were
// left.
#pragma once

#include <optional>
#include <string>

#include "html/table_tags.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace pelmar {

template <class Form>
class AttributesDialog : public FragmentDialog<Form> {
 public:
  // Waits for the attributes, with the blank before the first; "" for none of them, nothing on cancel.
  std::optional<std::string> AskAttributes() {
    this->hide();  // a window on show can't become modal
    answer_.reset();
    for_builder_ = true;
    EnableForEditor(false);
    this->exec();
    EnableForEditor(true);
    for_builder_ = false;
    return answer_;
  }

 protected:
  using FragmentDialog<Form>::FragmentDialog;

  [[nodiscard]] virtual std::string OpeningTag() const = 0;
  virtual void InsertTags() = 0;
  // What means nothing to the builder can't be touched in its mode.
  virtual void EnableForEditor(bool enabled) = 0;

 private:
  bool Put() override {
    if (for_builder_)
      answer_ = TagAttributes(OpeningTag());
    else
      InsertTags();
    return true;
  }

  bool for_builder_ = false;
  std::optional<std::string> answer_;
};

}  // namespace pelmar
