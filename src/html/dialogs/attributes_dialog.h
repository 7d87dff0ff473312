// The base of the dialogs for a row and a cell. Opened from the menu, the dialog is modeless, and Ok inserts tags.
// Opened by the table builder, the dialog is modal and returns attributes. The fields keep their values for the next
// opening.
#pragma once

#include <optional>
#include <string>

#include "html/table_tags.h"
#include "platform/qt/controls/fragment_dialog.h"

namespace pelmar {

template <class Form>
class AttributesDialog : public FragmentDialog<Form> {
 public:
  // Runs the dialog and returns the attributes, with a blank before the first one. "" if no attribute is set, nothing
  // on cancel.
  std::optional<std::string> AskAttributes() {
    this->hide();  // a visible window can't become modal
    answer_.reset();
    for_builder_ = true;
    EnableTagOnlyFields(false);
    this->exec();
    EnableTagOnlyFields(true);
    for_builder_ = false;
    return answer_;
  }

 protected:
  using FragmentDialog<Form>::FragmentDialog;

  [[nodiscard]] virtual std::string OpeningTag() const = 0;
  virtual void InsertTags() = 0;
  // Enables or disables the fields that change nothing in the result of AskAttributes().
  virtual void EnableTagOnlyFields(bool enabled) = 0;

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
