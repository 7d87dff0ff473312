#include "shell/windows/hlp.h"

#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "shell/help.h"
#include "ui_hlp.h"

namespace pelmar {

Hlp::Hlp(Platform& platform, std::function<void()> show_about, QWidget* parent)
    : FormDialog(parent), platform_(platform), show_about_(std::move(show_about)) {
  connect(ui_->Command1, &QPushButton::clicked, this, &Hlp::hide);
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { show_about_(); });
  connect(ui_->Command5, &QPushButton::clicked, this, &Hlp::Command5_Click);
  OnEnter(ui_->Text2, [this] { Command5_Click(); });
  if (const auto text = LoadHelp(platform_)) ui_->Text1->SetText(ToBytes(*text));
}

void Hlp::Command5_Click() { SearchHelp(ui_->Text1->Buffer(), FieldText(*ui_->Text2), platform_); }

}  // namespace pelmar
