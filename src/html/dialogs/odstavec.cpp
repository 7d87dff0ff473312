#include "html/dialogs/odstavec.h"

#include "html/blocks.h"
#include "html/dialogs/form_helpers.h"
#include "ui_odstavec.h"

namespace pelmar {

Odstavec::Odstavec(TextBuffer& buffer, QWidget* parent) : FragmentDialog(buffer, parent) {}

bool Odstavec::Put() {
  using enum Align;
  WrapSelection(
      buffer_,
      Paragraph(CheckedOption<Align>({{ui_->Option1, kLeft}, {ui_->Option2, kCenter}, {ui_->Option3, kRight}})));
  return true;
}

}  // namespace pelmar
