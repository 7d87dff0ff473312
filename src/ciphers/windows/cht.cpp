#include "ciphers/windows/cht.h"

#include "ciphers/cht.h"
#include "ui_cht.h"

namespace pelmar {

CHT::CHT(TextBuffer& buffer, Platform& platform, QWidget* parent) : FormDialog(parent) {
  // No row of the table wraps: 26 characters, and room for margins, frame and scroll bar.
  ui_->Text1->setMinimumWidth(ui_->Text1->fontMetrics().horizontalAdvance(QString(36, QLatin1Char('W'))));
  ui_->Text1->Buffer().SetText(LookAlikeReminder());
  connect(ui_->Command1, &QPushButton::clicked, this,
          [&buffer, draw = DrawFrom(platform)] { buffer.SetText(HackerTranscription(buffer.Text(), draw)); });
  connect(ui_->Command2, &QPushButton::clicked, this, &CHT::hide);
  ui_->Command1->setFocus();
}

}  // namespace pelmar
