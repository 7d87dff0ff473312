#include "html/dialogs/tag_dialogs.h"

#include <QComboBox>

#include "html/tag_editor.h"
#include "platform/qt/controls/field_helpers.h"
#include "ui_attr.h"
#include "ui_tagy.h"

namespace pelmar {

Attr::Attr(TextBuffer& document, Platform& platform, QWidget* parent)
    : FragmentDialog(document, parent, &Ui::Attr::Command3, &Ui::Attr::Command4), platform_(platform) {
  OnEnter(ui_->Attributes->ValueBox(), [this] { ui_->Attributes->Lists().Add(); });
}

bool Attr::Put() { return AddAttributes(document_, ui_->Attributes->Lists().Rows(), platform_); }

Tagy::Tagy(TextBuffer& document, QWidget* parent)
    : FragmentDialog(document, parent, &Ui::Tagy::Command3, &Ui::Tagy::Command4) {
  OnEnter(ui_->Attributes->ValueBox(), [this] { ui_->Attributes->Lists().Add(); });
}

void Tagy::InsertCustomTag() {
  pelmar::InsertCustomTag(document_,
                          {FieldText(*ui_->TagText), ui_->Attributes->Lists().Rows(), ui_->Check1->isChecked()});
}

bool Tagy::Put() {
  InsertCustomTag();
  return true;
}

}  // namespace pelmar
