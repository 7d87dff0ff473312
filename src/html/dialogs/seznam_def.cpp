#include "html/dialogs/seznam_def.h"

#include "html/dialogs/paired_lists.h"
#include "html/lists.h"
#include "ui_seznam_def.h"

namespace pelmar {

SeznamDef::SeznamDef(TextBuffer& buffer, QWidget* parent)
    : FragmentDialog(buffer, parent, &Ui::SeznamDef::Command3, &Ui::SeznamDef::Command4) {
  lists_ =
      new PairedLists({ui_->Atribut, ui_->Hodnota, ui_->Atributs, ui_->Values, ui_->Command1, ui_->Command2}, this);
  OnEnter(ui_->Hodnota, [this] { lists_->Add(); });
}

bool SeznamDef::Put() {
  const auto [terms, definitions] = lists_->Rows();
  return Insert(BuildDefinitionList(terms, definitions));
}

}  // namespace pelmar
