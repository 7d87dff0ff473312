#include "html/dialogs/obrazek.h"

#include "html/dialogs/form_helpers.h"
#include "ui_obrazek.h"

namespace pelmar {

Obrazek::Obrazek(TextBuffer& buffer, std::function<void(const std::string&)> show_in_browser, QWidget* parent)
    : FragmentDialog(buffer, parent), choice_(FileChoice::Of(*ui_, ui_->Check5, ui_->Label1)) {
  choice_.Link(std::move(show_in_browser));
  EnableGroups();
  // required: in pixels the width has a larger range than the height
  LinkUnit(ui_->Option6, ui_->VScroll1, ui_->Label3, BlankLed, {10, 200}, {1, 600});
  LinkUnit(ui_->Option6, ui_->VScroll2, ui_->Label4, BlankLed, {10, 200}, {1, 800});
  ShowValue(ui_->VScroll3, ui_->Label8, BlankLed);
  ShowValue(ui_->VScroll4, ui_->Label11, BlankLed);
  ShowValue(ui_->VScroll5, ui_->Label12, BlankLed);
}

void Obrazek::EnableGroups() {
  EnableWith(ui_->Check1, {ui_->Option6, ui_->Option7, ui_->Label5, ui_->VScroll1, ui_->Label6, ui_->VScroll2,
                           ui_->Label3, ui_->Label4});
  EnableWith(ui_->Check8, {ui_->Option1, ui_->Option2, ui_->Option3, ui_->Option4, ui_->Option5});
  EnableWith(ui_->Check3, {ui_->Label9, ui_->VScroll4, ui_->Label10, ui_->VScroll5, ui_->Label11, ui_->Label12});
  EnableWith(ui_->Check2, {ui_->Label7, ui_->VScroll3, ui_->Label8});
  EnableWith(ui_->Check4, {ui_->Text1});
  EnableWith(ui_->Check6, {ui_->Text2});
  EnableWith(ui_->Check7, {ui_->Text3});
}

ImageSpec Obrazek::Read() const {
  using enum ImageAlign;
  ImageSpec image;
  image.path = choice_.TakePath(*ui_->Text);
  image.relative = ui_->Check5->isChecked();
  image.alt = TextIfChecked(ui_->Check4, ui_->Text1);
  image.align = CheckedOption<ImageAlign>(ui_->Check8, {{ui_->Option1, kTop},
                                                        {ui_->Option2, kMiddle},
                                                        {ui_->Option3, kBottom},
                                                        {ui_->Option4, kLeft},
                                                        {ui_->Option5, kRight}});
  if (ui_->Check1->isChecked()) image.size = {FieldText(*ui_->Label4), FieldText(*ui_->Label3)};
  if (ui_->Check3->isChecked()) image.space = {FieldText(*ui_->Label12), FieldText(*ui_->Label11)};
  image.border = TextIfChecked(ui_->Check2, ui_->Label8);
  image.low_source = TextIfChecked(ui_->Check6, ui_->Text2);
  image.map = TextIfChecked(ui_->Check7, ui_->Text3);
  return image;
}

bool Obrazek::Put() { return Insert(ImageTag(Read())); }

}  // namespace pelmar
