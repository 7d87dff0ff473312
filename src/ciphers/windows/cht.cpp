#include "ciphers/windows/cht.h"

#include "ciphers/cht.h"
#include "ui_cht.h"

namespace pelmar {

CHT::CHT(TextBuffer& buffer, Platform& platform, QWidget* parent) : FormDialog(parent) {
  ui_->Text1->setWordWrap(false);
  ui_->Text1->Buffer().SetText(LookAlikeReminder());
  connect(ui_->Command1, &QPushButton::clicked, this,
          [&buffer, draw = DrawFrom(platform)] { buffer.SetText(HackerTranscription(buffer.Text(), draw)); });
  connect(ui_->Command2, &QPushButton::clicked, this, &CHT::hide);
  ui_->Command1->setFocus();
}

}  // namespace pelmar
