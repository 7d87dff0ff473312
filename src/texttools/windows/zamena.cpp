#include "texttools/windows/zamena.h"

#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/controls/list_rows.h"
#include "platform/qt/convert.h"
#include "platform/qt/frames/outer_geometry.h"
#include "ui_zamena.h"

namespace pelmar {

Zamena::Zamena(TextBuffer& buffer, Platform& platform, std::function<QRect()> match, QWidget* parent)
    : FormDialog(parent), replacer_(buffer, platform), match_(std::move(match)) {
  setObjectName(QStringLiteral("Záměna"));
  ui_->Text1->UseBuffer(replacer_.Snapshot());
  connect(ui_->Command1, &QPushButton::clicked, this, &Zamena::Start);
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { Step(&Replacer::Next); });
  connect(ui_->Command5, &QPushButton::clicked, this, [this] { Step(&Replacer::Replace); });
  for (const auto& [button, step] : {std::pair{ui_->Command6, &Replacer::ReplaceAll}, {ui_->Command4, &Replacer::New}})
    connect(button, &QPushButton::clicked, this, [this, run = step] {
      Step(run);
      ui_->Find->setFocus();
    });
  connect(ui_->Command3, &QPushButton::clicked, this, &Zamena::hide);
  for (QListWidget* list : {ui_->History, ui_->List1}) {
    ShowRowsOnOneLine(*list);
    OnRowPicked(*list, [this](int row) { PickRow(row); });
  }
  replacer_.before_message = [this] { ShowFields(); };
  ShowFields();
}

void Zamena::Start() {
  Step(&Replacer::Start);
  if (replacer_.step_on) ui_->Command5->setFocus();
}

void Zamena::Step(void (Replacer::*step)()) {
  TakeFields();
  (replacer_.*step)();
  ShowFields();
  // The step may have disabled the focused button. Without this call the focus could move to the button that replaces
  // all.
  if (!replacer_.step_on) return ui_->Command4->setFocus();
  MoveAside(*this, match_());
}

void Zamena::PickRow(int row) {
  replacer_.PickRow(static_cast<std::size_t>(row));
  ui_->History->setCurrentRow(row);
  ui_->List1->setCurrentRow(row);
  ui_->Find->SetText(ToBytes(replacer_.find));
  ui_->Chage->SetText(ToBytes(replacer_.change));
}

void Zamena::TakeFields() {
  replacer_.find = ui_->Find->Buffer().Text();
  replacer_.change = ui_->Chage->Buffer().Text();
  replacer_.case_sensitive = ui_->Rozlisovat->isChecked();
}

void Zamena::ShowFields() {
  ui_->Find->SetText(ToBytes(replacer_.find));
  ui_->Chage->SetText(ToBytes(replacer_.change));
  ui_->Find->setEnabled(replacer_.find_on);
  ui_->Command1->setEnabled(replacer_.find_on);
  ui_->Chage->setEnabled(replacer_.change_on);
  ui_->Rozlisovat->setEnabled(replacer_.case_on);
  ui_->History->setEnabled(replacer_.lists_on);
  ui_->List1->setEnabled(replacer_.lists_on);
  ui_->Command2->setEnabled(replacer_.step_on);
  ui_->Command5->setEnabled(replacer_.step_on);
  ui_->Command6->setEnabled(replacer_.all_on);
  ShowRows(*ui_->History, replacer_.terms);
  ShowRows(*ui_->List1, replacer_.changes);
  ShowNumber(*ui_->Label3, replacer_.found_shown);
  ShowNumber(*ui_->Label5, replacer_.replaced_shown);
}

}  // namespace pelmar
