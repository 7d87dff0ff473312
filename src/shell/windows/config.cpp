#include "shell/windows/config.h"

#include "platform/qt/convert.h"
#include "ui_config.h"

namespace pelmar {

Config::Config(SettingsRecord& settings, Platform& platform, std::function<void()> store, QWidget* parent)
    : FormDialog(parent), settings_(settings), platform_(platform), store_(std::move(store)) {
  connect(ui_->Command1, &QPushButton::clicked, this, &Config::Command1_Click);
}

void Config::Run() {
  ui_->Text1->setText(TextToQString(settings_.UserName));
  ui_->Text2->setText(TextToQString(settings_.UserEmail));
  ui_->Check1->setChecked(false);
  ui_->Text3->clear();
  ui_->Text4->clear();
  exec();
}

ProfileFields Config::Fields() const {
  return {TextFromQString(ui_->Text1->text()), TextFromQString(ui_->Text2->text()), ui_->Check1->isChecked(),
          TextFromQString(ui_->Text3->text()), TextFromQString(ui_->Text4->text())};
}

void Config::Command1_Click() {
  const ProfileFields fields = Fields();
  if (const ProfileComplaint complaint = CheckProfile(fields); complaint.field != ProfileField::kNone) {
    platform_.Message(MessageType::kOkInfo, complaint.message, "Config");
    QLineEdit* const field = complaint.field == ProfileField::kName    ? ui_->Text1
                             : complaint.field == ProfileField::kEmail ? ui_->Text2
                                                                       : ui_->Text3;
    return field->setFocus(Qt::TabFocusReason);
  }
  StoreProfile(fields, settings_);
  hide();
  store_();
}

}  // namespace pelmar
