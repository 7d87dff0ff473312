#include "ciphers/windows/shift.h"

#include <algorithm>

#include "ciphers/shift.h"
#include "text/insert.h"
#include "ui_shift.h"

namespace pelmar {

Shift::Shift(TextBuffer& document, QWidget* parent)
    : DialogWindow(parent), document_(document), ui_(std::make_unique<Ui::Shift>()) {
  ui_->setupUi(this);
  // required: the text is shown unrotated, although the bar stands at 1 already
  ui_->Text1->Buffer().SetText(std::string(document_.SelText()));
  ui_->Orig->SetText(ui_->Text1->Text());
  ui_->HScroll1->setMaximum(std::max(ui_->HScroll1->minimum(), static_cast<int>(document_.SelLength())));
  connect(ui_->HScroll1, &QScrollBar::valueChanged, this, &Shift::HScroll1_Change);
  connect(ui_->Command1, &QPushButton::clicked, this, &Shift::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Shift::reject);
  ui_->HScroll1->setFocus();
}

Shift::~Shift() = default;

void Shift::HScroll1_Change(int value) {
  ui_->Label2->setText(QString::number(value));
  ui_->Text1->Buffer().SetText(Rotated(ui_->Orig->Buffer().Text(), static_cast<std::size_t>(value)));
}

void Shift::Command1_Click() {
  ReplaceSelection(document_, ui_->Text1->Buffer().Text());
  accept();
}

}  // namespace pelmar
