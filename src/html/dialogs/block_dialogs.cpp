#include "html/dialogs/block_dialogs.h"

#include "html/blocks.h"
#include "html/dialogs/form_helpers.h"
#include "platform/qt/convert.h"
#include "text/insert.h"
#include "ui_barva.h"
#include "ui_hr.h"
#include "ui_nadpis.h"
#include "ui_odstavec.h"

namespace pelmar {
namespace {

// By the place of the set option, which goes through `aligns`.
Align AlignOf(std::initializer_list<const QRadioButton*> options, std::initializer_list<Align> aligns) {
  return aligns.begin()[SetOption(options)];
}

}  // namespace

Odstavec::Odstavec(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {}
Odstavec::~Odstavec() = default;

bool Odstavec::Put() {
  WrapSelection(document_, Paragraph(AlignOf({ui_->Option1, ui_->Option2, ui_->Option3},
                                             {Align::kLeft, Align::kCenter, Align::kRight})));
  return true;
}

Hr::Hr(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {
  EnableWith(ui_->Check1, {ui_->Option4, ui_->Option5, ui_->VScroll1});
  // A click on the unit that is set already counts as well; the arrow keys choose without one.
  for (const auto chosen : {&QRadioButton::toggled, &QRadioButton::clicked}) {
    connect(ui_->Option4, chosen, this, [this](bool on) {
      if (on) SetUnit(100, BlankLedPercent);
    });
    connect(ui_->Option5, chosen, this, [this](bool on) {
      if (on) SetUnit(800, BlankLed);
    });
  }
  ShowValue(ui_->VScroll1, ui_->Label1,
            [this](int value) { return ui_->Option4->isChecked() ? BlankLedPercent(value) : QString::number(value); });
}
Hr::~Hr() = default;

void Hr::SetUnit(int maximum, QString (*write)(int)) {
  ui_->VScroll1->setMaximum(maximum);
  ui_->Label1->setText(write(ui_->VScroll1->value()));
}

bool Hr::Put() {
  RuleSpec spec;
  spec.align = AlignOf({ui_->Option6, ui_->Option2, ui_->Option1, ui_->Option3},
                       {Align::kNone, Align::kLeft, Align::kCenter, Align::kRight});
  spec.no_shade = ui_->Shader->isChecked();
  spec.width = Written(ui_->Check1, ui_->Label1);
  InsertAtCaret(document_, HorizontalRule(spec));
  return true;
}

Nadpis::Nadpis(TextBuffer& document, QWidget* parent) : FragmentDialog(document, parent) {
  ShowValue(ui_->VScroll1, ui_->Label1, BlankLed);
}
Nadpis::~Nadpis() = default;

bool Nadpis::Put() {
  HeadingSpec spec;
  spec.size = TextFromQString(ui_->Label1->text());
  spec.align = AlignOf({ui_->Option1, ui_->Option2, ui_->Option3, ui_->Option4},
                       {Align::kLeft, Align::kCenter, Align::kRight, Align::kNone});
  spec.no_wrap = ui_->Check1->isChecked();
  WrapSelection(document_, Heading(spec));
  return true;
}

Barva::Barva(TextBuffer& document, std::function<Color(Color)> pick_color, QWidget* parent)
    : FragmentDialog(document, parent) {
  AcceptFreeText(ui_->Combo1);
  EnableWith(ui_->Check1, {ui_->VScroll4});
  EnableWith(ui_->Check2, {ui_->Combo1});
  EnableWith(ui_->Check3, {ui_->Command3, ui_->Label1});
  ShowValue(ui_->VScroll4, ui_->Label4);
  ConnectColorChoice(ui_->Command3, ui_->Label1, ui_->Label2, std::move(pick_color));
}
Barva::~Barva() = default;

bool Barva::Put() {
  FontSpec spec;
  if (ui_->Check1->isChecked()) spec.size = ui_->VScroll4->value();
  spec.face = Written(ui_->Check2, ui_->Combo1);
  spec.color = Written(ui_->Check3, ui_->Label2);
  WrapSelection(document_, Font(spec));
  return true;
}

}  // namespace pelmar
