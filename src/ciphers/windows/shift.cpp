#include "ciphers/windows/shift.h"

#include <algorithm>

#include "ciphers/shift.h"
#include "ui_shift.h"

namespace pelmar {

Shift::Shift(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {
  // required: the text begins unrotated although the bar begins at 1
  ui_->Text1->Buffer().SetText(std::string(buffer_.SelText()));
  ui_->Orig->SetText(ui_->Text1->Text());
  ui_->HScroll1->setMaximum(std::max(ui_->HScroll1->minimum(), static_cast<int>(buffer_.SelLength())));
  connect(ui_->HScroll1, &QScrollBar::valueChanged, this, &Shift::HScroll1_Change);
}

void Shift::HScroll1_Change(int value) {
  ui_->Label2->setText(QString::number(value));
  ui_->Text1->Buffer().SetText(Rotated(ui_->Orig->Buffer().Text(), static_cast<std::size_t>(value)));
}

bool Shift::Put() {
  buffer_.ReplaceSelection(ui_->Text1->Buffer().Text());
  return true;
}

}  // namespace pelmar
