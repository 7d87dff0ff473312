#include "html/dialogs/block_dialogs.h"

#include "html/blocks.h"
#include "html/dialogs/form_helpers.h"
#include "ui_barva.h"
#include "ui_hr.h"
#include "ui_nadpis.h"
#include "ui_odstavec.h"

namespace pelmar {

using enum Align;

Odstavec::Odstavec(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}

bool Odstavec::Put() {
  WrapSelection(document_,
                Paragraph(SetOption<Align>({{ui_->Option1, kLeft}, {ui_->Option2, kCenter}, {ui_->Option3, kRight}})));
  return true;
}

Hr::Hr(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {
  EnableWith(ui_->Check1, {ui_->Option4, ui_->Option5, ui_->VScroll1});
  LinkUnit(ui_->Option4, ui_->VScroll1, ui_->Label1);
  // Pixels show with a blank where their option is clicked, also again, and without one where the bar moves.
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
  RuleSpec spec;
  spec.align =
      SetOption<Align>({{ui_->Option6, kNone}, {ui_->Option2, kLeft}, {ui_->Option1, kCenter}, {ui_->Option3, kRight}});
  spec.no_shade = ui_->Shader->isChecked();
  spec.width = Written(ui_->Check1, ui_->Label1);
  return Insert(HorizontalRule(spec));
}

Nadpis::Nadpis(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {
  ShowValue(ui_->VScroll1, ui_->Label1, BlankLed);
}

bool Nadpis::Put() {
  HeadingSpec spec;
  spec.size = FieldText(*ui_->Label1);
  spec.align =
      SetOption<Align>({{ui_->Option1, kLeft}, {ui_->Option2, kCenter}, {ui_->Option3, kRight}, {ui_->Option4, kNone}});
  spec.no_wrap = ui_->Check1->isChecked();
  WrapSelection(document_, Heading(spec));
  return true;
}

Barva::Barva(TextBuffer& document, std::function<Color(Color)> pick_color, QWidget* parent)
    : FragmentDialog(document, parent) {
  ui_->Combo1->setCurrentText(QStringLiteral("Combo1"));
  AcceptFreeText(ui_->Combo1);
  EnableWith(ui_->Check1, {ui_->VScroll4});
  EnableWith(ui_->Check2, {ui_->Combo1});
  EnableWith(ui_->Check3, {ui_->Command3, ui_->Label1});
  ShowValue(ui_->VScroll4, ui_->Label4);
  ConnectColorChoice(ui_->Command3, ui_->Label1, ui_->Label2, std::move(pick_color));
}

bool Barva::Put() {
  FontSpec spec;
  if (ui_->Check1->isChecked()) spec.size = ui_->VScroll4->value();
  spec.face = Written(ui_->Check2, ui_->Combo1);
  spec.color = Written(ui_->Check3, ui_->Label2);
  WrapSelection(document_, Font(spec));
  return true;
}

}  // namespace pelmar
