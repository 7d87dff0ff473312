// `Výběr`: the exact selection by two sliders. It reads the selection when it is made and when it is told to, so each
// opening takes a new one.
#pragma once

#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

class QLabel;

namespace Ui {
class Vyber;
}

namespace pelmar {

class Vyber : public FormDialog<Ui::Vyber> {
  Q_OBJECT

 public:
  Vyber(TextBuffer& document, QWidget* parent);

  // Takes the selection of now into the sliders, which keep it as it is.
  void Load();

 private:
  void Change(QLabel* label, int value);

  TextBuffer& document_;
};

}  // namespace pelmar
