#include "html/dialogs/table_cell.h"

#include "html/dialogs/form_helpers.h"
#include "ui_table_cell.h"

namespace pelmar {
namespace {

constexpr int kMostPercent = 100;
constexpr int kMostPixels = 800;

}  // namespace

TableCell::TableCell(TextBuffer& document, std::function<Color(Color)> pick_color, QWidget* parent)
    : AttributesDialog(parent), document_(document), ui_(std::make_unique<Ui::TableCell>()) {
  ui_->setupUi(this);
  EnableWith(ui_->Check3, {ui_->Command3});
  ConnectColorChoice(ui_->Command3, ui_->Label1, ui_->Label2, std::move(pick_color));
  EnableWith(ui_->Check4, {ui_->VScroll4});
  ShowValue(ui_->VScroll4, ui_->Label3);
  EnableWith(ui_->Check5, {ui_->VScroll5});
  ShowValue(ui_->VScroll5, ui_->Label4);
  EnableWith(ui_->Check7, {ui_->VScroll6, ui_->Check8});
  GreyWith(ui_->VScroll6, ui_->Label8);
  connect(ui_->VScroll6, &QScrollBar::valueChanged, this, &TableCell::VScroll6_Change);
  connect(ui_->Check8, &QCheckBox::toggled, this, &TableCell::Check8_Click);
  connect(ui_->Command1, &QPushButton::clicked, this, &TableCell::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &TableCell::hide);
}

TableCell::~TableCell() = default;

void TableCell::VScroll6_Change() {
  const QString number = QString::number(ui_->VScroll6->value());
  ui_->Label8->setText(ui_->Check8->isChecked() ? number + QLatin1Char('%') : number);
}

void TableCell::Check8_Click(bool percent) {
  ui_->VScroll6->setMaximum(percent ? kMostPercent : kMostPixels);
  VScroll6_Change();
}

CellSpec TableCell::Read() const {
  CellSpec spec;
  spec.header = ui_->Check9->isChecked();
  spec.alignment = ui_->alignment->Read();
  spec.bgcolor = Written(ui_->Check3, ui_->Label2);
  spec.colspan = Written(ui_->Check4, ui_->Label3);
  spec.rowspan = Written(ui_->Check5, ui_->Label4);
  spec.nowrap = ui_->Check6->isChecked();
  spec.width = Written(ui_->Check7, ui_->Label8);
  return spec;
}

std::string TableCell::OpeningTag() const { return CellTag(Read()); }

void TableCell::InsertTags() { WrapInCell(document_, Read()); }

void TableCell::EnableForEditor(bool enabled) { ui_->Check9->setEnabled(enabled); }

}  // namespace pelmar
