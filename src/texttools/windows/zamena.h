// `Záměna`: replaces step by step or all at once, with two histories whose rows belong together.
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
  // `match` returns the place of a visible match on the screen, else an empty one. The window moves off the match.
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
