#include "html/dialogs/frames.h"

#include "html/dialogs/form_helpers.h"
#include "html/frames.h"
#include "platform/qt/convert.h"
#include "ui_frames.h"

namespace pelmar {

Frames::Frames(TextBuffer& document, QWidget* parent)
    : DialogWindow(parent), document_(document), ui_(std::make_unique<Ui::Frames>()) {
  ui_->setupUi(this);
  EnableWith(ui_->Check1, {ui_->Text1});
  EnableWith(ui_->Check2, {ui_->Text2});
  connect(ui_->Command1, &QPushButton::clicked, this, &Frames::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &Frames::hide);
}

Frames::~Frames() = default;

void Frames::Command1_Click() {
  FramesetSpec spec;
  spec.rows = Written(ui_->Check1, ui_->Text1);
  spec.cols = Written(ui_->Check2, ui_->Text2);
  spec.title = TextFromQString(ui_->Text3->text());
  WrapInFrameset(document_, spec);
  hide();
}

}  // namespace pelmar
