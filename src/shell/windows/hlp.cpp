#include "shell/windows/hlp.h"

#include "platform/error_text.h"
#include "platform/paths.h"
#include "platform/qt/convert.h"
#include "shell/help.h"
#include "ui_hlp.h"

namespace pelmar {

Hlp::Hlp(Platform& platform, std::function<void()> show_about, QWidget* parent)
    : DialogWindow(parent), platform_(platform), show_about_(std::move(show_about)), ui_(std::make_unique<Ui::Hlp>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, &Hlp::hide);
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { show_about_(); });
  connect(ui_->Command5, &QPushButton::clicked, this, &Hlp::Command5_Click);
  OnEnter(ui_->Text2, [this] { Command5_Click(); });
  Load();
}

Hlp::~Hlp() = default;

void Hlp::Load() {
  // The person's own file comes before that of the package.
  FileBytes file = platform_.ReadFile(JoinPath(platform_.InstallFolder(), "pelmar.txt"), std::nullopt);
  if (file.error != 0) file = platform_.ReadFile(JoinPath(platform_.ShareFolder(), "pelmar.txt"), std::nullopt);
  if (file.error == 0) return ui_->Text1->SetText(ToBytes(file.bytes));
  platform_.Message(MessageType::kOk, "Chyba helpového systému - pelmar.txt: " + ErrorText(file.error),
                    "Help k Pelmar VEX");
}

void Hlp::Command5_Click() {
  const std::string term = TextFromQString(ui_->Text2->text());
  std::size_t pos = 0;
  while (const auto hit = FindInHelp(ui_->Text1->Buffer().Text(), term, pos)) {
    pos = *hit;
    ui_->Text1->SetSelStart(static_cast<int>(pos - 1));
    ui_->Text1->SetSelLength(static_cast<int>(term.size()));
    const std::string question = "Nalezeno na " + std::to_string(pos) + " místě, pokračovat ?";
    if (platform_.Message(MessageType::kYesNoWarning, question, "hledání") != Answer::kYes) return;
  }
}

}  // namespace pelmar
