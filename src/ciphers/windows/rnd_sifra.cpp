#include "ciphers/windows/rnd_sifra.h"

#include <QListWidget>

#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/controls/list_rows.h"
#include "platform/qt/convert.h"
#include "platform/runtime_error.h"
#include "shell/editor.h"
#include "ui_rnd_sifra.h"

namespace pelmar {
namespace {

void ShowOnly(QListWidget& list, const std::vector<std::string>& rows) {
  list.clear();
  ShowRows(list, rows);
}

}  // namespace

RND_Sifra::RND_Sifra(Editor& editor, QWidget* parent)
    : FormDialog(parent),
      buffer_(editor.text),
      platform_(editor.platform),
      files_(editor.platform, editor.file_number) {
  for (QListWidget* list : {ui_->List1, ui_->List2}) ShowRowsOnOneLine(*list);  // a loaded row may have line breaks
  connect(ui_->Command1, &QPushButton::clicked, this,
          [this] { ui_->Text1->Buffer().SetText(PrepareText(buffer_.Text())); });
  connect(ui_->Command2, &QPushButton::clicked, this, &RND_Sifra::Command2_Click);
  connect(ui_->Command3, &QPushButton::clicked, this, &RND_Sifra::Command3_Click);
  connect(ui_->Command4, &QPushButton::clicked, this, [this] { files_.Save(table_); });
  connect(ui_->Command5, &QPushButton::clicked, this, &RND_Sifra::Command5_Click);
  connect(ui_->Command6, &QPushButton::clicked, this, &RND_Sifra::Command6_Click);
  connect(ui_->Command7, &QPushButton::clicked, this, &RND_Sifra::hide);
  connect(ui_->Command8, &QPushButton::clicked, this, &RND_Sifra::Command8_Click);
  connect(ui_->Command9, &QPushButton::clicked, this, &RND_Sifra::Command9_Click);
  connect(ui_->HScroll1, &QScrollBar::valueChanged, ui_->Label9, qOverload<int>(&QLabel::setNum));
  connect(ui_->Text2, &TextBox::TextChanged, this, [this] { table_.note = ui_->Text2->Buffer().Text(); });
}

void RND_Sifra::Command2_Click() {
  platform_.ReseedRandom();
  GenerateNewCodes();
  GenerateNewLetterSplit();
  ui_->Text2->Buffer().SetText({});
  if (ShowCoefficients(CountedDigits::kAll)) EnableTableButtons();
}

void RND_Sifra::Command3_Click() {
  bool loaded = false;
  try {
    files_.Load(table_);
    ShowCodes();
    ShowLetters();
    ui_->Text2->Buffer().SetText(table_.note);
    loaded = ShowCoefficients(CountedDigits::kFirstEight);
  } catch (const RuntimeError&) {  // reported below, like an unusable table
  }
  if (!loaded) return void(platform_.Message(MessageType::kOk, "Nepodařilo se otevřít ...", "Open RND"));
  EnableTableButtons();
}

void RND_Sifra::Command5_Click() {
  platform_.ReseedRandom();
  const std::string& text = ui_->Text1->Buffer().Text();
  buffer_.SetText(RndEncipher(text, table_, DrawFrom(platform_), StartProgress()));
}

void RND_Sifra::Command6_Click() {
  if (table_.depth == 0) return;  // a table from an empty file has depth 0 and would erase the document
  buffer_.SetText(RndDecipher(ui_->Text1->Buffer().Text(), table_, StartProgress()));
}

void RND_Sifra::Command8_Click() {
  platform_.ReseedRandom();
  GenerateNewCodes();
  ShowCoefficients(CountedDigits::kFirstEight);
}

void RND_Sifra::Command9_Click() {
  platform_.ReseedRandom();
  GenerateNewLetterSplit();
  ShowCoefficients(CountedDigits::kFirstEight);
}

void RND_Sifra::GenerateNewCodes() {
  GenerateCodes(table_, ui_->HScroll1->value(), DrawFrom(platform_));
  ShowCodes();
}

void RND_Sifra::GenerateNewLetterSplit() {
  GenerateLetterSplit(table_, DrawFrom(platform_));
  ShowLetters();
}

void RND_Sifra::ShowCodes() { ShowOnly(*ui_->List1, CodeRows(table_)); }

void RND_Sifra::ShowLetters() { ShowOnly(*ui_->List2, LetterRows(table_)); }

bool RND_Sifra::ShowCoefficients(CountedDigits counted) {
  const auto text = CoefficientsText(table_, counted);
  ui_->Label6->setText(text ? Utf8ToQString(*text) : QStringLiteral("Koeficienty nelze spočítat (dělení nulou)"));
  return text.has_value();
}

void RND_Sifra::EnableTableButtons() {
  for (QPushButton* button : {ui_->Command4, ui_->Command5, ui_->Command6, ui_->Command8, ui_->Command9})
    button->setEnabled(true);
}

Progress RND_Sifra::StartProgress() {
  ui_->Cnt->setMaximum(static_cast<int>(ui_->Text1->Buffer().Size()) + 1);
  return [this](std::size_t done) { ui_->Cnt->setValue(static_cast<int>(done)); };
}

}  // namespace pelmar
