#include "accessories/windows/analytic.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "accessories/analysis.h"
#include "accessories/windows/key_preview.h"
#include "platform/qt/controls/field_helpers.h"
#include "platform/qt/convert.h"
#include "platform/qt/glyph_table.h"
#include "platform/qt/key_router.h"
#include "ui_analytic.h"

namespace pelmar {
namespace {

// The rows store the characters themselves and show names for control characters.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  [[nodiscard]] QString displayText(const QVariant& value, const QLocale&) const override {
    return ReadableText(TextFromQString(value.toString()));
  }
};

}  // namespace

Analytic::Analytic(const TextBuffer& buffer, QWidget* parent) : FormDialog(parent), buffer_(buffer) {
  ui_->List1->setItemDelegate(new RowDelegate(ui_->List1));
  // Wide enough for a row with the name of a control character, and for the scroll bar.
  ui_->List1->setMinimumWidth(30 * ui_->List1->fontMetrics().averageCharWidth() + 40);
  timer1_.setObjectName(QStringLiteral("Timer1"));
  timer1_.setInterval(2000);
  ConnectEvents();
  AnalyseText(buffer_.Text());
}

void Analytic::ConnectEvents() {
  connect(ui_->Command1, &QPushButton::clicked, this, &Analytic::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Analytic::hide);
  connect(ui_->Command3, &QPushButton::clicked, this, &Analytic::Command3_Click);
  for (QAbstractButton* choice :
       std::initializer_list<QAbstractButton*>{ui_->Check1, ui_->Check2, ui_->Option1, ui_->Option2})
    connect(choice, &QAbstractButton::clicked, this, [this] { AnalyseText(Source()); });
  connect(ui_->Text1, &TextBox::TextChanged, this, &Analytic::Text1_Change);
  connect(ui_->Text2, &QLineEdit::textChanged, this,
          [this](const QString& sought) { ui_->Command3->setEnabled(!sought.isEmpty()); });
  OnEnter(ui_->Text2, [this] { (ui_->Command3->isEnabled() ? ui_->Command3 : ui_->Command1)->click(); });
  connect(ui_->Pic, &CharacterGraph::Pointed, this, &Analytic::Pic_Pointed);
  connect(&timer1_, &QTimer::timeout, this, &Analytic::Timer1_Timer);
  // required: while Check1 has the focus, a typed character clears the graph until the next analysis
  KeyRouter::Get().Add(KeyTurn::kField, *ui_->Check1, [this](QWidget&, const QKeyEvent& press) {
    if (TypedCharacter(press)) ui_->Pic->Clear();
    return false;
  });
  ui_->Picture2->installEventFilter(this);
}

const std::string& Analytic::Source() const {
  return ui_->Option1->isChecked() ? buffer_.Text() : ui_->Text1->Buffer().Text();
}

void Analytic::AnalyseText(std::string_view text) {
  ui_->Pic->Clear();
  if (text.empty()) return;  // required: the list keeps its old rows
  const Analysis analysis = pelmar::AnalyseText(text);
  ui_->Pic->Show(GraphBars(analysis, ui_->Check1->isChecked(), ui_->Check2->isChecked()), ui_->Check1->isChecked());
  ShowRows(AnalysisRows(analysis));
}

// required: afterwards no row is selected. The list keeps its scroll position.
void Analytic::ShowRows(const std::vector<std::string>& rows) {
  QListWidget& list = *ui_->List1;
  const int scrolled = list.verticalScrollBar()->value();
  list.clear();
  for (const std::string& row : rows) list.addItem(TextToQString(row));
  list.doItemsLayout();  // sets the range of the scroll bar
  list.verticalScrollBar()->setValue(scrolled);
}

void Analytic::Command1_Click() { AnalyseText(Source()); }

void Analytic::Command3_Click() {
  const std::string sought = FieldText(*ui_->Text2);
  if (TextToQString(sought) != ui_->Text2->text()) return;  // a character outside the code page is in no row
  for (int row = 0; row < ui_->List1->count(); ++row) {
    if (CharOfRow(TextFromQString(ui_->List1->item(row)->text())) != sought[0]) continue;
    ui_->List1->setCurrentRow(row);
    return;
  }
}

void Analytic::Pic_Pointed(double x) {
  const int code = CodeAt(x, ui_->Check1->isChecked());
  if (code < 0 || code >= static_cast<int>(kCodes)) return;
  const QString text = TextToQString(PointedText(code));
  ui_->Label2->setText(text);
  ui_->Pic->setToolTip(text);
}

void Analytic::Text1_Change() {
  AnalyseText(ui_->Text1->Buffer().Text());
  ui_->Option2->setChecked(true);
}

void Analytic::Timer1_Timer() {
  if (ui_->Check3->isChecked() && ui_->Option1->isChecked()) AnalyseText(buffer_.Text());
}

bool Analytic::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_->Picture2 && event->type() == QEvent::MouseButtonPress) ui_->Label2->clear();
  return DialogWindow::eventFilter(watched, event);
}

void Analytic::showEvent(QShowEvent* event) {
  DialogWindow::showEvent(event);
  if (event->spontaneous()) return;
  timer1_.start();
  Timer1_Timer();  // catches up, since the timer stops while the window is hidden
}

void Analytic::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) timer1_.stop();
  DialogWindow::hideEvent(event);
}

}  // namespace pelmar
