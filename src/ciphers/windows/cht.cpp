#include "ciphers/windows/cht.h"

#include "ciphers/cht.h"
#include "ui_cht.h"

namespace pelmar {

CHT::CHT(TextBuffer& document, Platform& platform, QWidget* parent) : FormDialog(parent) {
  ui_->Text1->setWordWrap(false);
  ui_->Text1->Buffer().SetText(LookAlikeReminder());
  connect(ui_->Command1, &QPushButton::clicked, this,
          [&document, draw = DrawFrom(platform)] { document.SetText(HackerTranscription(document.Text(), draw)); });
  connect(ui_->Command2, &QPushButton::clicked, this, &CHT::hide);
  ui_->Command1->setFocus();
}

}  // namespace pelmar
