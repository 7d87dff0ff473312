#include "html/dialogs/smajl.h"

#include "html/blocks.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "ui_smajl.h"

namespace pelmar {

Smajl::Smajl(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {
  // The form can't store an item that consists of blanks, so an empty item of the form becomes a blank here.
  for (QComboBox* part : {ui_->Combo1, ui_->Combo3, ui_->Combo5})
    part->setItemText(part->findText(QString()), QStringLiteral(" "));
  connect(ui_->Command3, &QPushButton::clicked, this, [this] {
    ui_->Text1->setText(TextToQString(Smiley({FieldText(*ui_->Combo1), FieldText(*ui_->Combo2), FieldText(*ui_->Combo3),
                                              FieldText(*ui_->Combo4), FieldText(*ui_->Combo5)})));
  });
}

bool Smajl::Put() { return Insert(FieldText(*ui_->Text1)); }

}  // namespace pelmar
