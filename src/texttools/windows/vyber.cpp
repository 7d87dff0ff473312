#include "texttools/windows/vyber.h"

#include "platform/qt/convert.h"
#include "ui_vyber.h"

namespace pelmar {

Vyber::Vyber(TextBuffer& buffer, QWidget* parent) : FormDialog(parent), buffer_(buffer) {
  setObjectName(QStringLiteral("Výběr"));
  ui_->Label5->setElideMode(Qt::ElideRight);
  connect(ui_->Start, &QScrollBar::valueChanged, this, [this](int value) { Change(ui_->Label1, value); });
  connect(ui_->Delka, &QScrollBar::valueChanged, this, [this](int value) { Change(ui_->Label2, value); });
  Load();
}

void Vyber::Load() {
  const int start = static_cast<int>(buffer_.SelStart());
  const int length = static_cast<int>(buffer_.SelLength());  // read before the first slider changes the selection
  ui_->Start->setMaximum(static_cast<int>(buffer_.Size()));
  ui_->Delka->setMaximum(static_cast<int>(buffer_.Size()));
  ui_->Start->setValue(start);
  ui_->Delka->setValue(length);
  ui_->Label5->setText(TextToQString(buffer_.SelText()));
}

void Vyber::Change(QLabel* label, int value) {
  label->setText(QString::number(value));
  buffer_.SetSelStart(static_cast<std::size_t>(ui_->Start->value()));
  buffer_.SetSelLength(static_cast<std::size_t>(ui_->Delka->value()));
  ui_->Start->setMaximum(static_cast<int>(buffer_.Size()));
  // If the selection would reach past the end, this call lowers the value of the slider, which calls Change() again.
  ui_->Delka->setMaximum(ui_->Start->maximum() - ui_->Start->value());
  ui_->Label5->setText(TextToQString(buffer_.SelText()));
}

}  // namespace pelmar
