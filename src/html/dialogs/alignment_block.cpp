#include "html/dialogs/alignment_block.h"

#include "html/dialogs/form_helpers.h"
#include "ui_alignment_block.h"

namespace pelmar {

AlignmentBlock::AlignmentBlock(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::AlignmentBlock>()) {
  ui_->setupUi(this);
  EnableWith(ui_->Check1, {ui_->Option1, ui_->Option2, ui_->Option3, ui_->Option4});
  EnableWith(ui_->Check2, {ui_->Option5, ui_->Option6, ui_->Option7});
  connect(ui_->Check1, &QCheckBox::toggled, this, &AlignmentBlock::EnableCharacter);
  connect(ui_->Option4, &QRadioButton::toggled, this, &AlignmentBlock::EnableCharacter);
}

AlignmentBlock::~AlignmentBlock() = default;

void AlignmentBlock::EnableCharacter() {
  ui_->Text1->setEnabled(ui_->Check1->isChecked() && ui_->Option4->isChecked());
}

CellAlignment AlignmentBlock::Read() const {
  using enum CellAlign;
  using enum CellVAlign;
  return {
      CheckedOption<CellAlign>(
          ui_->Check1,
          {{ui_->Option1, kLeft}, {ui_->Option2, kCenter}, {ui_->Option3, kRight}, {ui_->Option4, kCharacter}}),
      FieldText(*ui_->Text1),
      CheckedOption<CellVAlign>(ui_->Check2, {{ui_->Option5, kTop}, {ui_->Option6, kMiddle}, {ui_->Option7, kBottom}})};
}

}  // namespace pelmar
