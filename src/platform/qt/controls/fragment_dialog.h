// The common shape of the dialogs that write something into the text: one button puts it there and hides the dialog,
// the other only hides it. A dialog gives its form and says what is put.
#pragma once

#include <QPushButton>
#include <string_view>

#include "platform/qt/controls/dialog_window.h"
#include "text/insert.h"

namespace pelmar {

template <class Form>
class FragmentDialog : public FormDialog<Form> {
 protected:
  // The buttons are those of these names in the form; most dialogs have no others.
  FragmentDialog(TextBuffer& document, QWidget* parent, QPushButton* Form::*ok = &Form::Command1,
                 QPushButton* Form::*storno = &Form::Command2)
      : FormDialog<Form>(parent), document_(document) {
    QObject::connect(this->ui_.get()->*ok, &QPushButton::clicked, this, [this] {
      if (Put()) this->hide();
    });
    QObject::connect(this->ui_.get()->*storno, &QPushButton::clicked, this, &QWidget::hide);
  }

  // Puts it into the text. False leaves the dialog on show.
  virtual bool Put() = 0;

  // At the caret, as most dialogs put it.
  bool Insert(std::string_view fragment) {
    InsertAtCaret(document_, fragment);
    return true;
  }

  TextBuffer& document_;
};

}  // namespace pelmar
