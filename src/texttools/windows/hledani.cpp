#include "texttools/windows/hledani.h"

#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/controls/list_rows.h"
#include "platform/qt/convert.h"
#include "platform/qt/frames/outer_geometry.h"
#include "ui_hledani.h"

namespace pelmar {

Hledani::Hledani(TextBuffer& buffer, Platform& platform, std::function<QRect()> match, QWidget* parent)
    : FormDialog(parent), finder_(buffer, platform), match_(std::move(match)) {
  setObjectName(QStringLiteral("Hledání"));
  ui_->Text1->UseBuffer(finder_.Snapshot());
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Step(&Finder::Start); });
  OnEnter(ui_->Find, [this] { Step(&Finder::Start); });
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { Step(&Finder::Next); });
  connect(ui_->Command4, &QPushButton::clicked, this, [this] { Step(&Finder::New); });
  connect(ui_->Command3, &QPushButton::clicked, this, &Hledani::hide);
  ShowRowsOnOneLine(*ui_->History);
  OnRowPicked(*ui_->History, [this](int row) {
    finder_.PickHistory(static_cast<std::size_t>(row));
    ui_->Find->setText(TextToQString(finder_.find));
  });
  finder_.before_message = [this] { ShowFields(); };
  ShowFields();
}

void Hledani::Step(void (Finder::*step)()) {
  TakeFields();
  (finder_.*step)();
  ShowFields();
  // The step may disable the focused control. So the focus goes to the button for the next hit or, if this button is
  // disabled, to the field.
  if (!finder_.next_on) return ui_->Find->setFocus();
  ui_->Command2->setFocus();
  MoveAside(*this, match_());
}

void Hledani::TakeFields() {
  finder_.find = FieldText(*ui_->Find);
  finder_.case_sensitive = ui_->Rozlisovat->isChecked();
}

void Hledani::ShowFields() {
  ShowFieldText(*ui_->Find, finder_.find);
  ui_->Find->setEnabled(finder_.find_on);
  ui_->Command1->setEnabled(finder_.find_on);
  ui_->Rozlisovat->setEnabled(finder_.case_on);
  ui_->History->setEnabled(finder_.history_on);
  ui_->Command2->setEnabled(finder_.next_on);
  ShowRows(*ui_->History, finder_.history);
  ShowNumber(*ui_->Label3, finder_.count);
  ShowNumber(*ui_->Label5, finder_.position);
}

}  // namespace pelmar
