// The base of the dialogs for a row and a cell. From the menu a dialog stays open beside the editor, and Ok inserts
// tags. The table builder asks a dialog only for attributes and waits for the answer. The fields keep their values from
// one use to the next.
#pragma once

#include <optional>
#include <string>

#include "html/table_tags.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace pelmar {

template <class Form>
class AttributesDialog : public FragmentDialog<Form> {
 public:
  // Waits for the attributes, with a blank before the first one. Empty if none is set, nothing on cancel.
  std::optional<std::string> AskAttributes() {
    this->hide();  // a visible window can't become modal
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
  // Disables the fields that mean nothing to the table builder.
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
