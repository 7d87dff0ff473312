#include "html/dialogs/frame.h"

#include "html/dialogs/form_helpers.h"
#include "platform/color.h"
#include "platform/qt/convert.h"
#include "ui_frame.h"

namespace pelmar {

Frame::Frame(TextBuffer& buffer, std::function<void(const std::string&)> show_in_browser, QWidget* parent)
    : FragmentDialog(buffer, parent), choice_(FileChoice::Of(*ui_, ui_->Check5, ui_->Label1)) {
  choice_.Link(std::move(show_in_browser));
  for (QComboBox* words : {ui_->Combo2, ui_->Combo3}) AcceptFreeText(words);
  EnableWith(ui_->Check4, {ui_->Text1});
  EnableWith(ui_->Check6, {ui_->Combo3});
  EnableWith(ui_->Check1, {ui_->Combo2});
  EnableWith(ui_->Check7, {ui_->VScroll1, ui_->Label13});
  EnableWith(ui_->Check8, {ui_->VScroll2, ui_->Label4});
  EnableWith(ui_->Check9,
             {ui_->letterR, ui_->VScroll12, ui_->letterG, ui_->VScroll11, ui_->letterB, ui_->VScroll10, ui_->Label8});
  EnableWith(ui_->Check3, {ui_->Label9, ui_->VScroll4, ui_->Label10, ui_->VScroll5, ui_->Label11, ui_->Label12});
  // required: Label13 and Label4 begin at "0", which their bars never reach. The tag gets the labels' text
  ShowValue(ui_->VScroll1, ui_->Label13);
  ShowValue(ui_->VScroll2, ui_->Label4);
  ShowValue(ui_->VScroll4, ui_->Label11);
  ShowValue(ui_->VScroll5, ui_->Label12);
  for (QScrollBar* channel : {ui_->VScroll12, ui_->VScroll11, ui_->VScroll10})
    connect(channel, &QScrollBar::valueChanged, this, &Frame::ShowBorderColor);
}

void Frame::ShowBorderColor() {
  const Color color = Rgb(ui_->VScroll12->value(), ui_->VScroll11->value(), ui_->VScroll10->value());
  ui_->Picture3->setColor(ColorToQt(color));
  ui_->Label8->setText(Utf8ToQString(ColorToHex(color)));
}

FrameSpec Frame::Read() const {
  FrameSpec spec;
  spec.path = choice_.TakePath(*ui_->Text);
  spec.relative = ui_->Check5->isChecked();
  spec.name = TextIfChecked(ui_->Check4, ui_->Text1);
  spec.align = TextIfChecked(ui_->Check6, ui_->Combo3);
  spec.border = TextIfChecked(ui_->Check7, ui_->Label13);
  spec.border_color = TextIfChecked(ui_->Check9, ui_->Label8);
  spec.spacing = TextIfChecked(ui_->Check8, ui_->Label4);
  spec.scrolling = TextIfChecked(ui_->Check1, ui_->Combo2);
  if (ui_->Check3->isChecked()) spec.margins = {FieldText(*ui_->Label12), FieldText(*ui_->Label11)};
  spec.noresize = ui_->Check2->isChecked();
  return spec;
}

bool Frame::Put() { return Insert(FrameTag(Read())); }

}  // namespace pelmar
