#include "html/dialogs/table_row.h"

#include "html/dialogs/form_helpers.h"
#include "ui_table_row.h"

namespace pelmar {

TableRow::TableRow(TextBuffer& document, QWidget* parent)
    : AttributesDialog(parent), document_(document), ui_(std::make_unique<Ui::TableRow>()) {
  ui_->setupUi(this);
  ShowValue(ui_->VScroll1, ui_->Label2);
  connect(ui_->Command1, &QPushButton::clicked, this, &TableRow::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &TableRow::hide);
}

TableRow::~TableRow() = default;

RowSpec TableRow::Read() const { return {ui_->alignment->Read(), ui_->VScroll1->value()}; }

std::string TableRow::OpeningTag() const { return RowTag(Read()); }

void TableRow::InsertTags() { InsertRow(document_, Read()); }

void TableRow::EnableForEditor(bool enabled) { ui_->VScroll1->setEnabled(enabled); }

}  // namespace pelmar
