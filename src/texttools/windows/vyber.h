// `Výběr`: the exact selection by two sliders. It reads the selection anew each time it is opened.
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

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Load();
  void Change(QLabel* label, int value);

  TextBuffer& document_;
  std::unique_ptr<Ui::Vyber> ui_;
};

}  // namespace pelmar
