#include "html/dialogs/obrazek.h"

#include "html/dialogs/form_helpers.h"
#include "platform/qt/convert.h"
#include "text/insert.h"
#include "ui_obrazek.h"

namespace pelmar {

Obrazek::Obrazek(TextBuffer& document, std::function<void(const std::string&)> show_in_browser, QWidget* parent)
    : DialogWindow(parent), document_(document), ui_(std::make_unique<Ui::Obrazek>()) {
  ui_->setupUi(this);
  LinkFileChoice(Choice(), std::move(show_in_browser));
  EnableGroups();
  connect(ui_->Option6, &QRadioButton::toggled, this, &Obrazek::SetUnit);
  const auto size_text = [this](int value) { return SizeText(value); };
  ShowValue(ui_->VScroll1, ui_->Label3, size_text);
  ShowValue(ui_->VScroll2, ui_->Label4, size_text);
  ShowValue(ui_->VScroll3, ui_->Label8, BlankLed);
  ShowValue(ui_->VScroll4, ui_->Label11, BlankLed);
  ShowValue(ui_->VScroll5, ui_->Label12, BlankLed);
  connect(ui_->Command1, &QPushButton::clicked, this, &Obrazek::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Obrazek::hide);
}

Obrazek::~Obrazek() = default;

FileChoice Obrazek::Choice() const {
  return {ui_->Drive1, ui_->Dir1, ui_->File1, ui_->Combo1, ui_->Check5, ui_->Label1, ui_->Command1, ui_->Command3};
}

void Obrazek::EnableGroups() {
  EnableWith(ui_->Check1, {ui_->Option6, ui_->Option7, ui_->Label5, ui_->VScroll1, ui_->Label6, ui_->VScroll2});
  EnableWith(ui_->Check8, {ui_->Option1, ui_->Option2, ui_->Option3, ui_->Option4, ui_->Option5});
  EnableWith(ui_->Check3, {ui_->Label9, ui_->VScroll4, ui_->Label10, ui_->VScroll5});
  EnableWith(ui_->Check2, {ui_->Label7, ui_->VScroll3});
  EnableWith(ui_->Check4, {ui_->Text1});
  EnableWith(ui_->Check6, {ui_->Text2});
  EnableWith(ui_->Check7, {ui_->Text3});
}

void Obrazek::SetUnit(bool percent) {
  // required: in pixels the width goes further than the height
  ui_->VScroll1->setRange(percent ? 10 : 1, percent ? 200 : 600);
  ui_->VScroll2->setRange(percent ? 10 : 1, percent ? 200 : 800);
  ui_->Label3->setText(SizeText(ui_->VScroll1->value()));
  ui_->Label4->setText(SizeText(ui_->VScroll2->value()));
}

QString Obrazek::SizeText(int value) const {
  return ui_->Option6->isChecked() ? BlankLedPercent(value) : BlankLed(value);
}

ImageSpec Obrazek::Read() const {
  const auto text = [](const QLabel* label) { return TextFromQString(label->text()); };
  ImageSpec image;
  image.path = TakePath(Choice(), *ui_->Text);
  image.relative = ui_->Check5->isChecked();
  image.alt = Written(ui_->Check4, ui_->Text1);
  if (ui_->Check8->isChecked())
    image.align =
        static_cast<ImageAlign>(SetOption({ui_->Option1, ui_->Option2, ui_->Option3, ui_->Option4, ui_->Option5}));
  if (ui_->Check1->isChecked()) image.size = {text(ui_->Label4), text(ui_->Label3)};
  if (ui_->Check3->isChecked()) image.space = {text(ui_->Label12), text(ui_->Label11)};
  image.border = Written(ui_->Check2, ui_->Label8);
  image.low_source = Written(ui_->Check6, ui_->Text2);
  image.map = Written(ui_->Check7, ui_->Text3);
  return image;
}

void Obrazek::Command1_Click() {
  InsertAtCaret(document_, ImageTag(Read()));
  hide();
}

}  // namespace pelmar
