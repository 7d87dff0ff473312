// `Výběr`: the exact selection by two sliders. It reads the selection once, when it is made, so each opening takes a
// new one.
#pragma once

#include <memory>

#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

class QLabel;

namespace Ui {
class Vyber;
}

namespace pelmar {

class Vyber : public DialogWindow {
  Q_OBJECT

 public:
  Vyber(TextBuffer& document, QWidget* parent);
  ~Vyber() override;

 private:
  void Load();
  void Change(QLabel* label, int value);

  TextBuffer& document_;
  std::unique_ptr<Ui::Vyber> ui_;
};

}  // namespace pelmar
