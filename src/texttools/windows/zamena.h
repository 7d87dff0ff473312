// The dialog `Záměna` finds a term and replaces it, step by step or all at once. One list shows the earlier terms, the
// other list shows their replacements in the same rows.
#pragma once

#include <QRect>
#include <functional>

#include "platform/qt/controls/dialog_window.h"
#include "texttools/replace.h"

namespace Ui {
class Zamena;
}

namespace pelmar {

class Zamena : public FormDialog<Ui::Zamena> {
  Q_OBJECT

 public:
  // `match` returns the rectangle of the selected hit on the screen, empty if the hit isn't visible. The dialog moves
  // away from this rectangle if there is room on the screen.
  Zamena(TextBuffer& buffer, Platform& platform, std::function<QRect()> match, QWidget* parent);

 private:
  void Start();
  void Step(void (Replacer::*step)());
  void PickRow(int row);
  void TakeFields();
  void ShowFields();

  Replacer replacer_;
  std::function<QRect()> match_;
};

}  // namespace pelmar
