// The common shape of the dialogs that write one fragment: one button puts it into the text and hides the dialog, the
// other only hides it. A dialog gives its form and says what is put.
#pragma once

#include <QPushButton>
#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace pelmar {

template <class Form>
class FragmentDialog : public DialogWindow {
 protected:
  // By their names in the form; most dialogs have these two buttons only.
  FragmentDialog(TextBuffer& document, QWidget* parent, QPushButton* Form::*ok = &Form::Command1,
                 QPushButton* Form::*storno = &Form::Command2)
      : DialogWindow(parent), document_(document), ui_(std::make_unique<Form>()) {
    ui_->setupUi(this);
    connect(ui_.get()->*ok, &QPushButton::clicked, this, [this] {
      if (Put()) hide();
    });
    connect(ui_.get()->*storno, &QPushButton::clicked, this, &QWidget::hide);
  }

  // Puts the fragment into the text. False leaves the dialog on show.
  virtual bool Put() = 0;

  TextBuffer& document_;
  std::unique_ptr<Form> ui_;
};

}  // namespace pelmar
