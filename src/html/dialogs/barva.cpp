#include "html/dialogs/barva.h"

#include "html/blocks.h"
#include "html/dialogs/form_helpers.h"
#include "ui_barva.h"

namespace pelmar {

Barva::Barva(TextBuffer& buffer, std::function<Color(Color)> pick_color, QWidget* parent)
    : FragmentDialog(buffer, parent) {
  ui_->Combo1->setCurrentText(QStringLiteral("Combo1"));
  AcceptFreeText(ui_->Combo1);
  EnableWith(ui_->Check1, {ui_->VScroll4, ui_->Label4});
  EnableWith(ui_->Check2, {ui_->Combo1});
  EnableWith(ui_->Check3, {ui_->Command3, ui_->Label1, ui_->Label2});
  ShowValue(ui_->VScroll4, ui_->Label4);
  ConnectColorChoice(ui_->Command3, ui_->Label1, ui_->Label2, std::move(pick_color));
}

bool Barva::Put() {
  FontSpec spec;
  if (ui_->Check1->isChecked()) spec.size = ui_->VScroll4->value();
  spec.face = TextIfChecked(ui_->Check2, ui_->Combo1);
  spec.color = TextIfChecked(ui_->Check3, ui_->Label2);
  WrapSelection(buffer_, Font(spec));
  return true;
}

}  // namespace pelmar
