#include "html/dialogs/nadpis.h"

#include "html/blocks.h"
#include "html/dialogs/form_helpers.h"
#include "ui_nadpis.h"

namespace pelmar {

Nadpis::Nadpis(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {
  ShowValue(ui_->VScroll1, ui_->Label1, BlankLed);
}

bool Nadpis::Put() {
  using enum Align;
  HeadingSpec spec;
  spec.size = FieldText(*ui_->Label1);
  spec.align = CheckedOption<Align>(
      {{ui_->Option1, kLeft}, {ui_->Option2, kCenter}, {ui_->Option3, kRight}, {ui_->Option4, kNone}});
  spec.no_wrap = ui_->Check1->isChecked();
  WrapSelection(buffer_, Heading(spec));
  return true;
}

}  // namespace pelmar
