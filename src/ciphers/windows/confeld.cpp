#include "ciphers/windows/confeld.h"

#include "ciphers/cronfeld.h"
#include "ciphers/windows/rewriting_field.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "ui_confeld.h"

namespace pelmar {

Confeld::Confeld(TextBuffer& buffer, Platform& platform, QWidget* parent)
    : FormDialog(parent), buffer_(buffer), platform_(platform) {
  RewriteOnChange(ui_->Text1, PasswordText);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Apply(CronfeldEncipher); });
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { Apply(CronfeldDecipher); });
  connect(ui_->Command3, &QPushButton::clicked, this, &Confeld::hide);
  connect(ui_->Command4, &QPushButton::clicked, this, &Confeld::Command4_Click);
}

void Confeld::Apply(std::string (*cipher)(std::string_view text, std::string_view password)) {
  const std::string password = FieldText(*ui_->Text1);
  if (ui_->Check1->isChecked()) {
    ui_->Text2->Buffer().SetText(cipher(ui_->Text3->Buffer().Text(), password));
  } else {
    buffer_.SetText(cipher(buffer_.Text(), password));
  }
}

void Confeld::Command4_Click() {
  platform_.ReseedRandom();
  ui_->Text1->setText(TextToQString(RandomPassword(DrawFrom(platform_))));
}

}  // namespace pelmar
