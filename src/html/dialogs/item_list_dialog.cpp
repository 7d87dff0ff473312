#include "html/dialogs/item_list_dialog.h"

#include "html/dialogs/form_helpers.h"
#include "html/dialogs/paired_lists.h"
#include "platform/qt/controls/list_rows.h"
#include "ui_cis_seznam.h"
#include "ui_seznam.h"

namespace pelmar {

template <class Form>
ItemListDialog<Form>::ItemListDialog(TextBuffer& buffer, ListKind kind, QWidget* parent)
    : FragmentDialog<Form>(buffer, parent, &Form::Command3, &Form::Command4), kind_(kind) {
  const auto& ui = this->ui_;
  for (QAbstractButton* type : ui->kind->buttons()) EnableWith(ui->Check2, {type});
  EnableWith(ui->Check1, {ui->Text2});
  QObject::connect(ui->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  QObject::connect(ui->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  this->OnEnter(ui->Text1, [this] { Command1_Click(); });
  ShowRowsOnOneLine(*ui->List1);
  ChooseFirstByArrows(ui->List1);
  RemoveByKey(*ui->List1, *ui->Command2);
}

template <class Form>
void ItemListDialog<Form>::Command1_Click() {
  AddRow(*this->ui_->List1, this->ui_->Text1->text());
  this->ui_->Command2->setEnabled(true);
  this->ui_->Text1->setFocus();
  this->ui_->Text1->selectAll();
}

template <class Form>
void ItemListDialog<Form>::Command2_Click() {
  RemoveRow(*this->ui_->List1);
  if (this->ui_->List1->count() == 0) this->ui_->Command2->setEnabled(false);
}

template <class Form>
bool ItemListDialog<Form>::Put() {
  const auto& ui = this->ui_;
  ListSpec spec;
  spec.kind = kind_;
  if (ui->Check2->isChecked())
    spec.type = static_cast<std::size_t>(ui->kind->buttons().indexOf(ui->kind->checkedButton()));
  spec.compact = ui->Check3->isChecked();
  spec.heading = TextIfChecked(ui->Check1, ui->Text2);
  spec.items = RowTexts(*ui->List1);
  return this->Insert(BuildList(spec));
}

template class ItemListDialog<Ui::Seznam>;
template class ItemListDialog<Ui::CisSeznam>;

}  // namespace pelmar
