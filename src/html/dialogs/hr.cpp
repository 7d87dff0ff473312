#include "html/dialogs/hr.h"

#include "html/blocks.h"
#include "html/dialogs/form_helpers.h"
#include "ui_hr.h"

namespace pelmar {

Hr::Hr(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {
  EnableWith(ui_->Check1, {ui_->Option4, ui_->Option5, ui_->VScroll1, ui_->Label1});
  LinkUnit(ui_->Option4, ui_->VScroll1, ui_->Label1);
  // required: for pixels, a click on the option writes a blank before the number, a move of the bar writes no blank
  for (QRadioButton* unit : {ui_->Option4, ui_->Option5})
    connect(unit, &QRadioButton::clicked, this, [this] {
      const QString number = BlankLed(ui_->VScroll1->value());
      ui_->Label1->setText(ui_->Option4->isChecked() ? number + QLatin1Char('%') : number);
    });
  connect(ui_->VScroll1, &QScrollBar::valueChanged, this, [this](int value) {
    if (ui_->Option5->isChecked()) ui_->Label1->setText(Plain(value));
  });
}

bool Hr::Put() {
  using enum Align;
  RuleSpec spec;
  spec.align = CheckedOption<Align>(
      {{ui_->Option6, kNone}, {ui_->Option2, kLeft}, {ui_->Option1, kCenter}, {ui_->Option3, kRight}});
  spec.no_shade = ui_->Shader->isChecked();
  spec.width = TextIfChecked(ui_->Check1, ui_->Label1);
  return Insert(HorizontalRule(spec));
}

}  // namespace pelmar
