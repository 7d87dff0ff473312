#include "texttools/windows/formatuj.h"

#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/controls/list_rows.h"
#include "platform/qt/convert.h"
#include "ui_formatuj.h"

namespace pelmar {
namespace {

std::size_t Distance(const QScrollBar& bar) { return static_cast<std::size_t>(bar.value()); }

}  // namespace

Formatuj::Formatuj(TextBuffer& buffer, Platform& platform, QWidget* parent)
    : FragmentDialog(buffer, parent, &Ui::Formatuj::Command2, &Ui::Formatuj::Command1) {
  ShowRowsOnOneLine(*ui_->List1);
  ConnectOperations();
  OnRowPicked(*ui_->List1, [this](int row) { List1_Click(row); });
  connect(ui_->Hz, &QScrollBar::valueChanged, ui_->Label7, qOverload<int>(&QLabel::setNum));
  connect(ui_->Hk, &QScrollBar::valueChanged, ui_->Label8, qOverload<int>(&QLabel::setNum));
  connect(ui_->Text3, &QLineEdit::textChanged, this, &Formatuj::Text3_Change);
  Load(platform);
}

void Formatuj::Load(Platform& platform) {
  if (!buffer_.HasSelection()) platform.Message(MessageType::kOk, "Vyber text", "Fomátování");
  SelectedRows selected = RowsOfSelection(buffer_.SelText());
  rows_ = std::move(selected.rows);
  ShowRows(*ui_->List1, rows_);
  ui_->Label2->setNum(static_cast<int>(rows_.size()));
  ShowShortest(selected.shortest);
}

void Formatuj::ConnectOperations() {
  const auto insert_at_start = [this] {
    Change([this](Rows& rows) { InsertFromStart(rows, Distance(*ui_->Hz), FieldText(*ui_->Text1)); });
  };
  const auto insert_at_end = [this] {
    Change([this](Rows& rows) { InsertFromEnd(rows, Distance(*ui_->Hk), FieldText(*ui_->Text2)); });
  };
  OnEnter(ui_->Text1, insert_at_start);
  OnEnter(ui_->Text2, insert_at_end);
  connect(ui_->Command3, &QPushButton::clicked, this, insert_at_start);
  connect(ui_->Command4, &QPushButton::clicked, this, insert_at_end);
  connect(ui_->Command6, &QPushButton::clicked, this,
          [this] { Change([this](Rows& rows) { RemoveFromStart(rows, Distance(*ui_->Hz)); }); });
  connect(ui_->Command5, &QPushButton::clicked, this,
          [this] { Change([this](Rows& rows) { RemoveFromEnd(rows, Distance(*ui_->Hk)); }); });
}

void Formatuj::Change(const std::function<void(Rows& rows)>& operation) {
  operation(rows_);
  for (std::size_t row = 0; row < rows_.size(); ++row)
    ui_->List1->item(static_cast<int>(row))->setText(TextToQString(rows_[row]));
  ShowShortest(ShortestRow(rows_));
}

void Formatuj::ShowShortest(std::size_t length) {
  const int shown = static_cast<int>(length);
  ui_->Hz->setMaximum(shown);
  ui_->Hk->setMaximum(shown);
  ui_->Label4->setNum(shown);
}

void Formatuj::List1_Click(int row) { ShowFieldText(*ui_->Text3, rows_[static_cast<std::size_t>(row)]); }

// required: editing a row by hand doesn't update the length of the shortest row
void Formatuj::Text3_Change() {
  const QList<QListWidgetItem*> picked = ui_->List1->selectedItems();
  if (picked.isEmpty()) return;
  std::string& row = rows_[static_cast<std::size_t>(ui_->List1->row(picked.first()))];
  row = FieldText(*ui_->Text3);
  picked.first()->setText(TextToQString(row));
}

bool Formatuj::Put() {
  buffer_.ReplaceSelection(JoinRows(rows_));
  return true;
}

}  // namespace pelmar
