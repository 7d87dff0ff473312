// `Hledání`: searches a copy of the document step by step, with a history of the search terms.
#pragma once

#include <QRect>
#include <functional>

#include "platform/qt/controls/dialog_window.h"
#include "texttools/find.h"

namespace Ui {
class Hledani;
}

namespace pelmar {

class Hledani : public FormDialog<Ui::Hledani> {
  Q_OBJECT

 public:
  // `match` returns the rectangle of the selected hit on the screen, empty if the hit isn't visible. The dialog moves
  // away from this rectangle if there is room on the screen.
  Hledani(TextBuffer& buffer, Platform& platform, std::function<QRect()> match, QWidget* parent);

 private:
  void Step(void (Finder::*step)());
  void TakeFields();
  void ShowFields();

  Finder finder_;
  std::function<QRect()> match_;
};

}  // namespace pelmar
