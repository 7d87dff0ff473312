// `Výběr`: sets the exact selection by two sliders. The constructor and Load() read the selection.
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
  Vyber(TextBuffer& buffer, QWidget* parent);

  // Sets the sliders to the present selection. Afterwards the same text is selected.
  void Load();

 private:
  void Change(QLabel* label, int value);

  TextBuffer& buffer_;
};

}  // namespace pelmar
