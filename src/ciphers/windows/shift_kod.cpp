#include "ciphers/windows/shift_kod.h"

#include "ciphers/shift.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "platform/random.h"
#include "ui_shift_kod.h"

namespace pelmar {
namespace {

std::string Shifted(std::string_view text, int shift) { return Shiftp(text, static_cast<std::int16_t>(shift)); }

}  // namespace

ShiftKod::ShiftKod(TextBuffer& buffer, Platform& platform, QWidget* parent)
    : FormDialog(parent), buffer_(buffer), platform_(platform) {
  connect(ui_->HScroll1, &QScrollBar::valueChanged, this, &ShiftKod::HScroll1_Change);
  connect(ui_->Text1, &TextBox::TextChanged, this, [this] { ShowQuickText(ui_->HScroll1->value()); });
  connect(ui_->Check1, &QCheckBox::clicked, this, [this](bool on) {
    if (on) ShowQuickText(ui_->HScroll1->value());
  });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Apply(ui_->HScroll1->value()); });
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { Apply(kLetters - ui_->HScroll1->value()); });
  connect(ui_->Command3, &QPushButton::clicked, this, &ShiftKod::hide);
  connect(ui_->Command4, &QPushButton::clicked, this, &ShiftKod::Command4_Click);
}

void ShiftKod::HScroll1_Change(int value) {
  ui_->Label4->setText(QString::number(value));
  ui_->Label2->setText(TextToQString(Shifted(FieldText(*ui_->Label1), value)));
  if (ui_->Check1->isChecked()) ShowQuickText(value);
}

void ShiftKod::Command4_Click() {
  platform_.ReseedRandom();
  ui_->HScroll1->setValue(static_cast<int>(DrawBelow(DrawFrom(platform_), kLetters + 1)));
}

void ShiftKod::Apply(int shift) {
  if (ui_->Check1->isChecked()) return ShowQuickText(shift);
  buffer_.SetText(Shifted(buffer_.Text(), shift));
}

void ShiftKod::ShowQuickText(int shift) { ui_->Text2->Buffer().SetText(Shifted(ui_->Text1->Buffer().Text(), shift)); }

}  // namespace pelmar
