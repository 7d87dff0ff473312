#include "html/dialogs/table.h"

#include "html/dialogs/form_helpers.h"
#include "platform/qt/controls/tab_keys.h"
#include "platform/qt/convert.h"
#include "ui_table.h"

namespace pelmar {
namespace {

std::size_t ValueOf(const QScrollBar* bar) { return static_cast<std::size_t>(bar->value()); }

void ShowPosition(QLabel* label, const QScrollBar* position, const QScrollBar* count) {
  label->setText(QStringLiteral("%1/%2").arg(position->value()).arg(count->value()));
}

// Runs `ask` and, unless the person cancels, writes the result into the field. The field then stores the result in the
// grid, like a typed text.
void AskInto(QLineEdit* field, const Table::AskAttributes& ask) {
  if (const std::optional<std::string> attributes = ask()) field->setText(TextToQString(*attributes));
}

std::optional<TableAlign> AlignOf(const Ui::Table& ui) {
  using enum TableAlign;
  return CheckedOption<TableAlign>(ui.Check2, {{ui.Option3, kLeft}, {ui.Option4, kCenter}, {ui.Option5, kRight}});
}

TableFrame FrameOf(const Ui::Table& ui) {
  using enum TableFrame;
  return CheckedOption<TableFrame>({{ui.Option6, kNone},
                                    {ui.Option7, kAbove},
                                    {ui.Option8, kBelow},
                                    {ui.Option9, kAboveAndBelow},
                                    {ui.Option10, kLeft},
                                    {ui.Option11, kRight},
                                    {ui.Option12, kLeftAndRight},
                                    {ui.Option13, kBox}});
}

std::optional<TableRules> RulesOf(const Ui::Table& ui) {
  using enum TableRules;
  return CheckedOption<TableRules>(
      ui.Check5, {{ui.Option14, kNone}, {ui.Option15, kRows}, {ui.Option16, kColumns}, {ui.Option17, kAll}});
}

CaptionSide SideOf(const Ui::Table& ui) {
  using enum CaptionSide;
  return CheckedOption<CaptionSide>(
      {{ui.Option18, kTop}, {ui.Option19, kBottom}, {ui.Option20, kLeft}, {ui.Option21, kRight}});
}

}  // namespace

Table::Table(TextBuffer& buffer, AskAttributes ask_cell, AskAttributes ask_row, QWidget* parent)
    : FragmentDialog(buffer, parent) {
  MakeTabs();
  ConnectGroups();
  ConnectWalk(std::move(ask_cell), std::move(ask_row));
}

void Table::MakeTabs() {
  ui_->TabStrip1->addTab(QStringLiteral("Celá tabulka"));
  ui_->TabStrip1->setTabToolTip(0, QStringLiteral("Nastavení tabulky (velikost, atributy...)"));
  ui_->TabStrip1->addTab(QStringLiteral("Buňka / Řádek"));
  ui_->TabStrip1->setTabToolTip(1, QStringLiteral("Nastavení jedné určité buňky/ jednoho rádku "));
  connect(ui_->TabStrip1, &QTabBar::currentChanged, ui_->pages, &QStackedWidget::setCurrentIndex);
  AddTabKeys(*this, *ui_->TabStrip1);
}

void Table::ConnectGroups() {
  EnableWith(ui_->Check1, {ui_->Option1, ui_->Option2, ui_->VScroll3, ui_->Label5});
  EnableWith(ui_->Check2, {ui_->Option3, ui_->Option4, ui_->Option5});
  EnableWith(ui_->Check3, {ui_->Text1});
  EnableWith(ui_->Check4, {ui_->Option6, ui_->Option7, ui_->Option8, ui_->Option9, ui_->Option10, ui_->Option11,
                           ui_->Option12, ui_->Option13, ui_->Label6, ui_->VScroll4, ui_->Label7});
  EnableWith(ui_->Check5, {ui_->Option14, ui_->Option15, ui_->Option16, ui_->Option17});
  EnableWith(ui_->Check6, {ui_->VScroll5, ui_->Label8});
  EnableWith(ui_->Check7, {ui_->VScroll6, ui_->Label9});
  EnableWith(ui_->Check8, {ui_->Text2, ui_->Option18, ui_->Option19, ui_->Option20, ui_->Option21});
  LinkUnit(ui_->Option2, ui_->VScroll3, ui_->Label5);
  // required: Label7 begins at " 1" although its bar is at 0. The tag gets the label's text
  ShowValue(ui_->VScroll4, ui_->Label7, BlankLed);
  ShowValue(ui_->VScroll5, ui_->Label8, BlankLed);
  ShowValue(ui_->VScroll6, ui_->Label9, BlankLed);
}

void Table::ConnectWalk(AskAttributes ask_cell, AskAttributes ask_row) {
  connect(ui_->VScroll1, &QScrollBar::valueChanged, this, &Table::VScroll1_Change);
  connect(ui_->VScroll2, &QScrollBar::valueChanged, this, &Table::VScroll2_Change);
  connect(ui_->HScroll1, &QScrollBar::valueChanged, this, &Table::ShowCell);
  connect(ui_->VScroll7, &QScrollBar::valueChanged, this, &Table::ShowCell);
  connect(ui_->VScroll8, &QScrollBar::valueChanged, this, &Table::ShowRow);
  OnEnter(ui_->Text4, [this] { GoToNextCell(); });
  connect(ui_->Text4, &QLineEdit::textChanged, this,
          [this](const QString& text) { ShownCellText() = TextFromQString(text); });
  connect(ui_->Text3, &QLineEdit::textChanged, this,
          [this](const QString& text) { ShownCellAttributes() = TextFromQString(text); });
  connect(ui_->Text5, &QLineEdit::textChanged, this,
          [this](const QString& text) { ShownRowAttributes() = TextFromQString(text); });
  connect(ui_->Command3, &QPushButton::clicked, this, [this, ask = std::move(ask_cell)] { AskInto(ui_->Text3, ask); });
  connect(ui_->Command4, &QPushButton::clicked, ui_->Text3, &QLineEdit::clear);
  connect(ui_->Command5, &QPushButton::clicked, ui_->Text5, &QLineEdit::clear);
  connect(ui_->Command6, &QPushButton::clicked, this, [this, ask = std::move(ask_row)] { AskInto(ui_->Text5, ask); });
}

void Table::VScroll1_Change(int columns) {
  ui_->Label3->setText(QString::number(columns));
  ShowPosition(ui_->Label12, ui_->HScroll1, ui_->VScroll1);
  ui_->HScroll1->setMaximum(columns);
}

void Table::VScroll2_Change(int rows) {
  ui_->Label4->setText(QString::number(rows));
  ShowPosition(ui_->Label13, ui_->VScroll7, ui_->VScroll2);
  ShowPosition(ui_->Label16, ui_->VScroll8, ui_->VScroll2);
  ui_->VScroll7->setMaximum(rows);
  ui_->VScroll8->setMaximum(rows);
}

void Table::ShowCell() {
  ShowPosition(ui_->Label12, ui_->HScroll1, ui_->VScroll1);
  ShowPosition(ui_->Label13, ui_->VScroll7, ui_->VScroll2);
  ui_->Text4->setText(TextToQString(ShownCellText()));
  ui_->Text3->setText(TextToQString(ShownCellAttributes()));
}

// Goes to the cell on the right. After the last column comes the first cell of the next row. After the last cell comes
// the button Ok.
void Table::GoToNextCell() {
  QScrollBar &column = *ui_->HScroll1, &row = *ui_->VScroll7;
  const bool last_column = column.value() == column.maximum();
  if (last_column && row.value() == row.maximum()) return ui_->Command1->setFocus(Qt::TabFocusReason);
  if (last_column) row.setValue(row.value() + 1);
  column.setValue(last_column ? column.minimum() : column.value() + 1);
  ui_->Text4->selectAll();
}

void Table::ShowRow() {
  ShowPosition(ui_->Label16, ui_->VScroll8, ui_->VScroll2);
  ui_->Text5->setText(TextToQString(ShownRowAttributes()));
}

std::string& Table::ShownCellText() { return grid_.cell_text.at(ValueOf(ui_->HScroll1)).at(ValueOf(ui_->VScroll7)); }

std::string& Table::ShownCellAttributes() {
  return grid_.cell_attrs.at(ValueOf(ui_->HScroll1)).at(ValueOf(ui_->VScroll7));
}

std::string& Table::ShownRowAttributes() { return grid_.row_attrs.at(ValueOf(ui_->VScroll8)); }

TableSpec Table::Read() const {
  TableSpec spec;
  spec.columns = ValueOf(ui_->VScroll1);
  spec.rows = ValueOf(ui_->VScroll2);
  spec.width = TextIfChecked(ui_->Check1, ui_->Label5);
  spec.cols = TextIfChecked(ui_->Check9, ui_->Label3);
  spec.colspec = TextIfChecked(ui_->Check3, ui_->Text1);
  spec.align = AlignOf(*ui_);
  if (const auto thickness = TextIfChecked(ui_->Check4, ui_->Label7)) spec.border = {FrameOf(*ui_), *thickness};
  spec.rules = RulesOf(*ui_);
  spec.cell_spacing = TextIfChecked(ui_->Check6, ui_->Label8);
  spec.cell_padding = TextIfChecked(ui_->Check7, ui_->Label9);
  if (const auto text = TextIfChecked(ui_->Check8, ui_->Text2)) spec.caption = {SideOf(*ui_), *text};
  return spec;
}

bool Table::Put() { return Insert(BuildTable(Read(), grid_)); }

}  // namespace pelmar
