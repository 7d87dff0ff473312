// The base of the dialogs that write into the text. One button calls Put and, if Put returns true, hides the dialog.
// The other button only hides the dialog.
#pragma once

#include <QPushButton>
#include <string_view>

#include "platform/qt/controls/dialog_window.h"
#include "text/insert.h"

namespace pelmar {

template <class Form>
class FragmentDialog : public FormDialog<Form> {
 protected:
  // `ok` and `cancel` are the two buttons in the form.
  FragmentDialog(TextBuffer& buffer, QWidget* parent, QPushButton* Form::*ok = &Form::Command1,
                 QPushButton* Form::*cancel = &Form::Command2)
      : FormDialog<Form>(parent), buffer_(buffer) {
    QObject::connect(this->ui_.get()->*ok, &QPushButton::clicked, this, [this] {
      if (Put()) this->hide();
    });
    QObject::connect(this->ui_.get()->*cancel, &QPushButton::clicked, this, &QWidget::hide);
  }

  // Writes into the text. Returns false if the dialog must stay open.
  virtual bool Put() = 0;

  // Inserts the fragment before the selection. Returns true, for use in Put.
  bool Insert(std::string_view fragment) {
    InsertAtCaret(buffer_, fragment);
    return true;
  }

  TextBuffer& buffer_;
};

}  // namespace pelmar
