#include "html/dialogs/tagy.h"

#include <QComboBox>

#include "html/tag_editor.h"
#include "platform/qt/controls/field_helpers.h"
#include "ui_tagy.h"

namespace pelmar {

Tagy::Tagy(TextBuffer& buffer, QWidget* parent)
    : FragmentDialog(buffer, parent, &Ui::Tagy::Command3, &Ui::Tagy::Command4) {
  OnEnter(ui_->Attributes->ValueBox(), [this] { ui_->Attributes->Lists().Add(); });
}

void Tagy::InsertCustomTag() {
  pelmar::InsertCustomTag(buffer_,
                          {FieldText(*ui_->TagText), ui_->Attributes->Lists().Rows(), ui_->Check1->isChecked()});
}

bool Tagy::Put() {
  InsertCustomTag();
  return true;
}

}  // namespace pelmar
