#include "html/dialogs/attributes_dialog.h"

#include "html/table_tags.h"

namespace pelmar {

std::optional<std::string> AttributesDialog::AskAttributes() {
  hide();  // a window on show can't become modal
  answer_.reset();
  for_builder_ = true;
  EnableForEditor(false);
  exec();
  EnableForEditor(true);
  for_builder_ = false;
  return answer_;
}

void AttributesDialog::Command1_Click() {
  if (for_builder_)
    answer_ = TagAttributes(OpeningTag());
  else
    InsertTags();
  hide();
}

}  // namespace pelmar
