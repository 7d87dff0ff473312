#include "html/dialogs/table_row.h"

#include "html/dialogs/form_helpers.h"
#include "ui_table_row.h"

namespace pelmar {

TableRow::TableRow(TextBuffer& buffer, QWidget* parent) : AttributesDialog(buffer, parent) {
  ShowValue(ui_->VScroll1, ui_->Label2);
}

RowSpec TableRow::Read() const { return {ui_->alignment->Read(), ui_->VScroll1->value()}; }

std::string TableRow::OpeningTag() const { return RowTag(Read()); }

void TableRow::InsertTags() { InsertRow(buffer_, Read()); }

void TableRow::EnableTagOnlyFields(bool enabled) {
  ui_->VScroll1->setEnabled(enabled);
  ui_->Label2->setEnabled(enabled);
}

}  // namespace pelmar
