#include "html/dialogs/table_cell.h"

#include "html/dialogs/form_helpers.h"
#include "ui_table_cell.h"

namespace pelmar {

TableCell::TableCell(TextBuffer& buffer, std::function<Color(Color)> pick_color, QWidget* parent)
    : AttributesDialog(buffer, parent) {
  EnableWith(ui_->Check3, {ui_->Command3, ui_->Label2});
  ConnectColorChoice(ui_->Command3, ui_->Label1, ui_->Label2, std::move(pick_color));
  EnableWith(ui_->Check4, {ui_->VScroll4, ui_->Label3});
  ShowValue(ui_->VScroll4, ui_->Label3);
  EnableWith(ui_->Check5, {ui_->VScroll5, ui_->Label4});
  ShowValue(ui_->VScroll5, ui_->Label4);
  EnableWith(ui_->Check7, {ui_->VScroll6, ui_->Check8, ui_->Label8});
  LinkUnit(ui_->Check8, ui_->VScroll6, ui_->Label8, Plain);
}

CellSpec TableCell::Read() const {
  CellSpec spec;
  spec.header = ui_->Check9->isChecked();
  spec.alignment = ui_->alignment->Read();
  spec.bgcolor = TextIfChecked(ui_->Check3, ui_->Label2);
  spec.colspan = TextIfChecked(ui_->Check4, ui_->Label3);
  spec.rowspan = TextIfChecked(ui_->Check5, ui_->Label4);
  spec.nowrap = ui_->Check6->isChecked();
  spec.width = TextIfChecked(ui_->Check7, ui_->Label8);
  return spec;
}

std::string TableCell::OpeningTag() const { return CellTag(Read()); }

void TableCell::InsertTags() { WrapInCell(buffer_, Read()); }

void TableCell::EnableTagOnlyFields(bool enabled) { ui_->Check9->setEnabled(enabled); }

}  // namespace pelmar
