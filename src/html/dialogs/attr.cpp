#include "html/dialogs/attr.h"

#include <QComboBox>

#include "html/tag_editor.h"
#include "ui_attr.h"

namespace pelmar {

Attr::Attr(TextBuffer& buffer, Platform& platform, QWidget* parent)
    : FragmentDialog(buffer, parent, &Ui::Attr::Command3, &Ui::Attr::Command4), platform_(platform) {
  OnEnter(ui_->Attributes->ValueBox(), [this] { ui_->Attributes->Lists().Add(); });
}

bool Attr::Put() { return AddAttributes(buffer_, ui_->Attributes->Lists().Rows(), platform_); }

}  // namespace pelmar
