#include "html/dialogs/frames.h"

#include "html/dialogs/form_helpers.h"
#include "html/frames.h"
#include "ui_frames.h"

namespace pelmar {

Frames::Frames(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {
  EnableWith(ui_->Check1, {ui_->Text1});
  EnableWith(ui_->Check2, {ui_->Text2});
}

bool Frames::Put() {
  WrapInFrameset(buffer_, {TextIfChecked(ui_->Check1, ui_->Text1), TextIfChecked(ui_->Check2, ui_->Text2),
                           FieldText(*ui_->Text3)});
  return true;
}

}  // namespace pelmar
