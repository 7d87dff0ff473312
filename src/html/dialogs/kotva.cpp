#include "html/dialogs/kotva.h"

#include "html/link.h"
#include "platform/qt/controls/field_helpers.h"
#include "ui_kotva.h"

namespace pelmar {

Kotva::Kotva(TextBuffer& buffer, std::function<void(const QString&)> remember, QWidget* parent)
    : FragmentDialog(buffer, parent), remember_(std::move(remember)) {}

bool Kotva::Put() {
  if (ui_->Text1->text().isEmpty()) return false;
  remember_(ui_->Text1->text());
  return Insert(AnchorTag(FieldText(*ui_->Text1)));
}

}  // namespace pelmar
