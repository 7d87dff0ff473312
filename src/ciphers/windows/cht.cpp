#include "ciphers/windows/cht.h"

#include <QScrollBar>

#include "ciphers/cht.h"
#include "ui_cht.h"

namespace pelmar {
namespace {

// A width at which no row of the table wraps: 26 characters, margins of 4 characters, the frame and a scroll bar.
int LeastWidth(const TextBox& box) {
  return box.fontMetrics().horizontalAdvance(QString(30, QLatin1Char('W'))) + 2 * box.frameWidth() +
         box.verticalScrollBar()->sizeHint().width();
}

}  // namespace

CHT::CHT(TextBuffer& buffer, Platform& platform, QWidget* parent) : FormDialog(parent) {
  ui_->Text1->setMinimumWidth(LeastWidth(*ui_->Text1));
  ui_->Text1->Buffer().SetText(LookAlikeReminder());
  connect(ui_->Command1, &QPushButton::clicked, this,
          [&buffer, draw = DrawFrom(platform)] { buffer.SetText(HackerTranscription(buffer.Text(), draw)); });
  connect(ui_->Command2, &QPushButton::clicked, this, &CHT::hide);
  ui_->Command1->setFocus();
}

}  // namespace pelmar
