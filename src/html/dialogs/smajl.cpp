#include "html/dialogs/smajl.h"

#include "html/blocks.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "ui_smajl.h"

namespace pelmar {

Smajl::Smajl(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {
  // The form can't store an item that consists of blanks, so the empty item of the form becomes a blank here. The first
  // and the last box keep their empty items, since a smiley has no blanks at its ends.
  ui_->Combo3->setItemText(ui_->Combo3->findText(QString()), QStringLiteral(" "));
  connect(ui_->Command3, &QPushButton::clicked, this, [this] {
    ui_->Text1->setText(TextToQString(Smiley({FieldText(*ui_->Combo1), FieldText(*ui_->Combo2), FieldText(*ui_->Combo3),
                                              FieldText(*ui_->Combo4), FieldText(*ui_->Combo5)})));
  });
}

bool Smajl::Put() { return Insert(FieldText(*ui_->Text1)); }

}  // namespace pelmar
