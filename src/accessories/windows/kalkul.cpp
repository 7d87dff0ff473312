#include "accessories/windows/kalkul.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QKeyEvent>

#include "platform/qt/convert.h"
#include "shell/stand_alone.h"
#include "ui_kalkul.h"

namespace pelmar {

Kalkul::Kalkul(Platform& platform, bool stand_alone, Callbacks callbacks, QWidget* parent)
    : FormDialog(parent),
      platform_(platform),
      stand_alone_(stand_alone),
      callbacks_(std::move(callbacks)),
      calculator_(platform) {
  if (stand_alone_) {
    setWindowFlags(Qt::Window);  // a window can be minimised, a dialog can't
    ui_->Command19->setText(QStringLiteral("&Clip"));
    ui_->Command20->setText(QStringLiteral("&Quit"));
  }
  // In a button group, the arrow keys move the focus between the buttons by their position.
  auto* group = new QButtonGroup(this);
  for (QPushButton* button : findChildren<QPushButton*>()) group->addButton(button);
  ConnectEntry();
  ConnectOperators();
  ConnectFunctions();
  connect(ui_->Command19, &QPushButton::clicked, this, [this] { callbacks_.hand_over(calculator_.shown); });
  connect(ui_->Command20, &QPushButton::clicked, this, &Kalkul::Command20_Click);
  connect(ui_->Command35, &QPushButton::clicked, this, [this] { callbacks_.show_converter(); });
  new KeyPreview(*this, [this](const QKeyEvent& event) { return PhysicalKey(event); });
}

void Kalkul::OnClick(QPushButton* key, std::function<void()> act) {
  connect(key, &QPushButton::clicked, this, [this, act = std::move(act)] {
    act();
    ShowState();
  });
}

void Kalkul::ConnectEntry() {
  for (const char digit : std::string_view("0123456789"))
    OnClick(KeyOf(digit), [this, digit] { calculator_.Digit(digit); });
  OnClick(ui_->Command11, [this] { calculator_.Comma(); });
  OnClick(ui_->Command21, [this] { calculator_.DropLast(); });
  OnClick(ui_->Command22, [this] { calculator_.DropFirst(); });
  OnClick(ui_->Command23, [this] { calculator_.Clear(); });
}

void Kalkul::ConnectOperators() {
  const std::pair<QPushButton*, char> operators[] = {{ui_->Command12, '+'}, {ui_->Command13, '-'},
                                                     {ui_->Command14, '*'}, {ui_->Command15, '/'},
                                                     {ui_->Command32, 'L'}, {ui_->Command33, '^'}};
  for (const auto& [key, symbol] : operators) OnClick(key, [this, symbol = symbol] { calculator_.Operator(symbol); });
  OnClick(ui_->Command16, [this] { calculator_.Evaluate(); });
}

void Kalkul::ConnectFunctions() {
  const std::pair<QPushButton*, void (Calculator::*)()> functions[] = {
      {ui_->Command17, &Calculator::SquareRoot}, {ui_->Command18, &Calculator::Square},
      {ui_->Command24, &Calculator::Sine},       {ui_->Command25, &Calculator::Cosine},
      {ui_->Command26, &Calculator::Tangent},    {ui_->Command27, &Calculator::Pi},
      {ui_->Command28, &Calculator::Absolute},   {ui_->Command29, &Calculator::Cotangent},
      {ui_->Command30, &Calculator::Random},     {ui_->Command31, &Calculator::HalfFloor},
      {ui_->Command34, &Calculator::E}};
  for (const auto& [key, function] : functions)
    OnClick(key, [this, function = function] { (calculator_.*function)(); });
}

void Kalkul::SetNumber(const std::string& number) {
  calculator_.shown = number;
  ShowState();
}

void Kalkul::ShowState() {
  ui_->Cislo->setText(Utf8ToQString(calculator_.shown));
  ui_->Label1->setText(Utf8ToQString(calculator_.operation));
  ui_->Label2->setText(Utf8ToQString(calculator_.first_operand));
  // A disabled key would pass its focus to the next key, so the focus goes to the number.
  const QWidget* focus = focusWidget();
  for (QPushButton* key : {ui_->Command12, ui_->Command13, ui_->Command14, ui_->Command15, ui_->Command32})
    key->setEnabled(calculator_.OperatorsOn());
  ui_->Command33->setEnabled(calculator_.PowerOn());
  ui_->Command16->setEnabled(calculator_.EqualsOn());
  if (focus != nullptr && !focus->isEnabled()) ui_->Cislo->setFocus();
}

void Kalkul::Command20_Click() {
  hide();
  ConfirmClose();
}

bool Kalkul::ConfirmClose() {
  callbacks_.hide_converter();
  if (!stand_alone_) return true;
  if (!MayEndStandAlone(platform_, "Kalkulačku")) {
    Present();
    return false;
  }
  callbacks_.end_program();
  return true;
}

void Kalkul::closeEvent(QCloseEvent* event) {
  if (!ConfirmClose()) return event->ignore();
  DialogWindow::closeEvent(event);
  if (!stand_alone_) callbacks_.unload();
}

QPushButton* Kalkul::KeyOf(char character) const {
  const std::pair<char, QPushButton*> keys[] = {
      {'1', ui_->Command1},  {'2', ui_->Command2},  {'3', ui_->Command3},   {'4', ui_->Command4},
      {'5', ui_->Command5},  {'6', ui_->Command6},  {'7', ui_->Command7},   {'8', ui_->Command8},
      {'9', ui_->Command9},  {'0', ui_->Command10}, {',', ui_->Command11},  {'.', ui_->Command11},
      {'+', ui_->Command12}, {'-', ui_->Command13}, {'*', ui_->Command14},  {'/', ui_->Command15},
      {'^', ui_->Command33}, {'=', ui_->Command16}, {'\r', ui_->Command16}, {'\b', ui_->Command21}};
  for (const auto& [typed, key] : keys)
    if (typed == character) return key;
  return nullptr;
}

Preview Kalkul::PhysicalKey(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy)) {
    platform_.SetClipboardText(calculator_.shown);
    return Preview::kTake;
  }
  const auto character = TypedCharacter(event);
  const QWidget* focus = focusWidget();
  // Enter presses these three buttons if they have the focus. Otherwise Enter means "=".
  const bool is_no_key = focus == ui_->Command19 || focus == ui_->Command20 || focus == ui_->Command35;
  if (is_no_key && character == '\r') return Preview::kPass;
  QPushButton* key = event.key() == Qt::Key_Delete ? ui_->Command23 : character ? KeyOf(*character) : nullptr;
  if (key == nullptr) return Preview::kPass;
  key->click();  // does nothing while the key is disabled
  return Preview::kTake;
}

}  // namespace pelmar
